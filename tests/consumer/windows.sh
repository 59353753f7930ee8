#!/bin/sh
# Unpacks the Windows ZIP, checks that it carries what a MinGW host needs, then
# builds the consumer against it with the cross compiler and runs it under Wine.
# Arguments: <build dir> <consumer source dir> <dependency prefix> <Wine prefix>
set -eu
build=$(cd "$1" && pwd) source=$(cd "$2" && pwd) deps=$3 wineprefix=$4
toolchain=$(cd "$(dirname "$0")/../../cmake" && pwd)/mingw-w64.cmake
arch=$(sed -n 's/^TOVU_MINGW_ARCH:[A-Z]*=//p' "$build/CMakeCache.txt")
zip=$(ls "$build"/tovuutil-*.zip | head -n 1)
scratch=$build/windows-consumer
rm -rf "$scratch"
mkdir -p "$scratch"
(cd "$scratch" && cmake -E tar xf "$zip")
prefix=$(ls -d "$scratch"/tovuutil-*)
for f in bin/tovuutil.dll lib/libtovuutil.dll.a bin/libstdc++-6.dll bin/libwinpthread-1.dll bin/liblog4cpp-5.dll \
         bin/tovu.exe include/tovuutil/tovuutil.h lib/cmake/tovuutil/tovuutilConfig.cmake; do
  [ -f "$prefix/$f" ] || { echo "missing in the ZIP: $f" >&2; exit 1; }
done
ls "$prefix"/bin/libgcc_s_*.dll >/dev/null

cmake -S "$source" -B "$scratch/build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DTOVU_MINGW_ARCH="$arch" \
  -DTOVU_DEPS_PREFIX="$deps" -Dtovuutil_DIR="$prefix/lib/cmake/tovuutil" >/dev/null
cmake --build "$scratch/build" >/dev/null

wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
winepath=$(printf 'Z:%s' "$prefix/bin" | tr / '\\')
cd "$scratch"
status=0
WINEPREFIX=$wineprefix WINEDEBUG=-all WINEPATH=$winepath "$wine" "$scratch/build/consumer.exe" </dev/null >out || status=$?
tr -d '\r' <out
[ "$status" -eq 0 ] || { echo "consumer.exe exited with $status" >&2; exit 1; }
echo "windows consumer: built against the ZIP and ran under Wine"

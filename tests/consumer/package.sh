#!/bin/sh
# Builds the Debian package from the build tree, checks its dependencies and
# contents, unpacks it into a scratch root and builds the consumer against it.
# Arguments: <build dir> <consumer source dir> <scratch dir>
# Exits 77 (skipped) where the Debian packaging tools are missing.
set -eu
build=$1 source=$2 scratch=$3
for tool in dpkg-deb dpkg-shlibdeps file; do
    command -v $tool >/dev/null || { echo "no $tool: skipped"; exit 77; }
done
rm -rf "$scratch"
mkdir -p "$scratch"
cpack -G DEB -B "$scratch" --config "$build/CPackConfig.cmake" >/dev/null
deb=$(ls "$scratch"/*.deb)

depends=$(dpkg-deb -f "$deb" Depends)
for needed in liblog4cpp5v5 libstdc++6 liblog4cpp5-dev libboost-dev; do
    case "$depends" in *"$needed"*) ;; *) echo "Depends lacks $needed: $depends" >&2; exit 1 ;; esac
done
contents=$(dpkg-deb -c "$deb")
for file in usr/bin/tovu usr/lib/libtovuutil.so.1 usr/include/tovuutil/tovuutil.h \
    usr/lib/pkgconfig/tovuutil.pc usr/lib/cmake/tovuutil/tovuutilConfig.cmake usr/share/man/man1/tovu.1 \
    $(test -d "$build/docs/html" && echo usr/share/doc/tovuutil/html/index.html); do
    echo "$contents" | grep -q " ./$file" || { echo "package lacks $file" >&2; exit 1; }
done

dpkg-deb -x "$deb" "$scratch/root"
prefix=$scratch/root/usr
cmake -S "$source" -B "$scratch/cmake-build" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$scratch/cmake-build" >/dev/null
(cd "$scratch" && LD_LIBRARY_PATH=$prefix/lib "$scratch/cmake-build/consumer")
test "$(env -u LD_LIBRARY_PATH "$prefix/bin/tovu" --version)" = "tovu $(dpkg-deb -f "$deb" Version)"

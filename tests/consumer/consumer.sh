#!/bin/sh
# Installs the built library into a scratch prefix, moves the prefix, then
# builds and runs the consumer once through the CMake package and once
# through pkg-config: the installed files must not depend on where they lie.
# Arguments: <build dir> <consumer source dir> <scratch dir> <version>
set -eu
build=$1 source=$2 scratch=$3 version=$4
rm -rf "$scratch"
mkdir -p "$scratch"
cmake --install "$build" --prefix "$scratch/installed" >"$scratch/install.log"
# Every file is installed once.
duplicates=$(grep -o 'Installing: .*' "$scratch/install.log" | sort | uniq -d)
test -z "$duplicates" || { echo "installed twice: $duplicates" >&2; exit 1; }
prefix=$scratch/moved
mv "$scratch/installed" "$prefix"
sources=$(cd "$source/../../.." && pwd)
if grep -rlF -e "$build" -e "$sources" -e "$scratch/installed" "$prefix/lib/cmake" "$prefix/lib/pkgconfig" "$prefix/include"; then
    echo "installed files name build or source paths" >&2
    exit 1
fi
libdir=$(dirname "$(find "$prefix" -name 'libtovuutil.so' | head -n 1)")

# The link chain and the version stamped into every artefact.
major=${version%%.*}
test "$(readlink "$libdir/libtovuutil.so")" = "libtovuutil.so.$major"
test "$(readlink "$libdir/libtovuutil.so.$major")" = "libtovuutil.so.$version"
objdump -p "$libdir/libtovuutil.so.$version" | grep -q "SONAME *libtovuutil.so.$major"
grep -q "PACKAGE_VERSION \"$version\"" "$libdir/cmake/tovuutil/tovuutilConfigVersion.cmake"
test "$(PKG_CONFIG_PATH=$libdir/pkgconfig pkg-config --modversion tovuutil)" = "$version"
# The installed tool finds the library beside it in the moved tree, with its
# man page next to it.
test "$(env -u LD_LIBRARY_PATH "$prefix/bin/tovu" --version)" = "tovu $version"
man -l "$prefix/share/man/man1/tovu.1" 2>/dev/null | grep -q 'tovu - command-line host' ||
    test -s "$prefix/share/man/man1/tovu.1"

cmake -S "$source" -B "$scratch/cmake-build" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$scratch/cmake-build" >/dev/null
(cd "$scratch" && LD_LIBRARY_PATH=$libdir "$scratch/cmake-build/consumer")

flags=$(PKG_CONFIG_PATH=$libdir/pkgconfig pkg-config --cflags --libs tovuutil)
# shellcheck disable=SC2086
c++ -std=c++17 -o "$scratch/pc-consumer" "$source/main.cpp" $flags
(cd "$scratch" && LD_LIBRARY_PATH=$libdir "$scratch/pc-consumer")

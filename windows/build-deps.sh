#!/bin/sh
# Cross-builds the dependencies for one architecture into PREFIX/ARCH:
#   windows/build-deps.sh PREFIX ARCH LOG4CPP_TARBALL
# log4cpp (patched, as a DLL: a static copy inside tovuutil.dll would be a
# second log4cpp beside the one the tests link), GoogleTest from
# /usr/src/googletest, and a boost include folder (header-only use).
# A stamp file per dependency skips what is already built.
set -eu
top=$1 arch=$2 tarball=$3
here=$(cd "$(dirname "$0")" && pwd)
prefix=$top/$arch
work=$top/build-$arch
host=$arch-w64-mingw32
jobs=${JOBS:-2}
mkdir -p "$prefix/include" "$prefix/lib" "$work"

if [ ! -e "$prefix/include/boost" ]; then
  ln -s /usr/include/boost "$prefix/include/boost"
fi

if [ ! -f "$prefix/.log4cpp-done" ]; then
  echo "== log4cpp for $arch"
  rm -rf "$work/log4cpp"
  tar -xzf "$tarball" -C "$work"
  (cd "$work/log4cpp" && patch -p1 < "$here/log4cpp-mingw-int64.patch")
  (cd "$work/log4cpp" &&
   ./configure -q --host="$host" --prefix="$prefix" --enable-shared --disable-static \
     --disable-doxygen --disable-html-docs \
     CC="$host-gcc-posix" CXX="$host-g++-posix" LIBS=-lws2_32 CXXFLAGS="-O2 -w" &&
   make -s -j"$jobs" LDFLAGS=-no-undefined &&
   make -s install) > "$work/log4cpp.log" 2>&1 || { tail -40 "$work/log4cpp.log"; exit 1; }
  touch "$prefix/.log4cpp-done"
fi

if [ ! -f "$prefix/.gtest-done" ]; then
  echo "== GoogleTest for $arch"
  rm -rf "$work/googletest"
  cmake -S /usr/src/googletest -B "$work/googletest" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$here/../cmake/mingw-w64.cmake" \
    -DTOVU_MINGW_ARCH="$arch" -DTOVU_DEPS_PREFIX="$prefix" \
    -DCMAKE_INSTALL_PREFIX="$prefix" > "$work/googletest.log" 2>&1 &&
  cmake --build "$work/googletest" -j"$jobs" >> "$work/googletest.log" 2>&1 &&
  cmake --install "$work/googletest" >> "$work/googletest.log" 2>&1 || { tail -40 "$work/googletest.log"; exit 1; }
  touch "$prefix/.gtest-done"
fi
rm -rf "$work"

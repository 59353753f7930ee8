#!/bin/sh
# Runs a Windows build's tests under Wine through ctest:
#   windows/run-tests.sh BUILD_DIR ARCH WINE_PREFIX [ctest arguments...]
# The i686 tests need 32-bit Wine; without it they are reported as built but
# not run, and the script succeeds.
set -eu
build=$1 arch=$2 wineprefix=$3
shift 3
if [ "$arch" = x86_64 ]; then
  wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
else
  wine=$(command -v wine || echo /usr/lib/wine/wine)
fi
server=$(command -v wineserver || echo /usr/lib/wine/wineserver)
if ! [ -x "$wine" ]; then
  echo "== $arch: tests were built but NOT RUN: no working $( [ "$arch" = x86_64 ] && echo 64 || echo 32)-bit Wine on this machine"
  exit 0
fi
export WINEPREFIX="$wineprefix" WINEDEBUG=-all
if [ ! -f "$wineprefix/system.reg" ]; then
  echo "== creating the Wine prefix $wineprefix"
  "$wine" wineboot --init >/dev/null 2>&1
  "$server" -w
fi
# One wineserver for the whole parallel run: each test is a process of its own.
"$server" -p
trap '"$server" -k 2>/dev/null || true' EXIT
# Start Wine's own services now, away from ctest's pipes: a service holding a
# test's output pipe open would make ctest wait for it until the timeout.
"$wine" wineboot >/dev/null 2>&1 </dev/null
echo "== $arch: tests under $(basename "$wine")"
cd "$build" && ctest --output-on-failure "$@"

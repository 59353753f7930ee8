#!/bin/sh
# Puts log4cpp's upstream tarball at $1 (a file path).
# LOG4CPP_SOURCE=/path/to/log4cpp-x.y.z.tar.gz skips the download. Otherwise the
# tarball comes from the Debian source package through apt, in a private apt
# state directory whose deb-src entry reuses the URI of the machine's own Debian
# source; apt verifies it against the signed index. Exit status 2: no source.
set -eu
out=$1
version=${LOG4CPP_DEBIAN_VERSION:-1.1.4-1}
# Releases whose source index is searched for that version (it is trixie's).
suites=${LOG4CPP_SUITES:-trixie}
tarball=log4cpp_${version%-*}.orig.tar.gz

if [ -n "${LOG4CPP_SOURCE:-}" ]; then
  [ -f "$LOG4CPP_SOURCE" ] || { echo "LOG4CPP_SOURCE=$LOG4CPP_SOURCE: no such file" >&2; exit 2; }
  cp "$LOG4CPP_SOURCE" "$out.tmp" && mv "$out.tmp" "$out"
  exit 0
fi
[ -f "$out" ] && exit 0

. /etc/os-release
codename=${VERSION_CODENAME:?no VERSION_CODENAME in /etc/os-release}

# The URI and keyring of the first Debian "deb" source for this release.
uri= keyring=
for f in /etc/apt/sources.list.d/*.sources; do
  [ -f "$f" ] || continue
  set -- $(awk -v want="$codename" '
    function flush() { if (types ~ /(^| )deb( |$)/ && (" " suites " ") ~ (" " want " ") && uri != "" && !done) { print uri, (key == "" ? "-" : key); done = 1 } types = suites = uri = key = "" }
    /^[ \t]*$/ { flush(); next }
    /^Types:/ { sub(/^Types:[ \t]*/, ""); types = $0 }
    /^Suites:/ { sub(/^Suites:[ \t]*/, ""); suites = $0 }
    /^URIs:/ { uri = $2 }
    /^Signed-By:/ { key = $2 }
    END { flush() }' "$f")
  if [ $# -ge 1 ]; then uri=$1; keyring=$2; break; fi
done
if [ -z "$uri" ]; then
  for f in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -f "$f" ] || continue
    uri=$(awk -v want="$codename" '$1 == "deb" { i = 2; if ($2 ~ /^\[/) { while ($i !~ /\]$/) i++; i++ } if ($(i+1) == want) { print $i; exit } }' "$f")
    [ -n "$uri" ] && break
  done
fi
[ -n "$uri" ] || { echo "no Debian source for $codename in the apt configuration" >&2; exit 2; }

state=$(dirname "$out")/apt
rm -rf "$state"
mkdir -p "$state/sources.list.d" "$state/lists/partial" "$state/archives/partial" "$state/download"
{
  echo "Types: deb-src"
  echo "URIs: $uri"
  echo "Suites: $suites"
  echo "Components: main"
  [ "$keyring" = "-" ] || [ -z "$keyring" ] || echo "Signed-By: $keyring"
} > "$state/sources.list.d/src.sources"
apt_private() {
  apt-get -q -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$state/sources.list.d" \
    -o Dir::State::Lists="$state/lists" -o Dir::Cache="$state" -o Dir::Cache::Archives="$state/archives" \
    -o APT::Sandbox::User=root "$@"
}
apt_private update >&2 || { echo "apt-get update of the private deb-src list failed" >&2; exit 2; }
# The mirror may not serve the .dsc or the Debian diff; the orig tarball is all we need.
(cd "$state/download" && apt_private source --download-only "log4cpp=$version" >&2) || true
if [ ! -f "$state/download/$tarball" ]; then
  echo "apt did not deliver $tarball" >&2
  exit 2
fi
mv "$state/download/$tarball" "$out"
rm -rf "$state"

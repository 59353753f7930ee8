#!/bin/sh
# The library exports its own interface only: no symbol of log4cpp and none of
# Boost, except the type information, vtables and destructors of the exception
# classes that tovuAtof throws (boost::bad_lexical_cast and its bases): Boost
# marks them visible so that a host can catch them across the library boundary.
# A DLL's exports are read with the objdump given as $2.
set -eu
exported() {
  if [ -n "${2:-}" ]; then
    "$2" -p "$1" | awk '/\[Ordinal\/Name Pointer\] Table/ { t = 1; next } t && NF == 0 { exit } t { print $NF }' | c++filt
  else
    nm -DC --defined-only "$1"
  fi
}
allowed='(typeinfo|typeinfo name|vtable) for boost::(bad_lexical_cast|exception|exception_detail::clone_base|wrapexcept<boost::bad_lexical_cast>)$|boost::(exception|exception_detail::clone_base|bad_lexical_cast|wrapexcept<boost::bad_lexical_cast>)::~'
leaks=$(exported "$@" | grep -E 'log4cpp::|boost::' | grep -v -E "$allowed" || true)
if [ -n "$leaks" ]; then
  echo "foreign symbols exported:"; echo "$leaks"; exit 1
fi
exported "$@" | grep -q 'UtilServiceFactory::getService'

#!/bin/sh
# The library exports its own interface only: no symbol of log4cpp and none of
# Boost, except the type information, vtables and destructors of the exception
# classes that tovuAtof throws (boost::bad_lexical_cast and its bases): Boost
# marks them visible so that a host can catch them across the library boundary.
set -eu
allowed='(typeinfo|typeinfo name|vtable) for boost::(bad_lexical_cast|exception|exception_detail::clone_base|wrapexcept<boost::bad_lexical_cast>)$|boost::(exception|exception_detail::clone_base|bad_lexical_cast|wrapexcept<boost::bad_lexical_cast>)::~'
leaks=$(nm -DC --defined-only "$1" | grep -E 'log4cpp::|boost::' | grep -v -E "$allowed" || true)
if [ -n "$leaks" ]; then
  echo "foreign symbols exported:"; echo "$leaks"; exit 1
fi
nm -DC --defined-only "$1" | grep -q 'UtilServiceFactory::getService'

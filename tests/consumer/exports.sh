#!/bin/sh
# The library exports its own interface only: no symbol of log4cpp or of
# Boost may be defined in its dynamic symbol table. (Type information of the
# Boost exception tovuAtof throws is allowed: a host must be able to catch it.)
set -eu
leaks=$(nm -DC --defined-only "$1" | grep -E 'log4cpp::|boost::' | grep -v -E 'typeinfo (name )?for boost::(bad_lexical_cast|exception_detail|wrapexcept)' || true)
if [ -n "$leaks" ]; then
  echo "foreign symbols exported:"; echo "$leaks"; exit 1
fi
nm -DC --defined-only "$1" | grep -q 'UtilServiceFactory::getService'

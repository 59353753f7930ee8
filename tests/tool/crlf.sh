#!/bin/sh
# crlf.sh COMMAND...: runs COMMAND and passes on its standard output and error
# with the CR of CR LF line ends dropped (a Windows program's text mode), and
# its exit status. TOVU_RAW_OUTPUT=1 passes binary output on untouched.
if [ -n "${TOVU_RAW_OUTPUT:-}" ]; then
  exec "$@"
fi
out=$(mktemp) err=$(mktemp)
"$@" >"$out" 2>"$err"
status=$?
sed 's/\r$//' "$out"
sed 's/\r$//' "$err" >&2
rm -f "$out" "$err"
exit $status

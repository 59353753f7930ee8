# Sourced by the *_test.sh scripts: runs tovu ($1 of the script) and compares
# what it printed, byte for byte, and its exit status.
set -u
TOVU=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

# expect STATUS STDOUT STDERR [ARGS...]: runs tovu ARGS with standard input
# from $STDIN (default /dev/null).
expect() {
    local want_status=$1 want_out=$2 want_err=$3
    shift 3
    "$TOVU" "$@" <"${STDIN:-/dev/null}" >"$scratch/out" 2>"$scratch/err"
    local status=$?
    printf '%s' "$want_out" >"$scratch/want_out"
    printf '%s' "$want_err" >"$scratch/want_err"
    if [ "$status" -ne "$want_status" ] || ! cmp -s "$scratch/out" "$scratch/want_out" ||
        ! cmp -s "$scratch/err" "$scratch/want_err"; then
        failures=$((failures + 1))
        echo "FAILED: tovu $*"
        echo "  status $status, wanted $want_status"
        echo "  stdout:"; od -c "$scratch/out" | head -20
        echo "  wanted:"; od -c "$scratch/want_out" | head -20
        echo "  stderr:"; cat "$scratch/err"
        echo "  wanted:"; cat "$scratch/want_err"
    fi
}

# expect_status STATUS [ARGS...]: only the exit status matters (help texts).
expect_status() {
    local want_status=$1
    shift
    "$TOVU" "$@" <"${STDIN:-/dev/null}" >"$scratch/out" 2>"$scratch/err"
    local status=$?
    if [ "$status" -ne "$want_status" ]; then
        failures=$((failures + 1))
        echo "FAILED: tovu $*: status $status, wanted $want_status"; cat "$scratch/err"
    fi
}

# as_user COMMAND...: runs COMMAND as an unprivileged user, where root would
# hide a failure (unwritable directories). Returns 77 when that is not
# possible here; callers then skip with a message.
as_user() {
    if [ "$(id -u)" != 0 ]; then
        "$@"
    elif command -v setpriv >/dev/null && setpriv --reuid=65534 --regid=65534 --clear-groups test -x "$TOVU"; then
        setpriv --reuid=65534 --regid=65534 --clear-groups "$@"
    else
        return 77
    fi
}

# check NAME CONDITION...: counts a failure when the condition is false.
check() {
    local name=$1
    shift
    "$@" || { echo "FAILED: $name"; failures=$((failures + 1)); }
}

# Ends the script: non-zero when any expectation failed.
finish() {
    [ "$failures" -eq 0 ] && echo "all passed" || echo "$failures failed"
    [ "$failures" -eq 0 ]
}

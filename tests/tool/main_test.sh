# The command table itself: help, version, unknown commands, info.
. "$TOVU_TEST_SOURCE/cli.sh"

version=$(grep -m1 -o 'project(tovuutil VERSION [0-9.]*' "$TOVU_TEST_SOURCE/../../CMakeLists.txt" | cut -d' ' -f3)
expect 0 "tovu $version"$'\n' "" --version
expect_status 0 --help
expect_status 2
expect 2 "" $'tovu: unknown command \'frobnicate\'; try \'tovu --help\'\n' frobnicate
expect 2 "" $'tovu: unknown option \'--frobnicate\'; try \'tovu --help\'\n' --frobnicate
expect 2 "" $'tovu: unknown command \'frobnicate\'; try \'tovu --help\'\n' help frobnicate
direct=$("$TOVU" time --help; printf x)
expect 0 "${direct%x}" "" help time
expect 2 "" $'tovu: info: unknown option \'--xml\'\nTry \'tovu info --help\'.\n' info --xml
for command in info check basen checksum time; do
    expect_status 0 "$command" --help
done
for command in encode decode ini props lib; do
    expect_status 0 "$command" --help
done
expect 2 "" $'tovu: info: unexpected argument \'x\'\nTry \'tovu info --help\'.\n' info x

# The man page names every command of the help.
for command in $("$TOVU" --help | sed -n 's/^  \([a-z]*\) .*/\1/p'); do
    check "man page lacks $command" grep -q "^\.B $command\b" "$TOVU_TEST_SOURCE/../../tools/tovu/tovu.1"
done

# info prints every section, in table and JSON form, and the versions exactly.
"$TOVU" info >"$scratch/info" 2>/dev/null || { echo "FAILED: info"; failures=$((failures + 1)); }
[ "$(grep -c '^\[' "$scratch/info")" = 4 ] || { echo "FAILED: info sections"; failures=$((failures + 1)); }
grep -qx '  product version  2007, 4, 2, 8255' "$scratch/info" || { echo "FAILED: product version"; failures=$((failures + 1)); }
"$TOVU" info --json >"$scratch/json" 2>/dev/null &&
    [ "$(head -c1 "$scratch/json")" = "{" ] && [ "$(tail -n1 "$scratch/json")" = "}" ] &&
    grep -qx '    "file version": "2007, 11, 22, 0",' "$scratch/json" &&
    [ "$(grep -c '^  "[a-z ]*": {$' "$scratch/json")" = 4 ] ||
    { echo "FAILED: info --json"; failures=$((failures + 1)); }

# What follows rests on how the tool starts on an ELF host (standard streams
# claimed before the library loads, --log-dir) and on POSIX permissions.
if [ -n "${TOVU_TEST_WINDOWS:-}" ]; then
    echo "skipped on Windows: closed streams, --log-dir and load-time lines are POSIX start-up behaviour"
    finish
    exit
fi

# A closed standard output is a write error, as in other tools; tovu.log,
# opened while the library loads, does not take its place.
mkdir "$scratch/closed" && cd "$scratch/closed"
"$TOVU" --version >&- 2>"$scratch/err"
check "closed stdout status" [ $? = 1 ]
check "closed stdout message" [ "$(cat "$scratch/err")" = "tovu: write error: Bad file descriptor" ]
check "tovu.log free of data" sh -c '! grep -q "^tovu [0-9]" tovu.log'
printf 'data' >data
"$TOVU" encode base64 data <&- >&- 2>/dev/null
check "closed stdin and stdout" [ $? = 1 ]
cd "$scratch"

# Quiet and status 1 when the reader goes away, for every command alike.
for args in "ini list $scratch/big.ini" "encode base64 $scratch/big.ini"; do
    printf '[S]\r\n' >"$scratch/big.ini"
    for i in $(seq 1 20000); do printf 'K%d=%d\r\n' "$i" "$i"; done >>"$scratch/big.ini"
    (trap '' PIPE; exec "$TOVU" $args 2>"$scratch/pipe") | head -c1 >/dev/null
    check "closed pipe quiet: $args" [ ! -s "$scratch/pipe" ]
done

# --log-dir keeps tovu.log out of the working directory; relative names stay
# relative to it.
mkdir "$scratch/work" "$scratch/logs" && cd "$scratch/work"
printf '[S]\r\nK=v\r\n' >a.ini
expect 0 $'v\n' "" --log-dir "$scratch/logs" ini get a.ini S.K
check "no tovu.log in the working directory" [ ! -e tovu.log ]
check "tovu.log in the log directory" [ -e "$scratch/logs/tovu.log" ]
expect 1 "" "tovu: --log-dir: $scratch/none: No such file or directory"$'\n' --log-dir "$scratch/none" --version
expect 2 "" $'tovu: --log-dir needs a directory; try \'tovu --help\'\n' --log-dir
cd "$scratch"

# Lines the library logs while it loads (an unwritable working directory and
# homes that do not exist) reach standard error as UTF-8, never the data.
chmod 711 "$scratch"
mkdir -m 555 "$scratch/locked"
printf 'hello' >"$scratch/hello" && chmod 644 "$scratch/hello"
cd "$scratch/locked"
export TOVU_HOME=/nonexistent/home TEMP=/nonexistent/temp
if as_user true; then
    as_user "$TOVU" encode base64 "$scratch/hello" >"$scratch/user_out" 2>"$scratch/user_err"
    check "load-time lines kept out of encode" [ "$(cat "$scratch/user_out")" = "aGVsbG8=" ]
    check "load-time lines on stderr" grep -q '^fileAccess ERROR (/nonexistent/home)' "$scratch/user_err"
    check "load-time lines as UTF-8" grep -q $'gew\xc3\xbcnschte' "$scratch/user_err"
    as_user "$TOVU" info --json >"$scratch/user_json" 2>/dev/null
    command -v python3 >/dev/null && check "info --json parses" python3 -c 'import json, sys; json.load(open(sys.argv[1]))' "$scratch/user_json"
else
    echo "skipped: the load-time log test needs an unprivileged user (setpriv)"
fi
unset TOVU_HOME TEMP
cd "$scratch"
finish

# The command table itself: help, version, unknown commands, info.
. "$TOVU_TEST_SOURCE/cli.sh"

version=$(grep -m1 -o 'project(tovuutil VERSION [0-9.]*' "$TOVU_TEST_SOURCE/../../CMakeLists.txt" | cut -d' ' -f3)
expect 0 "tovu $version"$'\n' "" --version
expect_status 0 --help
expect_status 2
expect_status 2 frobnicate
for command in info check basen checksum time; do
    expect_status 0 "$command" --help
done
for command in encode decode ini props lib; do
    expect_status 0 "$command" --help
done
expect 2 "" $'tovu: info: unexpected argument \'x\'\nTry \'tovu info --help\'.\n' info x

# info prints every section, in table and JSON form, and the versions exactly.
"$TOVU" info >"$scratch/info" 2>/dev/null || { echo "FAILED: info"; failures=$((failures + 1)); }
[ "$(grep -c '^\[' "$scratch/info")" = 4 ] || { echo "FAILED: info sections"; failures=$((failures + 1)); }
grep -qx '  product version  2007, 4, 2, 8255' "$scratch/info" || { echo "FAILED: product version"; failures=$((failures + 1)); }
"$TOVU" info --json >"$scratch/json" 2>/dev/null &&
    [ "$(head -c1 "$scratch/json")" = "{" ] && [ "$(tail -n1 "$scratch/json")" = "}" ] &&
    grep -qx '    "file version": "2007, 11, 22, 0",' "$scratch/json" &&
    [ "$(grep -c '^  "[a-z ]*": {$' "$scratch/json")" = 4 ] ||
    { echo "FAILED: info --json"; failures=$((failures + 1)); }
finish

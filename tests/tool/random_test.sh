# tovu random: identifiers of the unambiguous alphabet, one per line, different
# from run to run; strict option values.
. "$TOVU_TEST_SOURCE/cli.sh"

# fail MESSAGE: counts a failed check.
fail() { echo "FAILED: $1"; failures=$((failures + 1)); }

# lines_of FILE LENGTH COUNT: FILE holds COUNT lines of LENGTH alphabet characters.
lines_of() {
    [ "$(wc -l <"$1")" -eq "$3" ] && ! LC_ALL=C grep -qvx "[1-9A-NP-Z]\{$2\}" "$1"
}

expect_status 0 random --help
"$TOVU" random >"$scratch/one" 2>"$scratch/err" && [ ! -s "$scratch/err" ] && lines_of "$scratch/one" 12 1 ||
    fail "random: one identifier of 12 characters by default"
"$TOVU" random --count 3 --length 1 >"$scratch/short" && lines_of "$scratch/short" 1 3 ||
    fail "random --count 3 --length 1"
"$TOVU" random --length 1000 --count 1000 --count 2 >"$scratch/long" && lines_of "$scratch/long" 1000 2 ||
    fail "random --length 1000, the last --count counts"

# Two runs at the same moment share no identifier.
"$TOVU" random --count 5000 >"$scratch/a" &
"$TOVU" random --count 5000 >"$scratch/b"
wait $! || fail "random in the background"
lines_of "$scratch/a" 12 5000 && lines_of "$scratch/b" 12 5000 || fail "random --count 5000"
[ -z "$(sort "$scratch/a" "$scratch/b" | uniq -d)" ] || fail "two runs drew the same identifier"

# Values outside their range, or not whole numbers, are usage errors.
hint=$'\nTry \'tovu random --help\'.\n'
for value in 0 1001 00 -1 +5 12x "" " 12" 99999999999999999999999; do
    expect 2 "" "tovu: random: --length must be a whole number from 1 to 1000, not '$value'$hint" random --length "$value"
done
for value in 0 1000001 3.5 1e3; do
    expect 2 "" "tovu: random: --count must be a whole number from 1 to 1000000, not '$value'$hint" random --count "$value"
done
expect 2 "" "tovu: random: --count needs a number$hint" random --length 8 --count
expect 2 "" "tovu: random: unexpected argument '12'$hint" random 12
expect 2 "" "tovu: random: unknown option '-n'$hint" random -n 3
finish

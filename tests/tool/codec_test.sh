# encode/decode: exact texts, lenient decoding, errors, full devices, closed
# pipes, and a large input streamed in bounded memory.
. "$TOVU_TEST_SOURCE/cli.sh"

printf 'foobar' >"$scratch/foobar"
STDIN="$scratch/foobar"
expect 0 $'666F6F626172\n' "" encode base16
expect 0 $'MZXW6YTBOI======\n' "" encode base32
expect 0 $'Zm9vYmFy\n' "" encode base64
expect 0 $'Zm9vYmFy\n' "" encode base64 -
unset STDIN
expect 0 $'Zm9vYmFy\n' "" encode base64 "$scratch/foobar"
expect 0 "" "" encode base64 # empty input, empty output
# --wrap N: lines of N characters, each ended; 0 keeps one line.
printf 'foobarbaz1234567' >"$scratch/wrap"
expect 0 $'Zm9vYmFy\nYmF6MTIz\nNDU2Nw==\n' "" encode --wrap 8 base64 "$scratch/wrap"
expect 0 $'Zm9v\nYmFy\n' "" encode base64 "$scratch/foobar" --wrap 4
expect 0 $'Zm9vYmFy\n' "" encode --wrap 0 base64 "$scratch/foobar"
expect 0 $'Zm9vY\nmFy\n' "" encode --wrap 5 base64 "$scratch/foobar"
expect 2 "" $'tovu: encode: \'x\' is not a line width\nTry \'tovu encode --help\'.\n' encode --wrap x base64
expect 2 "" $'tovu: decode: unknown option \'--ignore-garbage\'\nTry \'tovu decode --help\'.\n' decode base64 --ignore-garbage
expect 2 "" $'tovu: decode: unknown option \'--wrap\'\nTry \'tovu decode --help\'.\n' decode --wrap 4 base64
# "--" ends the options: a file named like one.
cp "$scratch/foobar" "$scratch/-x"
cd "$scratch"
expect 0 $'Zm9vYmFy\n' "" encode base64 -- -x
cd - >/dev/null

printf 'Zm9v\r\nYmFy\n' >"$scratch/lines"
expect 0 "foobar" "" decode base64 "$scratch/lines"
printf '666f6F626172' >"$scratch/hex"
expect 0 "foobar" "" decode base16 "$scratch/hex"
printf 'MZXQ====' >"$scratch/b32"
expect 0 "fo" "" decode base32 "$scratch/b32"
printf 'Zm9' >"$scratch/short"
expect 1 "" $'tovu: decode: the input\'s length is not a multiple of 4 characters\n' decode base64 "$scratch/short"
expect 1 "" $'tovu: encode: /nowhere/x: No such file or directory\n' encode base64 /nowhere/x
expect 2 "" $'tovu: encode: unknown codec \'base58\'\nTry \'tovu encode --help\'.\n' encode base58
expect 2 "" $'tovu: decode: which codec: base16, base32 or base64?\nTry \'tovu decode --help\'.\n' decode

# Every byte value survives a round trip through each codec.
for value in $(seq 0 255); do printf "\\x$(printf %02x "$value")"; done >"$scratch/bytes"
for codec in base16 base32 base64; do
    "$TOVU" encode $codec <"$scratch/bytes" | "$TOVU" decode $codec | cmp -s - "$scratch/bytes" ||
        { echo "FAILED: all bytes through $codec"; failures=$((failures + 1)); }
    "$TOVU" encode --wrap 7 $codec <"$scratch/bytes" | "$TOVU" decode $codec | cmp -s - "$scratch/bytes" ||
        { echo "FAILED: all bytes wrapped through $codec"; failures=$((failures + 1)); }
done

# A full device is reported; a reader that goes away is not. (Under Wine the
# line-end wrapper owns tovu's output, so the device is not tovu's to fill.)
if [ -w /dev/full ] && [ -z "${TOVU_TEST_WINDOWS:-}" ]; then
    "$TOVU" encode base64 <"$scratch/bytes" >/dev/full 2>"$scratch/full"
    [ "$(cat "$scratch/full")" = "tovu: encode: write error: No space left on device" ] ||
        { echo "FAILED: /dev/full"; failures=$((failures + 1)); }
fi
head -c 8M /dev/zero | "$TOVU" encode base64 2>"$scratch/pipe" | head -c1 >/dev/null
[ ! -s "$scratch/pipe" ] || { echo "FAILED: closed pipe printed"; cat "$scratch/pipe"; failures=$((failures + 1)); }

# 1 GiB (64 MiB under the sanitizers) comes back byte-identical, with each
# process held to 32 MiB of address space.
size=1G limit="ulimit -v 32768"
[ -n "${TOVU_SANITIZED:-}" ] && size=64M limit=":"
# Wine reserves its address space up front: no limit, a smaller stream.
[ -n "${TOVU_TEST_WINDOWS:-}" ] && size=64M limit=":"
mkfifo "$scratch/copy"
md5sum <"$scratch/copy" >"$scratch/sent" &
received=$(head -c $size /dev/urandom | tee "$scratch/copy" |
    (eval "$limit" && export TOVU_RAW_OUTPUT=1 && exec "$TOVU" encode base64) |
    (eval "$limit" && export TOVU_RAW_OUTPUT=1 && exec "$TOVU" decode base64) | md5sum)
wait
[ "$received" = "$(cat "$scratch/sent")" ] || { echo "FAILED: $size round trip"; failures=$((failures + 1)); }
finish

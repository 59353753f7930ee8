# tovu basen and tovu checksum: conversions in every base, their limits, and
# the checksum.
. "$TOVU_TEST_SOURCE/cli.sh"

# Known values, and every base's round trip up to the largest exact number.
expect 0 $'21\n' "" basen to 34 34
expect 0 $'1\n' "" basen to 34 0
expect 0 $'ZZ\n' "" basen to 36 1295
expect 0 $'7\n' "" basen to 10 007
expect 0 $'34\n' "" basen from 34 21
expect 0 $'0\n' "" basen from 34 111
expect 0 $'255\n' "" basen from 16 ff
expect 0 $'1295\n' "" basen from 36 ZZ
for base in 10 16 34 36; do
    for number in 0 1 33 35 1000000 9007199254740991; do
        digits=$("$TOVU" basen to $base $number)
        expect 0 "$number"$'\n' "" basen from $base "$digits"
    done
done
expect 0 $'1FFFFFFFFFFFFF\n' "" basen to 16 9007199254740991

# Values the conversions cannot take.
expect 1 "" $'tovu: basen: \'9007199254740992\' is larger than 9007199254740991\n' basen to 16 9007199254740992
expect 1 "" $'tovu: basen: \'0020000000000001\' is larger than 9007199254740991\n' basen from 16 0020000000000001
expect 1 "" $'tovu: basen: \'-5\' is not a whole decimal number\n' basen to 36 -5
expect 1 "" $'tovu: basen: \'1,5\' is not a whole decimal number\n' basen to 10 1,5
expect 1 "" $'tovu: basen: \'x\' is not a digit in base 10\n' basen from 10 1x
expect 1 "" $'tovu: basen: \'z\' is not a digit in base 36\n' basen from 36 zz
expect 1 "" $'tovu: basen: \'O\' is not a digit in base 34\n' basen from 34 1O
expect 1 "" $'tovu: basen: \'\xc3\xb6\' is not a digit in base 36\n' basen from 36 A$'\xc3\xb6'
expect 1 "" $'tovu: basen: no digits given\n' basen from 16 ""

# The command line itself is wrong.
hint=$'\nTry \'tovu basen --help\'.\n'
expect 2 "" "tovu: basen: 'to' or 'from' expected$hint" basen
expect 2 "" "tovu: basen: unknown sub-command 'into'$hint" basen into 16 1
expect 2 "" "tovu: basen: BASE and a value expected$hint" basen to 16
expect 2 "" "tovu: basen: unexpected argument '2'$hint" basen to 16 1 2
expect 2 "" "tovu: basen: base must be 10, 16, 34 or 36, not '8'$hint" basen from 8 7

# checksum: the digit sum of the text as the library sees it.
expect 0 $'10\n' "" checksum 12-34
expect 0 $'0\n' "" checksum abc
expect 0 $'0\n' "" checksum ""
expect 0 $'45\n' "" checksum $'K\xc3\xb6ln 1234567890'
expect 2 "" $'tovu: checksum: no text given\nTry \'tovu checksum --help\'.\n' checksum
expect 2 "" $'tovu: checksum: unexpected argument \'2\' (quote a text with blanks)\nTry \'tovu checksum --help\'.\n' checksum 1 2
finish

# tovu check: form-field and date-field codes, their output lines and statuses.
. "$TOVU_TEST_SOURCE/cli.sh"

# Number codes: one call per group, valid and invalid values side by side.
expect 1 $'-12: valid\n+ 7: valid\n1,0: invalid\n-: invalid\n' "" check N -12 "+ 7" 1,0 -
expect 1 $'+3: valid\n-0: invalid\n' "" check U +3 -0
expect 1 $'42: valid\n+3: invalid\n' "" check o 42 +3
expect 1 $'+3: valid\n0: invalid\n' "" check G +3 0
expect 1 $'-3: valid\n0: invalid\n' "" check M -3 0
expect 1 $'2: valid\n3: invalid\n' "" check Y 2 3
expect 1 $'1: valid\n2: invalid\n' "" check J 1 2
expect 1 $'12,50: valid\n,50: valid\n12,5: invalid\n1.50: invalid\n' "" check P 12,50 ,50 12,5 1.50
expect 1 $'0,01: valid\n0,00: invalid\n' "" check R 0,01 0,00
expect 1 $'-1,00: valid\n0,00: invalid\n' "" check S -1,00 0,00
expect 1 $'150,00: valid\n-1,00: invalid\n' "" check prozent 150,00 -1,00
expect 1 $'12,3456: valid\n123456: valid\n12,34567: invalid\n-1,5: invalid\n' "" check F 12,3456 123456 12,34567 -1,5
expect 1 $'-1,5: valid\n1234: valid\n12345: invalid\n-1234: invalid\n' "" check V -1,5 1234 12345 -1234
expect 0 $' 5 : valid\n' "" check N " 5 "

# Date codes list every error with its meaning; ranges shift the codes.
expect 1 $'29.02.2024: valid\n29.02.1900: invalid\n  6: day after the 28th of February in a common year
00.13.1800: invalid\n  4: month not in 1..12\n  5: year before 1890\n  9: day before the 1st or after the 31st
31.04.2023: invalid\n  8: day after the 30th of April, June, September or November
1.1.2020: invalid\n  1: wrong length\n01-01-2020: invalid\n  2: wrong shape: a digit or separator out of place\n' \
    "" check D 29.02.2024 29.02.1900 00.13.1800 31.04.2023 1.1.2020 01-01-2020
expect 1 $'29.02.: valid\n30.02.: invalid\n  7: day after the 29th of February\n' "" check T 29.02. 30.02.
expect 1 $'29.02.: invalid\n  6: day after the 28th of February in a common year\n' "" check T --year 2023 29.02.
expect 0 $'29.02-01.03: valid\n' "" check b 29.02-01.03 --year 2024
expect 1 $'32.01-01.13: invalid\n  19: first date: day before the 1st or after the 31st
  24: second date: month not in 1..12\n01.05-30.04: invalid\n  100: the range ends before it starts\n' \
    "" check B 32.01-01.13 01.05-30.04
expect 1 $'01.01.2020-31.12.2019: invalid\n  100: the range ends before it starts
31.06.2020-01.01.1889: invalid\n  18: first date: day after the 30th of April, June, September or November
  25: second date: year before 1890\n  100: the range ends before it starts\n' \
    "" check Z 01.01.2020-31.12.2019 31.06.2020-01.01.1889
expect 1 $'31.06.23: invalid\n  8: day after the 30th of April, June, September or November\n' "" check E 31.06.23
expect 1 $'12.99: valid\n13.99: invalid\n  4: month not in 1..12\n' "" check L 12.99 13.99
expect 1 $'12: valid\n13: invalid\n  4: month not in 1..12\n1: invalid\n  1: wrong length\n1x: invalid
  2: wrong shape: a digit or separator out of place\n' "" check K 12 13 1 1x

# UTF-8 from the terminal reaches the check as one byte per character: "ö1.01."
# has the length of "DD.MM." and fails on its shape, not on its length; a
# Windows-1252 byte passes unchanged.
# Under Wine the arguments reach a Windows program in its ANSI code page: the
# UTF-8 "ö" arrives as the single byte F6, and a lone F6 cannot be passed at all.
if [ -n "${TOVU_TEST_WINDOWS:-}" ]; then
    expect 1 $'\xf61.01.: invalid\n  2: wrong shape: a digit or separator out of place\n' "" check T $'\xc3\xb61.01.'
else
    expect 1 $'\xc3\xb61.01.: invalid\n  2: wrong shape: a digit or separator out of place\n' "" check T $'\xc3\xb61.01.'
    expect 1 $'\xf61.01.: invalid\n  2: wrong shape: a digit or separator out of place\n' "" check T $'\xf61.01.'
fi

# The command line itself is wrong.
hint=$'\nTry \'tovu check --help\'.\n'
expect 2 "" "tovu: check: no format code given$hint" check
expect 2 "" "tovu: check: no value to check$hint" check N
expect 2 "" "tovu: check: unknown format code 'X'$hint" check X 1
expect 2 "" "tovu: check: --year applies to the codes T and B only$hint" check D --year 2020 01.01.2020
expect 2 "" "tovu: check: '20' is not a year of four digits$hint" check T --year 20 01.01.
expect 2 "" "tovu: check: --year needs a year$hint" check T 01.01. --year
expect 2 "" "tovu: check: unknown option '-x'$hint" check N -x
# After "--" everything is a value; "-" and negative numbers are values anyway.
expect 1 $'-x: invalid\n--year: invalid\n' "" check N -- -x --year
expect 1 $'-1: invalid\n  1: wrong length\n' "" check D -- -1
finish

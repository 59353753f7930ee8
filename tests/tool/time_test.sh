# tovu time: sums and differences of times of day with the library's wrap
# rules, formatting directives, and the time texts accepted.
. "$TOVU_TEST_SOURCE/cli.sh"

# add goes on past midnight; sub gives the distance instead of going back.
expect 0 $'00:00:30 (+1 day)\n' "" time add 23:59:30 00:01:00
expect 0 $'00:00:00 (+1 day)\n' "" time add 23:59:30 00:00:30
expect 0 $'23:59:59\n' "" time add 23:59:30 00:00:29
expect 0 $'10:45:00\n' "" time add 9:30 1:15
expect 0 $'12:00:01\n' "" time add 12:00:00.999 0:00:00.001
expect 0 $'00:00:00.250 (+1 day)\n' "" time add 23:59:59.750 0:00:00.500 --format %T.%X
expect 0 $'00:30:00 (distance, past midnight)\n' "" time sub 00:30 01:00
expect 0 $'09:29:44.750\n' "" time sub 10:00 0:30:15.250
expect 0 $'00:00:00\n' "" time sub 7:00 7:00
expect 0 $'12.00 Uhr\n' "" time sub 13:00 1:00 --format "%H.%M Uhr"

# format normalises, or fills in every directive; other text stays.
expect 0 $'09:05:03\n' "" time format 9:5:3
expect 0 $'23:59:59.999\n' "" time format 23:59:59.999
expect 0 $'09.05 Uhr\n' "" time format 9:05 "%H.%M Uhr"
expect 0 $'12 pm 12:00:00 pm 00:00\n' "" time format 0:00 "%I %p %r %R"
expect 0 $'12:00:00 am|01 pm|007 %Q\n' "" time format 13:00:00.007 --format "12:00:00 am|%I %p|%X %Q"
expect 0 $'Um 08 Uhr \xc3\xb6\n' "" time format 8:00 $'Um %H Uhr \xc3\xb6'

# Time texts outside a day or out of shape.
for text in 24:00 1:60 1:00:60 100:00 1: :30 1:00:00.5 1:00:00. 1:00:00:00 "1:00 " ""; do
    expect 1 "" "tovu: time: '$text' is not a time of day (H:MM, H:MM:SS or H:MM:SS.mmm)"$'\n' time add 1:00 "$text"
done
expect 1 "" $'tovu: time: \'noon\' is not a time of day (H:MM, H:MM:SS or H:MM:SS.mmm)\n' time format noon

# The command line itself is wrong.
hint=$'\nTry \'tovu time --help\'.\n'
expect 2 "" "tovu: time: 'add', 'sub' or 'format' expected$hint" time
expect 2 "" "tovu: time: unknown sub-command 'mul'$hint" time mul 1:00 2:00
expect 2 "" "tovu: time: TIME and DURATION expected$hint" time sub 1:00
expect 2 "" "tovu: time: TIME expected$hint" time format
expect 2 "" "tovu: time: unexpected argument '3:00'$hint" time add 1:00 2:00 3:00
expect 2 "" "tovu: time: unexpected argument 'b'$hint" time format 1:00 a b
expect 2 "" "tovu: time: --format needs a format$hint" time add 1:00 2:00 --format
expect 2 "" "tovu: time: unknown option '--carry'$hint" time add 1:00 2:00 --carry
finish

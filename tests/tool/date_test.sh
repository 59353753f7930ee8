# tovu date: calendar arithmetic, German names as UTF-8, ISO weeks, and the
# date texts accepted.
. "$TOVU_TEST_SOURCE/cli.sh"

# today is the host's local date (a midnight between the two runs aside).
expect 0 "$(date +%d.%m.%Y)"$'\n' "" date today
expect 0 "$(date +%Y-%m-%d)"$'\n' "" date today %Y-%m-%d

# add: month ends clamp, negative counts go back, units in the singular too.
expect 0 $'29.02.2024\n' "" date add 31.01.2024 1 months
expect 0 $'28.02.2023\n' "" date add 31.01.2023 +1 month
expect 0 $'28.02.2025\n' "" date add 29.02.2024 1 years
expect 0 $'31.12.2023\n' "" date add 01.01.2024 -1 day
expect 0 $'01.03.2024\n' "" date add 28.02.2024 2 days
expect 0 $'01.01.1850\n' "" date add 01.01.1851 -12 months
expect 0 $'31.12.9999\n' "" date add 01.01.0001 3652058 days
for args in "31.12.9999 1 days" "01.01.0001 -1 months" "15.06.2024 -2024 years" "01.01.2024 99999999999999999999 days"; do
    expect 1 "" $'tovu: date: the result is outside the years 0001 to 9999\n' date add $args
done

# diff counts days from the first date to the second.
expect 0 $'60\n' "" date diff 01.01.2024 01.03.2024
expect 0 $'-59\n' "" date diff 01.03.2023 01.01.2023
expect 0 $'3652058\n' "" date diff 01.01.0001 31.12.9999

# Names are printed as UTF-8; the week is the ISO week with its own year.
expect 0 $'Montag\n' "" date weekday 01.01.2024
expect 0 $'Sonntag\n' "" date weekday 31.12.2023
expect 0 $'Di, 05. M\xc3\xa4rz 2024 (M\xc3\xa4r, Tag 065)\n' "" date format 05.03.2024 "%a, %d. %B %Y (%b, Tag %j)"
expect 0 $'\xc3\xa4 %Q 24\n' "" date format 05.03.2024 $'\xc3\xa4 %Q %y'
expect 0 $'2020-W53\n' "" date week 31.12.2020
expect 0 $'2020-W53\n' "" date week 01.01.2021
expect 0 $'2021-W01\n' "" date week 04.01.2021
expect 0 $'2025-W01\n' "" date week 31.12.2024

# Date texts that are not days of the calendar, or not DD.MM.YYYY.
for text in 29.02.2023 31.04.2024 00.01.2024 01.13.2024 01.01.0000 1.1.2024 2024-01-01 "01.01.2024 " ""; do
    expect 1 "" "tovu: date: '$text' is not a date (DD.MM.YYYY)"$'\n' date weekday "$text"
done
expect 1 "" $'tovu: date: \'x\' is not a date (DD.MM.YYYY)\n' date diff 01.01.2024 x
for count in x 1.5 - "" "1 "; do
    expect 1 "" "tovu: date: '$count' is not a whole number"$'\n' date add 01.01.2024 "$count" days
done

# The command line itself is wrong.
hint=$'\nTry \'tovu date --help\'.\n'
expect_status 0 date --help
expect 2 "" "tovu: date: 'today', 'add', 'diff', 'weekday', 'format' or 'week' expected$hint" date
expect 2 "" "tovu: date: unknown sub-command 'yesterday'$hint" date yesterday
expect 2 "" "tovu: date: unknown unit 'weeks' (days, months or years)$hint" date add 01.01.2024 1 weeks
expect 2 "" "tovu: date: DATE, N and days, months or years expected$hint" date add 01.01.2024 1
expect 2 "" "tovu: date: two DATEs expected$hint" date diff 01.01.2024
expect 2 "" "tovu: date: DATE expected$hint" date week
expect 2 "" "tovu: date: DATE and FORMAT expected$hint" date format 01.01.2024
expect 2 "" "tovu: date: unexpected argument 'b'$hint" date today a b
expect 2 "" "tovu: date: unexpected argument 'x'$hint" date weekday 01.01.2024 x
finish

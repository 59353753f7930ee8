# lib: loading real libraries by their equivalent names, symbols, versions.
. "$TOVU_TEST_SOURCE/cli.sh"

expect 0 $'libm.so.6: cos found\n' "" lib symbol libm.so.6 cos
expect 1 "" $'Symbol \'nosuch\' konnte in Shared Library \'libm.so.6\' nicht gefunden werden.\ntovu: lib: libm.so.6 does not export \'nosuch\'\n' \
    lib symbol libm.so.6 nosuch
expect 1 "" $'Shared Library \'/nowhere/libx.so\' konnte nicht geladen werden.\nRessource \'/nowhere/libx.so\' kann nicht geladen werden.\ntovu: lib: \'/nowhere/x\' cannot be loaded\n' \
    lib symbol /nowhere/x f
for name in x x.dll x.dylib libx.so; do
    expect 0 $'libx.so\n' "" lib name $name
done
expect 0 $'x.so\n' "" lib name x.so
expect 0 $'X.so\n' "" lib name X.SO
plain=$scratch/plain.txt
: >"$plain"
# A file without version information is a failure, not a version.
expect 1 "" "tovu: lib: $plain: no version information (missing, or a file without a version)"$'\n' lib version "$plain"
expect 1 "" $'tovu: lib: /nonexistent: no version information (missing, or a file without a version)\n' lib version /nonexistent
expect 0 $'product version: 6\nfile version: 6\n' "" lib version "$(ldconfig -p 2>/dev/null | grep -m1 -o '/[^ ]*/libm\.so\.6$' || echo /lib/x86_64-linux-gnu/libm.so.6)"
expect 2 "" $'tovu: lib: missing argument\nTry \'tovu lib --help\'.\n' lib symbol libm.so.6
finish

# lib: loading real libraries by their equivalent names, symbols, versions.
. "$TOVU_TEST_SOURCE/cli.sh"

if [ -n "${TOVU_TEST_WINDOWS:-}" ]; then
    m=msvcrt.dll nowhere='\nowhere\libx.dll'
else
    m=libm.so.6 nowhere=/nowhere/libx.so
fi
expect 0 "$m: cos found"$'\n' "" lib symbol $m cos
expect 1 "" "Symbol 'nosuch' konnte in Shared Library '$m' nicht gefunden werden."$'\n'"tovu: lib: $m does not export 'nosuch'"$'\n' \
    lib symbol $m nosuch
expect 1 "" "Shared Library '$nowhere' konnte nicht geladen werden."$'\n'"Ressource '$nowhere' kann nicht geladen werden."$'\n'"tovu: lib: '/nowhere/x' cannot be loaded"$'\n' \
    lib symbol /nowhere/x f
if [ -n "${TOVU_TEST_WINDOWS:-}" ]; then
    for name in x x.dylib libx.so; do
        expect 0 $'libx.dll\n' "" lib name $name
    done
    expect 0 $'x.dll\n' "" lib name x.dll
    expect 0 $'libX.dll\n' "" lib name X.SO
else
    for name in x x.dll x.dylib libx.so; do
        expect 0 $'libx.so\n' "" lib name $name
    done
    expect 0 $'x.so\n' "" lib name x.so
    expect 0 $'X.so\n' "" lib name X.SO
    expect 0 $'product version: 6\nfile version: 6\n' "" lib version "$(ldconfig -p 2>/dev/null | grep -m1 -o '/[^ ]*/libm\.so\.6$' || echo /lib/x86_64-linux-gnu/libm.so.6)"
fi
plain=$scratch/plain.txt
: >"$plain"
# A file without version information is a failure, not a version.
expect 1 "" "tovu: lib: $plain: no version information (missing, or a file without a version)"$'\n' lib version "$plain"
expect 1 "" $'tovu: lib: /nonexistent: no version information (missing, or a file without a version)\n' lib version /nonexistent
expect 2 "" $'tovu: lib: missing argument\nTry \'tovu lib --help\'.\n' lib symbol $m
finish

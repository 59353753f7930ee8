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
    expect 0 $'X.so\n' "" lib name X.SO
fi
plain=$scratch/plain.txt
: >"$plain"
expect 0 "product version: $plain nicht gefunden oder kein Versionsinfoblock"$'\n'"file version: $plain nicht gefunden oder kein Versionsinfoblock"$'\n' "" \
    lib version "$plain"
expect 2 "" $'tovu: lib: missing argument\nTry \'tovu lib --help\'.\n' lib symbol $m
finish

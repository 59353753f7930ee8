# ini and props: reading, setting (which saves), listing, terminal text, refusals.
. "$TOVU_TEST_SOURCE/cli.sh"
cd "$scratch"

expect 0 "" "" ini set app.ini SERVER.PORT 8080
expect 0 "" "" ini set app.ini SERVER.CITY "Köln"
expect 0 "" "" ini set app.ini DB.USER me
expect 0 "" "" ini set app.ini SERVER.PORT 8081
printf '[SERVER]\r\nPORT=8081\r\nCITY=K\366ln\r\n[DB]\r\nUSER=me\r\n' >want.ini
cmp -s app.ini want.ini || { echo "FAILED: saved bytes"; od -c app.ini; failures=$((failures + 1)); }

expect 0 $'Köln\n' "" ini get app.ini SERVER.CITY
expect 0 $'SERVER.PORT=8081\nSERVER.CITY=Köln\nDB.USER=me\n' "" ini list app.ini
expect 0 $'DB.USER=me\n' "" ini list app.ini DB
expect 0 $'SERVER\nDB\n' "" ini sections app.ini
expect 1 "" $'tovu: ini: app.ini: no value for \'DB.PASSWORD\'\n' ini get app.ini DB.PASSWORD
expect 1 "" $'tovu: ini: missing.ini: cannot be opened\n' ini get missing.ini A.B
expect 2 "" $'tovu: ini: \'PORT\' is not of the form SECTION.KEY\nTry \'tovu ini --help\'.\n' ini get app.ini PORT
expect 2 "" $'tovu: ini: usage: set FILE SECTION.KEY VALUE\nTry \'tovu ini --help\'.\n' ini set app.ini A.B
expect 2 "" $'tovu: ini: unknown action \'drop\'\nTry \'tovu ini --help\'.\n' ini drop app.ini

# Windows-1252 bytes that are not UTF-8 pass through as they are (Wine cannot
# pass such an argument to a Windows program).
if [ -z "${TOVU_TEST_WINDOWS:-}" ]; then
    expect 0 "" "" ini set app.ini DB.NAME $'M\374nchen'
    expect 0 $'München\n' "" ini get app.ini DB.NAME
fi

# props: the same model; .properties files are read but never written.
printf 'A.B=1\r\n# A.C=2\r\nA.D=_##undefined##_\r\n' >p.properties
expect 0 $'1\n' "" props get p.properties A.B
expect 1 "" $'tovu: props: p.properties: no value for \'A.D\'\n' props get p.properties A.D
expect 1 "" $'Fehler beim Schreiben der Properties Datei: p.properties\ntovu: props: p.properties: files of this kind are not written\n' \
    props set p.properties A.B 2
expect 0 "" "" props set conf.ini X.Y z
expect 0 $'X.Y=z\n' "" props list conf.ini
finish

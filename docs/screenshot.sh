#!/bin/sh
# One-off check of the generated API reference in a real browser: renders the
# main page and the PropertiesService page in headless Chromium and keeps the
# screenshots. Not part of CI (it needs `apt-get install chromium`).
# Arguments: <build dir> <folder for the screenshots>
set -eu
html=$(cd "$1/docs/html" 2>/dev/null && pwd) || { echo "no $1/docs/html: build the docs target first" >&2; exit 1; }
shots=$2
command -v chromium >/dev/null || { echo "no chromium: skipped"; exit 77; }
mkdir -p "$shots"
page=$html/classPropertiesService.html
for file in "$html/index.html" "$page"; do
    name=$(basename "$file" .html)
    chromium --headless --no-sandbox --disable-gpu --window-size=1280,1400 \
        --screenshot="$shots/$name.png" "file://$file" >/dev/null 2>&1
    test -s "$shots/$name.png" || { echo "no screenshot of $file" >&2; exit 1; }
    echo "$shots/$name.png"
done

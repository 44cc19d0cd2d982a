#!/usr/bin/env bash
# The picture sheet of the new project: every picture that index.html shows is there and is a
# PNG of some size, for both languages: 8 input planes (climate in three scopes), 5 output
# planes, the report window, the enlarged temperature course and 8 printed pages each.
#   bildbogen_test.sh VELMARIS-BILDBOGEN SOURCE-TREE
set -euo pipefail
programm=$1
quelle=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

"$quelle/tools/bildbogen.sh" --programm "$programm" "$tmp/bogen" >/dev/null
index=$tmp/bogen/index.html
[ -s "$index" ] || { echo "no index.html"; exit 1; }
bilder=$(grep -o 'img src="[^"]*"' "$index" | sed 's/img src="//; s/"$//')
fehler=0
for sprache in d e; do
    anzahl=$(grep -c "^${sprache}_" <<<"$bilder" || true)
    if [ "$anzahl" -ne 23 ]; then
        echo "$anzahl pictures in $sprache, not 23"
        fehler=1
    fi
done
while IFS= read -r bild; do
    datei=$tmp/bogen/$bild
    if [ ! -s "$datei" ]; then
        echo "missing or empty: $bild"
        fehler=1
    elif [ "$(head -c 8 "$datei" | od -An -tx1 | tr -d ' \n')" != "89504e470d0a1a0a" ]; then
        echo "not a PNG: $bild"
        fehler=1
    elif [ "$(stat -c %s "$datei")" -lt 2000 ]; then
        echo "too small to show a plane or page: $bild"
        fehler=1
    fi
done <<<"$bilder"
# Nothing but the pictures and the index is left.
if [ "$(find "$tmp/bogen" -type f | wc -l)" -ne "$(($(wc -l <<<"$bilder") + 1))" ]; then
    echo "other files than the pictures and the index in the folder"
    fehler=1
fi
exit $fehler

#!/usr/bin/env bash
# The picture sheet of a project: every input and output plane (the climate plane in its three
# scopes), the report window, the enlarged temperature course and every printed page, in German
# and in English, as PNG files in FOLDER with FOLDER/index.html showing them side by side.
#   tools/bildbogen.sh [--programm VELMARIS-BILDBOGEN] FOLDER [PROJECT.vel]
# Without a project the new project is shown. Without --programm the executable of build/release
# is built (scripts/run.sh sets that build up). Runs without a display; the printed pages go
# from PDF to PNG through pdftoppm (poppler-utils, installed by scripts/install-deps.sh).
set -euo pipefail
quelle=$(cd "$(dirname "$0")/.." && pwd)

programm=
if [ "${1:-}" = "--programm" ]; then
    programm=$2
    shift 2
fi
if [ $# -lt 1 ] || [ $# -gt 2 ]; then
    echo "usage: tools/bildbogen.sh [--programm VELMARIS-BILDBOGEN] FOLDER [PROJECT.vel]" >&2
    exit 1
fi
if [ -z "$programm" ]; then
    if [ ! -d "$quelle/build/release" ]; then
        echo "no build in $quelle/build/release: run scripts/run.sh once first" >&2
        exit 1
    fi
    cmake --build "$quelle/build/release" --target velmaris-bildbogen >/dev/null
    programm=$quelle/build/release/tools/bildbogen/velmaris-bildbogen
fi
ordner=$1
mkdir -p "$ordner"

QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} "$programm" "$@"

# Each page of a language's PDF becomes the PNG that the index names (LANGUAGE_seiteN.png).
for sprache in d e; do
    pdf=$ordner/${sprache}_seiten.pdf
    seiten=$(pdfinfo "$pdf" | sed -n 's/^Pages: *//p')
    for ((n = 1; n <= seiten; n++)); do
        pdftoppm -png -r 100 -f "$n" -l "$n" -singlefile "$pdf" "$ordner/${sprache}_seite$n"
    done
    rm -f "$pdf"
done
echo "$(cd "$ordner" && pwd)/index.html"

#!/usr/bin/env bash
# Rebuilds the station files of klima/ from the staged climate sources with the program's own
# import: every line of tools/klima_quellen.txt becomes one "velmaris-cli import".
#
#   tools/klima_erzeugen.sh [VELMARIS-CLI] [CLIMATE-SOURCES]
#
# Defaults: the velmaris-cli of scripts/run.sh (build/release) or of scripts/test.sh (build/test),
# and ../shared/climate-sources beside the checkout.
set -euo pipefail
cd "$(dirname "$0")/.."

cli=${1:-}
if [[ -z $cli ]]; then
    for kandidat in build/release/app/velmaris-cli build/test/app/velmaris-cli; do
        if [[ -x $kandidat ]]; then
            cli=$kandidat
            break
        fi
    done
    cli=${cli:-build/release/app/velmaris-cli}
fi
quellen=${2:-../shared/climate-sources}
if [[ ! -x $cli ]]; then
    echo "klima_erzeugen: no velmaris-cli at $cli (build it first: scripts/run.sh or scripts/test.sh)" >&2
    exit 1
fi
if [[ ! -d $quellen ]]; then
    echo "klima_erzeugen: no climate sources at $quellen" >&2
    exit 1
fi

anzahl=0
while IFS='|' read -r name quelle ort land weitere; do
    [[ -z $name || $name == \#* ]] && continue
    # shellcheck disable=SC2086 # the further arguments are split on purpose
    "$cli" import "$quellen/$quelle" --name "$name" --ort "$ort" --land "$land" \
        --klima klima --ueberschreiben $weitere >/dev/null
    anzahl=$((anzahl + 1))
done < tools/klima_quellen.txt
echo "klima_erzeugen: $anzahl station files written to klima/"

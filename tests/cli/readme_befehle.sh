#!/usr/bin/env bash
# Every velmaris-cli form that the README shows stands as written in the program's own usage, and
# runs with its placeholders filled in and its optional parts left out (the station folder kept,
# so that nothing is written into the delivered one). Each command's --help shows its own usage.
#   readme_befehle.sh VELMARIS-CLI SOURCE-TREE
set -euo pipefail
cli=$1
quelle=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cp -r "$quelle/klima" "$tmp/klima"
"$cli" save "$tmp/projekt.vel" --klima "$tmp/klima"

hilfe=$("$cli" --help)
fehler=0
formen=$(sed -n 's/^    velmaris-cli //p' "$quelle/README.md" | sort -u)
[ -n "$formen" ] || { echo "no velmaris-cli form found in the README"; exit 1; }
while IFS= read -r form; do
    if ! grep -qF -- "velmaris-cli $form" <<<"$hilfe"; then
        echo "README form not in velmaris-cli --help: $form"
        fehler=1
    fi
    befehl=${form%% *}
    if ! "$cli" "$befehl" --help | grep -qF -- "velmaris-cli $form"; then
        echo "README form not in velmaris-cli $befehl --help: $form"
        fehler=1
    fi
    aufruf=$(sed -E 's/\[--klima DIR\]/--klima DIR/; s/ \[[^]]*\]//g' <<<"$form")
    aufruf=${aufruf//PROJECT.vel/$tmp/projekt.vel}
    aufruf=${aufruf//OUT/$tmp/aus}
    aufruf=${aufruf//DIR/$tmp/klima}
    aufruf=${aufruf//SOURCE/$quelle/tests/daten/DEU_TRYregion01_Bremerhaven_TRY2015_535591085872_Jahr.dat}
    aufruf=${aufruf//NAME/readme}
    aufruf=${aufruf//PLACE/Bremerhaven}
    aufruf=${aufruf//COUNTRY/Deutschland}
    aufruf=${aufruf//CODE/54290}
    aufruf=${aufruf//X Y/100 150}
    # shellcheck disable=SC2086 # the filled-in form is split into its words on purpose
    if ! "$cli" $aufruf >"$tmp/ausgabe" 2>&1; then
        echo "README form failed: velmaris-cli $aufruf"
        cat "$tmp/ausgabe"
        fehler=1
    fi
done <<<"$formen"
exit $fehler

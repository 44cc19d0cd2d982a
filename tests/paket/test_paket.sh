#!/usr/bin/env bash
# The Debian package: built by cpack from this build's install rules, its control fields and file
# list checked, unpacked without root, and its command run from the unpacked tree by a user with a
# new home who cannot write the installed data folder.
# Arguments: the build folder, the source folder.
set -euo pipefail
build=$1
quelle=$2
arbeit=$(mktemp -d)
trap 'chmod -R u+w "$arbeit"; rm -rf "$arbeit"' EXIT

fehler() {
    echo "FAIL: $*" >&2
    exit 1
}

cpack -G DEB --config "$build/CPackConfig.cmake" -B "$arbeit/paket" >"$arbeit/cpack.log" ||
    fehler "cpack: $(cat "$arbeit/cpack.log")"
deb=$(echo "$arbeit"/paket/velmaris_*.deb)
[ -f "$deb" ] || fehler "no package in $arbeit/paket"

[ "$(dpkg-deb -f "$deb" Package)" = velmaris ] || fehler "Package field"
[ "$(dpkg-deb -f "$deb" Section)" = education ] || fehler "Section field"
abh=$(dpkg-deb -f "$deb" Depends)
namen=$(tr ',' '\n' <<<"$abh" | sed 's/^ *//; s/ .*//')
for d in libqt6widgets6 libqt6gui6 libqt6core6 libstdc++6 libc6 qt6-qpa-plugins \
    qt6-translations-l10n fonts-liberation; do
    grep -qxF "$d" <<<"$namen" || fehler "Depends lacks $d: $abh"
done

liste=$(dpkg-deb -c "$deb" | awk '{print $6}')
for f in usr/bin/velmaris usr/bin/velmaris-cli usr/libexec/velmaris/velmaris-drucken \
    usr/share/applications/velmaris.desktop \
    usr/share/icons/hicolor/scalable/apps/velmaris.svg \
    usr/share/icons/hicolor/scalable/mimetypes/application-x-velmaris-project.svg \
    usr/share/mime/packages/velmaris.xml \
    usr/share/metainfo/org.velmaris.Velmaris.metainfo.xml \
    usr/share/man/man1/velmaris.1.gz usr/share/man/man1/velmaris-cli.1.gz \
    usr/share/doc/velmaris/copyright usr/share/doc/velmaris/changelog.gz \
    usr/share/velmaris/klima/trier.met usr/share/velmaris/klima/plz.txt \
    usr/share/velmaris/klima/QUELLEN.txt usr/share/velmaris/Grafiken/deutsch.bmp \
    usr/share/velmaris/help/velmaris_d.html usr/share/velmaris/help/velmaris_e.html; do
    grep -qx "\./$f" <<<"$liste" || fehler "the package lacks /$f"
done
ausserhalb=$(grep -v '^\./usr/' <<<"$liste" | grep -vx '\./' || true)
[ -z "$ausserhalb" ] || fehler "files outside /usr: $ausserhalb"
if grep -q typ.dat <<<"$liste"; then fehler "the package delivers a language file"; fi

dpkg-deb -x "$deb" "$arbeit/wurzel"
grep -qx 'MimeType=application/x-velmaris-project;' \
    "$arbeit/wurzel/usr/share/applications/velmaris.desktop" || fehler "desktop entry MimeType"
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net \
        "$arbeit/wurzel/usr/share/metainfo/org.velmaris.Velmaris.metainfo.xml" >/dev/null ||
        fehler "appstreamcli validate"
fi
chmod -R a-w "$arbeit/wurzel"

export HOME="$arbeit/heim"
mkdir "$HOME"
unset XDG_CONFIG_HOME XDG_DATA_HOME
cli="$arbeit/wurzel/usr/bin/velmaris-cli"
"$cli" calc --new >"$arbeit/neu.json" || fehler "calc --new from the unpacked tree"
grep -q '"velmaris-calc/1"' "$arbeit/neu.json" || fehler "calc --new printed no result"
# Printing runs in the program of its own in libexec.
"$cli" save "$arbeit/neu.vel" && "$cli" drucken "$arbeit/neu.vel" "$arbeit/neu.pdf" --seiten 1 ||
    fehler "drucken from the unpacked tree"
[ "$(head -c 5 "$arbeit/neu.pdf")" = "%PDF-" ] || fehler "drucken wrote no PDF"

# An import goes to the user's station folder, and the station lists show it with the delivered.
"$cli" import "$quelle/tests/daten/DEU_TRYregion01_Bremerhaven_TRY2015_535591085872_Jahr.dat" \
    --name eigene --ort "Bremerhaven eigen" >"$arbeit/import.log" 2>&1 ||
    fehler "import: $(cat "$arbeit/import.log")"
[ -f "$HOME/.local/share/velmaris/klima/eigene.met" ] || fehler "import not in the user's folder"
"$cli" klima stationen >"$arbeit/stationen.txt"
grep -q $'^eigene.met\tBremerhaven eigen' "$arbeit/stationen.txt" || fehler "own station not listed"
grep -q $'^trier.met\t' "$arbeit/stationen.txt" || fehler "delivered station not listed"
echo "package $(basename "$deb"): $(du -k "$deb" | cut -f1) KiB"

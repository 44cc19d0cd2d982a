#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need, where they are missing.
set -euo pipefail

pakete=(
    cmake ninja-build g++ pkg-config clang libclang-rt-14-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    qt6-base-dev libgl-dev fonts-liberation xvfb xauth
    qt6-translations-l10n dpkg-dev file appstream poppler-utils python3
)

fehlend=()
for p in "${pakete[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
        fehlend+=("$p")
    fi
done
[ ${#fehlend[@]} -eq 0 ] && exit 0

echo "Installing: ${fehlend[*]}"
als_root=()
if [ "$(id -u)" -ne 0 ]; then
    als_root=(sudo)
fi
"${als_root[@]}" apt-get update -q
DEBIAN_FRONTEND=noninteractive "${als_root[@]}" apt-get install -y -q --no-install-recommends "${fehlend[@]}"

#!/usr/bin/env bash
# Installs what is missing and builds the browser edition into build/web/ with the Debian
# emscripten toolchain: the libraries without Qt, velmaris-cli for Node.js
# (node build/web/velmaris-cli.mjs calc FILE --klima DIR), and the page in build/web/site/
# (served by scripts/web-serve.sh). Headless Chromium and the pinned driver of the browser
# tests come with it.
set -euo pipefail
cd "$(dirname "$0")/.."

pakete=(emscripten node-acorn cmake ninja-build python3 fonts-liberation chromium)
# A newer Node.js than Debian's may stand in for the nodejs package.
command -v node >/dev/null || pakete+=(nodejs)
command -v npm >/dev/null || pakete+=(npm)
fehlend=()
for p in "${pakete[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
        fehlend+=("$p")
    fi
done
if [ ${#fehlend[@]} -gt 0 ]; then
    echo "Installing: ${fehlend[*]}"
    als_root=()
    if [ "$(id -u)" -ne 0 ]; then
        als_root=(sudo)
    fi
    "${als_root[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${als_root[@]}" apt-get install -y -q --no-install-recommends \
        "${fehlend[@]}"
fi

# The toolchain's optimiser finds Debian's acorn only through NODE_PATH.
export NODE_PATH=/usr/share/nodejs${NODE_PATH:+:$NODE_PATH}
emcmake cmake -S . -B build/web -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELMARIS_GUI=OFF \
    -DVELMARIS_TESTS=OFF -DVELMARIS_BENCHMARKS=OFF -DVELMARIS_FUZZ=OFF >/dev/null
cmake --build build/web -j "$(nproc)" --target velmaris-cli velmaris-seite

# The browser tests' driver, pinned by tests/web/package-lock.json.
if [ ! -d tests/web/node_modules/puppeteer-core ]; then
    (cd tests/web && npm ci --no-audit --no-fund --ignore-scripts)
fi

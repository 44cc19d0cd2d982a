#!/usr/bin/env bash
# Installs what is missing, builds the programs optimised and packs them with their data, the
# desktop entry, the MIME type, the AppStream metainfo and the manual pages as a Debian package.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake -S . -B build/package -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELMARIS_TESTS=OFF \
    -DVELMARIS_BENCHMARKS=OFF >/dev/null
cmake --build build/package
(cd build/package && cpack -G DEB >/dev/null)
ls build/package/velmaris_*.deb

#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELMARIS_TESTS=OFF \
    -DVELMARIS_BENCHMARKS=OFF >/dev/null
cmake --build build/release
exec build/release/app/velmaris-cli calc --new "$@"

#!/usr/bin/env bash
# Installs what is missing, builds the program and starts the desktop program. Without a display
# it says so and shows the headless calculation of the new project instead.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELMARIS_TESTS=OFF \
    -DVELMARIS_BENCHMARKS=OFF >/dev/null
cmake --build build/release
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display (DISPLAY and WAYLAND_DISPLAY are empty): showing the headless calculation" \
        "of the new project instead of the desktop program." >&2
    exec build/release/app/velmaris-cli calc --new
fi
exec build/release/app/velmaris "$@"

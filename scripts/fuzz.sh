#!/usr/bin/env bash
# Long runs of the fuzz targets: scripts/fuzz.sh [SECONDS] [TARGET...]
# Builds the fuzz build of scripts/test.sh (clang, libFuzzer, AddressSanitizer and
# UndefinedBehaviorSanitizer) and runs each target, or those named, for SECONDS (600 by default)
# one after another, on a corpus kept in build/fuzz-korpus/TARGET between runs. The budget is
# SECONDS times the number of targets: 8 targets, 80 minutes by default. Inputs that crash are
# kept in build/fuzz-funde/. Prints each target's coverage (cov: edges, ft: features) and
# executions at the end.
set -euo pipefail
cd "$(dirname "$0")/.."

sekunden=${1:-600}
shift || true

scripts/install-deps.sh
CC=clang CXX=clang++ cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DVELMARIS_WERROR=ON -DVELMARIS_SANITIZE=ON -DVELMARIS_FUZZ=ON -DVELMARIS_TESTS=OFF \
    -DVELMARIS_BENCHMARKS=OFF -DVELMARIS_GUI=OFF >/dev/null
cmake --build build/fuzz -j "$(nproc)"

mkdir -p build/fuzz-funde
status=0
while read -r ziel max_len; do
    if [ $# -gt 0 ] && [[ ! " $* " == *" $ziel "* ]]; then
        continue
    fi
    korpus=build/fuzz-korpus/$ziel
    mkdir -p "$korpus"
    protokoll=build/fuzz-funde/$ziel.log
    if ! ASAN_OPTIONS=detect_leaks=1 "build/fuzz/fuzz/$ziel" -max_total_time="$sekunden" \
        -max_len="$max_len" -timeout=20 -print_final_stats=1 \
        -artifact_prefix="build/fuzz-funde/$ziel-" "$korpus" "build/fuzz/fuzz/${ziel}_saat" \
        >"$protokoll" 2>&1; then
        echo "$ziel: FAULT, see $protokoll"
        status=1
        continue
    fi
    ende=$(grep -E $'^#[0-9]+\tDONE' "$protokoll" | tail -n 1)
    echo "$ziel: $ende"
done <build/fuzz/fuzz/ziele.txt
exit $status

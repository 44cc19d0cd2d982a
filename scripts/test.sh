#!/usr/bin/env bash
# Installs what is missing, then builds and runs all tests: an optimised build with warnings as
# errors, a build under AddressSanitizer and UndefinedBehaviorSanitizer, and short runs of the
# fuzz targets (clang, libFuzzer).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
jobs=$(nproc)

cmake -S . -B build/test -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELMARIS_WERROR=ON >/dev/null
cmake --build build/test -j "$jobs"
ctest --test-dir build/test --output-on-failure -j "$jobs"

cmake -S . -B build/asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVELMARIS_WERROR=ON \
    -DVELMARIS_SANITIZE=ON -DVELMARIS_BENCHMARKS=OFF >/dev/null
cmake --build build/asan -j "$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    ctest --test-dir build/asan --output-on-failure -j "$jobs"

CC=clang CXX=clang++ cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DVELMARIS_WERROR=ON -DVELMARIS_SANITIZE=ON -DVELMARIS_FUZZ=ON -DVELMARIS_TESTS=OFF \
    -DVELMARIS_BENCHMARKS=OFF -DVELMARIS_GUI=OFF >/dev/null
cmake --build build/fuzz -j "$jobs"
ctest --test-dir build/fuzz --output-on-failure -j "$jobs"

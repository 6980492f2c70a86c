#!/usr/bin/env bash
# Configures a preset where that is needed, then builds it. Usage: scripts/build.sh dev|release|benchmarks|threads|fuzz
set -euo pipefail

cd "$(dirname "$0")/.."
preset=$1
folder=build/$preset

if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi
if [ ! -f "$folder/build.ninja" ] || [ CMakePresets.json -nt "$folder/build.ninja" ]; then
    mkdir -p "$folder"
    if ! cmake --preset "$preset" >"$folder/configure.log" 2>&1; then
        cat "$folder/configure.log" >&2
        exit 1
    fi
fi
cmake --build --preset "$preset"

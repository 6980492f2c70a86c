#!/usr/bin/env bash
# Formats every C++ file; with --check only lists those that are not formatted. One version of the
# formatter for everybody, because versions differ in small things.
set -euo pipefail

cd "$(dirname "$0")/.."
mode=(-i)
[ "${1:-}" != --check ] || mode=(--dry-run -Werror)
folders=()
for folder in src tests benchmarks; do
    [ ! -d "$folder" ] || folders+=("$folder")
done
find "${folders[@]}" \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format-19 "${mode[@]}"

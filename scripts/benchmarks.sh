#!/usr/bin/env bash
# Builds and runs the benchmarks; arguments are passed to each of them. What they print is ratios.
set -euo pipefail

cd "$(dirname "$0")/.."
scripts/packages.sh build run benchmark
scripts/build.sh benchmarks

display=()
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    scripts/packages.sh display
    display=(xvfb-run -a -s "-screen 0 1400x1000x24")
fi
for program in build/benchmarks/benchmarks/bench_*; do
    [ ! -x "$program" ] || [ -d "$program" ] || "${display[@]}" "$program" "$@"
done

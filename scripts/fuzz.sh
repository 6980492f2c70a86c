#!/usr/bin/env bash
# Searches for files that the program and an independent reader read differently.
# Usage: scripts/fuzz.sh [SECONDS for each target]; what is found stays in build/fuzz/found.
set -euo pipefail

cd "$(dirname "$0")/.."
seconds=${1:-60}
scripts/build.sh fuzz

fuzz() {
    local name=$1 corpus=$2 work=build/fuzz/corpus/$2
    mkdir -p "$work" build/fuzz/found
    echo "fuzz_$name:"
    "build/fuzz/tests/fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 -max_len=8192 \
        -print_final_stats=1 -artifact_prefix="build/fuzz/found/$name-" "${@:3}" "$work" "tests/fuzz/corpus/$corpus" \
        >"build/fuzz/$name.log" 2>&1 || { tail -n 60 "build/fuzz/$name.log"; exit 1; }
    grep -E '^stat::(number_of_executed_units|average_exec_per_sec|peak_rss_mb)' "build/fuzz/$name.log"
}

fuzz DocumentReader reader -dict=tests/fuzz/reader.dict
fuzz Base64 base64
fuzz CalendarReader calendar -dict=tests/fuzz/calendar.dict

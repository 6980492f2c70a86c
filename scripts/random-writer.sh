#!/usr/bin/env bash
# Writes at random in the real views and in a model of the page, under the sanitizers, and compares the two. A failure
# is shrunk and printed with its seed. A fifth of a long time goes to random keys in the real window of the release
# build.
# Usage: scripts/random-writer.sh [SECONDS [SEED]]
set -euo pipefail

cd "$(dirname "$0")/.."
seconds=${1:-60} seed=${2:-}
program=build/dev/tests/writer/pelko_writer
[ -x "$program" ] || scripts/build.sh dev

outside=0
if [ "$seconds" -ge 120 ]; then outside=$((seconds / 5)); fi
status=0
ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software \
    "$program" --seconds "$((seconds - outside))" --seeds "${seed:-1,2,3,new}" || status=1

# One start of the program takes so many seconds at most.
released=build/release/pelko
[ "$outside" -eq 0 ] || [ -x "$released" ] || scripts/build.sh release
while [ "$outside" -gt 0 ]; do
    round=$((outside < 300 ? outside : 300))
    /usr/bin/python3 tests/journeys/random_keys.py "$released" "$round" ${seed:+"$seed"} || status=1
    outside=$((outside - round))
done
exit "$status"

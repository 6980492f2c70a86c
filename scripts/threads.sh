#!/usr/bin/env bash
# Runs what fetches calendars and what settles saves on a thread of its own under the thread sanitizer.
set -euo pipefail

cd "$(dirname "$0")/.."
scripts/build.sh threads
export QT_QPA_PLATFORM=offscreen
export TSAN_OPTIONS="suppressions=tests/known_races.supp:external_symbolizer_path=/usr/bin/llvm-symbolizer-19"
for name in tst_CalendarFolders tst_EvolutionCalendars tst_EvolutionDataServer tst_LocalDocumentFile; do
    timeout 300 build/threads/tests/tests_threads "$name"
done

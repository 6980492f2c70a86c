#!/usr/bin/env bash
# Runs the tests of the worker threads of calendars and saves under the thread sanitizer.
set -euo pipefail

cd "$(dirname "$0")/.."
scripts/build.sh threads
export QT_QPA_PLATFORM=offscreen

# check NAME [OPTION...]
check() {
    local name=$1
    shift
    local options=(suppressions=tests/known_races.supp external_symbolizer_path=/usr/bin/llvm-symbolizer-19 "$@")
    TSAN_OPTIONS="${options[*]}" timeout 300 build/threads/tests/tests_threads "$name" -silent
}

# Only Pelko's own accesses count: of Qt's, the sanitizer sees some and none of the locks around them.
for name in tst_CalendarFolders tst_EvolutionCalendars tst_EvolutionDataServer; do
    check "$name" ignore_noninstrumented_modules=1
done
# A thread of std::async begins in a library, and there Pelko's accesses would not count either.
check tst_LocalDocumentFile

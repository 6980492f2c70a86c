#!/usr/bin/env bash
# Runs qmllint over the QML module of a build folder and fails on any warning, because versions of qmllint
# disagree about whether a warning is worth an exit code. Usage: scripts/lint-qml.sh build/dev
set -euo pipefail

status=0
output=

lint() {
    status=0
    output=$(cmake --build "$1" --target all_qmllint 2>&1) || status=$?
}

# qmllint 6.4 crashes on clean sources once in a great while; only that is worth another try.
for _ in 1 2 3; do
    lint "$1"
    grep -q 'Segmentation fault' <<<"$output" || break
done
if [ "$status" -ne 0 ] || grep -qE '^(Warning|Error|Info): ' <<<"$output"; then
    printf '%s\n' "$output"
    exit 1
fi

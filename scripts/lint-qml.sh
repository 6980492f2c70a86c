#!/usr/bin/env bash
# Runs qmllint over the QML module of a build folder and fails on any warning, because versions of qmllint
# disagree about whether a warning is worth an exit code. Usage: scripts/lint-qml.sh build/dev
set -euo pipefail

output=$(cmake --build "$1" --target all_qmllint 2>&1) && status=0 || status=$?
findings=$(grep -E '^(Warning|Error|Info): ' <<<"$output" || true)
if [ "$status" -ne 0 ] || [ -n "$findings" ]; then
    printf '%s\n' "$output"
    exit 1
fi

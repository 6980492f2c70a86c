#!/usr/bin/env bash
# Builds the release with warnings as errors, without unity builds, and checks the hardening of the programs.
set -euo pipefail

cd "$(dirname "$0")/.."
scripts/build.sh release-check

fail() {
    echo "$1: $2" >&2
    exit 1
}

# expect PROGRAM WHAT PATTERN READELF_OPTIONS
expect() {
    readelf --wide "$4" "$1" | grep -E "$3" >/dev/null || fail "$1" "no $2"
}

for program in build/release-check/pelko build/release-check/pelko-window; do
    expect $program "position-independent code" 'Type: +DYN' --file-header
    expect $program "read-only relocations (RELRO)" 'GNU_RELRO' --program-headers
    expect $program "binding at start (BIND_NOW)" 'BIND_NOW|FLAGS.*NOW' --dynamic
    expect $program "stack protector" '__stack_chk_fail' --dyn-syms
    expect $program "checked functions (FORTIFY_SOURCE)" '__[a-z]+_chk' --dyn-syms
    if [ "$(uname -m)" = x86_64 ]; then
        # Debian's start files carry no mark of it, so the linker marks no program; the code has it all the same.
        objdump --disassemble=main $program | grep endbr64 >/dev/null || fail $program "no control-flow protection (CET)"
    fi
    # The stack must not be executable.
    ! readelf --wide --program-headers $program | grep -E "GNU_STACK.*RWE" >/dev/null || fail $program "executable stack"
    ! readelf --wide --dyn-syms $program | grep '__assert_fail\|qt_assert' >/dev/null || fail $program "assertions are compiled in"
done

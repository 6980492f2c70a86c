#!/usr/bin/env bash
# Starts a program on a virtual display, saves a picture of it once the launch card has gone, and ends everything.
# Usage: scripts/picture.sh picture.png program [argument ...]
set -euo pipefail

picture=$1
shift
work=$(mktemp -d)
server=
program=

end_all() {
    local child
    for child in $program $server; do
        kill "$child" 2>/dev/null || true
        wait "$child" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap end_all EXIT

# Polls a condition ten times a second until it holds or the seconds are over.
wait_until() {
    local left=$(($1 * 10))
    shift
    until "$@"; do
        left=$((left - 1))
        [ "$left" -gt 0 ] || return 1
        sleep 0.1
    done
}

server_is_ready() { [ -s "$work/number" ]; }
has_ended() { ! kill -0 "$program" 2>/dev/null; }
take() { import -silent -window root "$1" 2>/dev/null; }

colours() { identify -format %k "$@"; }

something_is_drawn() {
    has_ended && return 0
    take "$work/before.png" && [ "$(colours "$work/before.png")" -gt 1 ]
}

differing_pixels() {
    local count
    count=$(compare -metric AE "$1" "$2" null: 2>&1 || true)
    printf '%.0f' "${count%% *}"
}

# The card covers the menu button in the corner, which is of one colour until the card fades. Then the window has to
# come to rest: half a second that changes less than one pixel in two hundred, for flame and caret go on.
card_is_gone() {
    has_ended && return 0
    take "$work/before.png"
    [ "$(colours "$work/before.png[120x80+4+4]")" -gt 1 ] || return 1
    sleep 0.5
    take "$work/after.png"
    [ "$(differing_pixels "$work/before.png" "$work/after.png")" -lt 4000 ]
}

Xvfb -displayfd 3 -screen 0 1100x750x24 -nolisten tcp -noreset 3>"$work/number" 2>"$work/server.log" &
server=$!
if ! wait_until 20 server_is_ready; then
    cat "$work/server.log" >&2
    echo "The virtual display did not start." >&2
    exit 1
fi

DISPLAY=:$(cat "$work/number")
export DISPLAY
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$work}
QT_QPA_PLATFORM=xcb "$@" &
program=$!

if ! wait_until 60 something_is_drawn; then
    echo "The program drew nothing within a minute." >&2
    exit 1
fi
if ! wait_until 30 card_is_gone; then
    echo "The window did not come to rest; the picture shows how it stands." >&2
    take "$work/after.png"
fi
if has_ended; then
    wait "$program" || exit $?
    echo "The program ended before its picture could be taken." >&2
    exit 1
fi
mkdir -p "$(dirname "$picture")"
mv "$work/after.png" "$picture"

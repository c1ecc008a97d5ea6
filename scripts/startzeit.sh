#!/usr/bin/env bash
# Measures how long the desktop program takes from its start until its main window is mapped on
# a virtual X display, five times, and prints each time in milliseconds.
#   scripts/startzeit.sh [BUILD_DIR]     (default: build; needs Xvfb and xwininfo)
set -euo pipefail
wurzel=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-"$wurzel/build"}
programm="$build/src/qt/tabulon"

anzeige=:$((90 + RANDOM % 100))
Xvfb "$anzeige" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
trap 'kill "$xvfb" 2>/dev/null || true' EXIT
export DISPLAY=$anzeige
for _ in $(seq 50); do xwininfo -root >/dev/null 2>&1 && break; sleep 0.1; done

for lauf in 1 2 3 4 5; do
    dokumente=$(mktemp -d)
    start=$(date +%s%N)
    XDG_DOCUMENTS_DIR="$dokumente" "$programm" >/dev/null 2>&1 &
    pid=$!
    # The window counts as shown once X reports the window titled "Tabulon" as viewable.
    until xwininfo -name Tabulon 2>/dev/null | grep -q IsViewable; do
        if ! kill -0 "$pid" 2>/dev/null; then
            echo "startzeit.sh: the program ended before its window appeared" >&2
            exit 1
        fi
        sleep 0.005
    done
    ende=$(date +%s%N)
    kill "$pid"
    wait "$pid" 2>/dev/null || true
    rm -rf "$dokumente"
    echo "Lauf $lauf: $(((ende - start) / 1000000)) ms"
done

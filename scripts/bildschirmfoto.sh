#!/usr/bin/env bash
# Takes the pictures of the main window (with a stored random matrix and its protocol page) and
# of the help window under a virtual X display, at 1280 x 800, into docs/.
#   scripts/bildschirmfoto.sh [BUILD_DIR]     (default: build; needs xvfb-run)
set -euo pipefail
wurzel=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-"$wurzel/build"}
cmake --build "$build" --target tabulon_bildschirmfoto
xvfb-run -a -s "-screen 0 1280x800x24" "$build/tests/qt/tabulon_bildschirmfoto" \
    "$wurzel/docs/hauptfenster.png" "$wurzel/docs/hilfefenster.png"
echo "docs/hauptfenster.png, docs/hilfefenster.png"

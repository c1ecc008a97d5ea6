#!/usr/bin/env bash
# Takes the pictures of the desktop window under a virtual X display: the main window after
# inverting a 3 x 3 and an 8 x 8 matrix (with the protocol page of the inverse) and after the exact
# inverse of a 2 x 2 matrix, and the help window, at 1280 x 800 and at 1024 x 600, into the folder
# given; with SKALA2=1 also the 8 x 8 inverse at twice the scale (QT_SCALE_FACTOR=2 on a
# 2560 x 1600 screen).
#   [SKALA2=1] scripts/bildschirmfoto.sh [BUILD_DIR [FOLDER]]   (default: build, docs; needs
#   xvfb-run)
set -euo pipefail
wurzel=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-"$wurzel/build"}
ziel=${2:-"$wurzel/docs"}
cmake --build "$build" --target tabulon_bildschirmfoto >/dev/null
foto="$build/tests/qt/tabulon_bildschirmfoto"
mkdir -p "$ziel"

aufnahme() { # SCREEN_W SCREEN_H SCALE SCENE W H FILE
    QT_SCALE_FACTOR=$3 xvfb-run -a -s "-screen 0 $1x$2x24" "$foto" "$4" "$5" "$6" "$7"
    echo "$7"
}
aufnahme 1280 800 1 inverse3 1280 800 "$ziel/hauptfenster.png"
aufnahme 1280 800 1 hilfe 1280 800 "$ziel/hilfefenster.png"
aufnahme 1280 800 1 inverse8 1280 800 "$ziel/inverse8-1280x800.png"
aufnahme 1024 600 1 inverse8 1024 600 "$ziel/inverse8-1024x600.png"
aufnahme 1280 800 1 exakt 1280 800 "$ziel/exakt-inverse.png"
if [ "${SKALA2:-0}" = 1 ]; then
    aufnahme 2560 1600 2 inverse8 1280 800 "$ziel/inverse8-skala2.png"
fi

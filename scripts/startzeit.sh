#!/usr/bin/env bash
# Measures the desktop program's start: the time from starting the process until X maps the main
# window (median of RUNS starts) and its resident memory (VmRSS) two seconds after that, on a
# virtual X display; and the same for a bare Qt window with a table, in the same run, as the
# yardstick of what Qt itself needs.
#   scripts/startzeit.sh [BUILD_DIR [RUNS]]     (default: build, 9 runs)
# Needs: Xvfb (Debian: xvfb) and the xcb headers (libxcb1-dev) for the helper
# tabulon_fensterzeit; the build dir must have been configured with the Qt window. The measuring
# programs belong to the benchmarks: the script switches them on in BUILD_DIR (TABULON_BENCH),
# builds tabulon and the two measuring programs there and installs nothing.
set -euo pipefail
wurzel=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-"$wurzel/build"}
laeufe=${2:-9}

command -v Xvfb >/dev/null || { echo "startzeit.sh: needs Xvfb (Debian package xvfb)" >&2; exit 1; }
cmake "$build" -DTABULON_BENCH=ON >/dev/null
cmake --build "$build" --target tabulon tabulon_leeresfenster tabulon_fensterzeit >/dev/null || {
    echo "startzeit.sh: could not build the programs; tabulon_fensterzeit needs libxcb1-dev" >&2
    exit 1
}

anzeige=:$((90 + RANDOM % 100))
Xvfb "$anzeige" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
dokumente=$(mktemp -d)
laufzeit=$(mktemp -d)
trap 'kill "$xvfb" 2>/dev/null || true; rm -rf "$dokumente" "$laufzeit"' EXIT
export DISPLAY=$anzeige
for _ in $(seq 100); do [ -e "/tmp/.X11-unix/X${anzeige#:}" ] && break; sleep 0.05; done
export XDG_DOCUMENTS_DIR="$dokumente" XDG_RUNTIME_DIR="$laufzeit"

messen="$build/bench/messung/tabulon_fensterzeit"
# One start of each before measuring, so that both find the shared libraries and the font cache
# in the page cache alike.
"$messen" -n 1 -w 0 "$build/src/qt/tabulon" >/dev/null
"$messen" -n 1 -w 0 -t Leer "$build/bench/messung/tabulon_leeresfenster" >/dev/null

echo "Tabulon ($build):"
"$messen" -n "$laeufe" "$build/src/qt/tabulon"
echo "Bare Qt window with a table:"
"$messen" -n "$laeufe" -t Leer "$build/bench/messung/tabulon_leeresfenster"

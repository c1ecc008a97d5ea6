#!/usr/bin/env bash
# Builds Tabulon and starts the desktop program. Without a display (no X11 or Wayland), it runs
# the typical use through the script driver instead and prints its transcript.
set -euo pipefail
wurzel=$(cd "$(dirname "$0")/.." && pwd)
"$wurzel/scripts/einrichten.sh" "$wurzel/build"
if [ -x "$wurzel/build/src/qt/tabulon" ] && { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }; then
    exec "$wurzel/build/src/qt/tabulon" "$@"
fi
echo "No display found: running the typical use through tabulon-skript." >&2
exec "$wurzel/build/src/skript/tabulon-skript" --dokumente "$(mktemp -d)" \
    "$wurzel/docs/beispiele/typische-nutzung.skript"

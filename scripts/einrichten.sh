#!/usr/bin/env bash
# Installs what a fresh Debian 12 machine lacks for building and testing Tabulon, makes the
# German locale the tests switch to, then configures and builds the given build directory.
# Safe to run again: it installs only what is missing and rebuilds only what changed.
#   scripts/einrichten.sh BUILD_DIR [extra cmake arguments...]
set -euo pipefail

wurzel=$(cd "$(dirname "$0")/.." && pwd)
build=${1:?build directory}
shift

pakete=(build-essential cmake ninja-build googletest libgtest-dev libgmock-dev libbenchmark-dev
        qt6-base-dev qt6-translations-l10n locales clang libclang-rt-14-dev libgmp-dev
        libflint-dev libflint-arb-dev)

als_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

fehlend=()
for p in "${pakete[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        fehlend+=("$p")
    fi
done
if [ ${#fehlend[@]} -gt 0 ]; then
    echo "Installing: ${fehlend[*]}"
    als_root apt-get update -qq
    als_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${fehlend[@]}"
fi

# The number-text tests run under a German locale (decimal comma) and fail without it.
if ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
    echo "Generating the locale de_DE.UTF-8"
    als_root sed -i 's/^# *de_DE.UTF-8 UTF-8/de_DE.UTF-8 UTF-8/' /etc/locale.gen
    grep -q '^de_DE.UTF-8 UTF-8' /etc/locale.gen || echo 'de_DE.UTF-8 UTF-8' | als_root tee -a /etc/locale.gen >/dev/null
    als_root locale-gen >/dev/null
fi

cmake -S "$wurzel" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
cmake --build "$build" -j "$(nproc)"

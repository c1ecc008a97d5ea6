#!/usr/bin/env bash
# Builds Tabulon with every warning an error and runs all tests: unit tests, script
# transcripts and the desktop window's tests on Qt's offscreen platform. The benchmarks are built
# too (not run: scripts/benchmarks.sh does that), so they keep compiling without warnings.
set -euo pipefail
wurzel=$(cd "$(dirname "$0")/.." && pwd)
"$wurzel/scripts/einrichten.sh" "$wurzel/build" -DTABULON_WERROR=ON -DTABULON_BENCH=ON
cd "$wurzel/build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$(nproc)"

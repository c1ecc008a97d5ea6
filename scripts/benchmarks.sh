#!/usr/bin/env bash
# Builds the benchmarks in a RelWithDebInfo directory (default build-bench, or the first
# argument) and runs every bench_* with the median over five repetitions. Where octave-cli is
# installed, it also times Octave's loop A = inv(A)*B on an 8 x 8 matrix and prints the ratio of
# the n-fold term command's time per run of A^-1*B to Octave's time per iteration. Installs
# nothing.
#
# Octave iterates A = inv(A)*B with B = A*A, so A stays (up to rounding) the same diagonally
# dominant matrix as in bench/terme.cpp and the loop never meets a singular matrix.
set -euo pipefail
wurzel=$(cd "$(dirname "$0")/.." && pwd)
bau=${1:-$wurzel/build-bench}
ergebnisse="$bau/bench-ergebnisse"
wiederholungen=5
octaveIterationen=100000

cmake -S "$wurzel" -B "$bau" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTABULON_BENCH=ON \
    -DTABULON_QT=OFF >/dev/null
ziele=$(ninja -C "$bau" -t targets all | sed -n 's/^\(bench_[A-Za-z0-9_]*\): .*/\1/p' | sort -u)
if [ -z "$ziele" ]; then
    echo "Keine Benchmarks gefunden (Google Benchmark installiert?)." >&2
    exit 1
fi
# shellcheck disable=SC2086
ninja -C "$bau" -j2 $ziele >/dev/null
mkdir -p "$ergebnisse"

for ziel in $ziele; do
    echo "== $ziel"
    "$bau/bench/$ziel" --benchmark_repetitions="$wiederholungen" \
        --benchmark_report_aggregates_only=true \
        --benchmark_out="$ergebnisse/$ziel.json" --benchmark_out_format=json
done

# Seconds per run of the n-fold command, from the median entry of the JSON report.
proLauf=$(awk '
    /"name":/ { median = ($0 ~ /NfachAinversMalB.*_median"/) }
    median && /"pro_Lauf":/ { gsub(/[",]/, ""); print $2; exit }
' "$ergebnisse/bench_terme.json" 2>/dev/null || true)

if ! command -v octave-cli >/dev/null 2>&1; then
    echo "octave-cli ist nicht installiert: kein Vergleich mit Octave."
    exit 0
fi
if [ -z "$proLauf" ]; then
    echo "Keine Zeit je Lauf in bench_terme gefunden: kein Vergleich mit Octave." >&2
    exit 1
fi

octaveZeit=$(LC_ALL=C octave-cli --no-gui --norc --quiet --eval "
    warning('off', 'all');
    A = zeros(8);
    for i = 0:7
        for j = 0:7
            if i == j
                A(i + 1, j + 1) = 20 + i;
            else
                A(i + 1, j + 1) = (i + j) / 3;
            end
        end
    end
    B = A * A;
    n = $octaveIterationen;
    tic;
    for k = 1:n
        A = inv(A) * B;
    end
    printf('%.9g\n', toc / n);
" | tail -n 1)

LC_ALL=C awk -v wir="$proLauf" -v octave="$octaveZeit" -v n="$octaveIterationen" 'BEGIN {
    printf "Tabulon, n-fache Auswertung von A^-1*B (8 x 8): %.3f us je Lauf\n", wir * 1e6
    printf "Octave, A = inv(A)*B (8 x 8, %d Iterationen):  %.3f us je Iteration\n", n, octave * 1e6
    printf "Verhaeltnis Tabulon / Octave: %.2f\n", wir / octave
}'

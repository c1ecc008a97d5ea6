#!/usr/bin/env bash
# Fuzzes the list-file reader with libFuzzer (AddressSanitizer and UBSan on) for the given
# number of seconds, 60 by default. Builds fuzz/ with clang++ in build-fuzz/, writes a small seed
# corpus of sound and damaged list files there, and keeps what libFuzzer learns in
# build-fuzz/korpus for the next run. A crash or a broken promise of the reader ends the run with
# a non-zero status and leaves the input as build-fuzz/crash-*.
#   scripts/fuzz.sh [SECONDS]
set -euo pipefail

sekunden=${1:-60}
wurzel=$(cd "$(dirname "$0")/.." && pwd)
build="$wurzel/build-fuzz"

if ! command -v clang++ >/dev/null; then
    echo "fuzz.sh: clang++ is missing (scripts/einrichten.sh installs it)" >&2
    exit 1
fi

cmake -S "$wurzel/fuzz" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build "$build" --target fuzz_listendatei -j 2

saat="$build/saat"
rm -rf "$saat"
mkdir -p "$saat" "$build/korpus"
n=0
saatkorn() {
    n=$((n + 1))
    printf '%s' "$1" >"$saat/saat$n"
}
saatkorn 'end%'
saatkorn 'A%2%2%1%2%3%4%C%1%3%-0.5%1e3%0.0%end%'
saatkorn 'A%1%1%5%B%2%1%1/2% 7 %end%nachher'
saatkorn 'ab%1%1%x%end%'
saatkorn 'A%8%8%1%2%3%4%5%6%7%8%1%2%3%4%5%6%7%8%1%2%3%4%5%6%7%8%1%2%3%4%5%6%7%8%1%2%3%4%5%6%7%8%1%2%3%4%5%6%7%8%1%2%3%4%5%6%7%8%1%2%3%4%5%6%7%8%end%'
saatkorn 'A%2%2%1%2%3%end%'
saatkorn 'A%9%1%1%end%'
saatkorn '../x%1%1%1%end%'
saatkorn $'A%1%1%\xcc\x81%end%'
saatkorn $'A%1%1%%\xcc\x81%end%'

cat >"$build/listendatei.dict" <<'WOERTER'
"%"
"end%"
"end"
"1%"
"8%"
"9%"
"0%"
"A%"
"Fehler%"
"?%"
".."
"/"
"\\"
" "
"\xcc\x81"
"\xe2\x80\x8d"
"\x0d\x0a"
WOERTER

# libFuzzer's log is long (a progress line per new input, a dictionary at the end): keep it in a
# file and show only its end, or the whole report when the run fails.
cd "$build"
if ./fuzz_listendatei -max_total_time="$sekunden" -timeout=10 -rss_limit_mb=2048 \
    -dict="$build/listendatei.dict" -artifact_prefix="$build/" -print_final_stats=1 \
    "$build/korpus" "$saat" >"$build/fuzz.log" 2>&1; then
    grep -E '^(Done|stat::)' "$build/fuzz.log" || tail -n 5 "$build/fuzz.log"
else
    status=$?
    cat "$build/fuzz.log"
    exit "$status"
fi

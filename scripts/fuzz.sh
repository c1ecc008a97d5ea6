#!/usr/bin/env bash
# Fuzzes with libFuzzer (AddressSanitizer and UBSan on) for the given number of seconds per
# target, 60 by default: the list-file reader (listendatei) and the term command (terme), or only
# the target named. Builds fuzz/ with clang++ in build-fuzz/, writes a small seed corpus and a
# dictionary per target there, and keeps what libFuzzer learns in build-fuzz/korpus-<target> for
# the next run. A crash or a broken promise ends the run with a non-zero status and leaves the
# input as build-fuzz/crash-*.
#   scripts/fuzz.sh [SECONDS] [listendatei|terme]
set -euo pipefail

sekunden=${1:-60}
nur=${2:-}
wurzel=$(cd "$(dirname "$0")/.." && pwd)
build="$wurzel/build-fuzz"

if ! command -v clang++ >/dev/null; then
    echo "fuzz.sh: clang++ is missing (scripts/einrichten.sh installs it)" >&2
    exit 1
fi
case "$nur" in
"" | listendatei | terme) ;;
*)
    echo "fuzz.sh: unknown target '$nur' (listendatei or terme)" >&2
    exit 2
    ;;
esac

cmake -S "$wurzel/fuzz" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++ >/dev/null

n=0
saatkorn() {
    n=$((n + 1))
    printf '%s' "$1" >"$saat/saat$n"
}

saatListendatei() {
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
    cat <<'WOERTER'
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
}

# Scalar field, a line break, term field.
saatTerme() {
    saatkorn $'2\nA^2-A'
    saatkorn $'\n(A-B)^3*B'
    saatkorn $'0.5\nr*A*r*B'
    saatkorn $'\nA^-1*B'
    saatkorn $'\nC*A+E'
    saatkorn $'\nN^-1'
    saatkorn $'1e308\n((A)^1)^2-(I^9)'
    saatkorn $'\n(A+B)*(C+A)'
    saatkorn $'-3\nA-B-a*b^2'
    saatkorn $'\nX+A+B'
    cat <<'WOERTER'
"A"
"B"
"C"
"N"
"E"
"I"
"r"
"("
")"
"^"
"^-1"
"^9"
"*"
"+"
"-"
"\x0a"
" "
"\xc3\x9f"
WOERTER
}

lauf() {
    local ziel=$1
    cmake --build "$build" --target "fuzz_$ziel" -j 2
    saat="$build/saat-$ziel"
    rm -rf "$saat"
    mkdir -p "$saat" "$build/korpus-$ziel"
    n=0
    if [ "$ziel" = listendatei ]; then
        saatListendatei >"$build/$ziel.dict"
    else
        saatTerme >"$build/$ziel.dict"
    fi
    # libFuzzer's log is long (a progress line per new input, a dictionary at the end): keep it
    # in a file and show only its end, or the whole report when the run fails.
    echo "-- fuzz_$ziel, $sekunden s"
    if (cd "$build" && "./fuzz_$ziel" -max_total_time="$sekunden" -timeout=10 -rss_limit_mb=2048 \
        -dict="$build/$ziel.dict" -artifact_prefix="$build/" -print_final_stats=1 \
        "$build/korpus-$ziel" "$saat" >"$build/$ziel.log" 2>&1); then
        grep -E '^(Done|stat::number_of_executed_units|stat::peak_rss_mb)' "$build/$ziel.log" ||
            tail -n 5 "$build/$ziel.log"
    else
        status=$?
        cat "$build/$ziel.log"
        exit "$status"
    fi
}

for ziel in listendatei terme; do
    if [ -z "$nur" ] || [ "$nur" = "$ziel" ]; then
        lauf "$ziel"
    fi
done

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the benchmarks (Release, in build-bench), runs them all and prints the results
# table: the sheet's refresh at 0 to 99 games against the word-for-word writing, start-up
# against a bare Qt Widgets window, and printing a full evening to PDF.
#   bash bench/run.sh
# It installs what is missing with apt-get (through sudo when not root). Before measuring it
# waits while the 1-minute load average is 0.8 or more, polling every 30 s, at most
# BENCH_MAX_WAIT seconds (900 unless set; 0 does not wait). The start-up takes BENCH_ROUNDS turns of
# each program (15 unless set); on a busy machine more turns steady the medians.
set -euo pipefail

cd "$(dirname "$0")/.."
top=$(pwd)
build="$top/build-bench"
out="$build/bench/results"
jobs=$(nproc 2>/dev/null || echo 2)
max_wait=${BENCH_MAX_WAIT:-900}
rounds=${BENCH_ROUNDS:-15}

packages=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libbenchmark-dev xvfb python3 python3-xlib)

source "$top/scripts/install-missing.sh"

load() { cut -d' ' -f1-3 /proc/loadavg; }

install_missing "${packages[@]}"
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTAFELKASSE_BENCH=ON -DBUILD_TESTING=OFF >/dev/null
cmake --build "$build" --parallel "$jobs" --target tafelkasse tafelkasse_bench tafelkasse_floor
mkdir -p "$out"

waited=0
while awk '{ exit !($1 >= 0.8) }' /proc/loadavg && [ "$waited" -lt "$max_wait" ]; do
    echo "Load $(load): waiting for it to drop below 0.8 ($waited s of at most $max_wait s)"
    sleep 30
    waited=$((waited + 30))
done
load_before=$(load)

# A German desktop in Berlin, as the program's users have it, on every machine alike.
world=(LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8 TZ=Europe/Berlin QT_LOGGING_RULES='qt.qpa.*=false')

echo "Sheet refresh and printing (offscreen)…"
env "${world[@]}" QT_QPA_PLATFORM=offscreen "$build/bench/tafelkasse_bench" \
    --benchmark_repetitions=9 --benchmark_min_time=0.2 --benchmark_report_aggregates_only=true \
    --benchmark_out="$out/sheet.json" --benchmark_out_format=json >"$out/sheet.txt"

echo "Start-up against the floor, $rounds rounds in turns (Xvfb)…"
# Debian's Python, which has the X bindings, whatever python3 comes first in PATH.
/usr/bin/python3 "$top/bench/startup.py" "$build/src/app/tafelkasse" "$build/bench/tafelkasse_floor" "$rounds" \
    "$out/startup.json" "${world[@]}"
load_after=$(load)

echo
python3 "$top/bench/table.py" "$out/sheet.json" "$out/startup.json" "$load_before" "$load_after" | tee "$out/table.md"

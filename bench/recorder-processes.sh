#!/usr/bin/env bash
# The headless recorder on a machine with many processes: starts PROCESSES
# sleeping processes (default 3000; 0 for the machine as it is), then
# `vexel-app --headless` with a data folder of its own at the default 5 s
# cadence. After a warm-up of WARMUP seconds (default 30) it measures the
# recorder for DURATION seconds (default 300): its CPU time as a share of one
# core (from /proc/<pid>/stat) and its resident memory (VmRSS). Figures go to
# BENCHMARKS.md.
set -euo pipefail
cd "$(dirname "$0")/.."

processes="${PROCESSES:-3000}"
duration="${DURATION:-300}"
warmup="${WARMUP:-30}"
app="$PWD/build/src/vexel-app"
cmake --build build --target vexel-app >/dev/null
work="$(mktemp -d)"
sleepers=()
recorder=""
cleanup() {
  [[ -n "$recorder" ]] && kill "$recorder" 2>/dev/null || true
  ((${#sleepers[@]})) && kill "${sleepers[@]}" 2>/dev/null || true
  wait || true
  rm -rf "$work"
}
trap cleanup EXIT

for ((i = 0; i < processes; ++i)); do
  sleep infinity &
  sleepers+=($!)
done
VEXEL_DATA_DIR="$work" "$app" --headless >/dev/null 2>&1 &
recorder=$!

ticks="$(getconf CLK_TCK)"
cpuTicks() {
  local -a stat
  read -r -a stat <"/proc/$recorder/stat"
  echo $((stat[13] + stat[14]))
}
sleep "$warmup"
before="$(cpuTicks)"
sleep "$duration"
after="$(cpuTicks)"
listed="$(find /proc -maxdepth 1 -name '[0-9]*' | wc -l)"
awk -v t="$((after - before))" -v hz="$ticks" -v d="$duration" -v n="$listed" \
  -v rss="$(awk '/^VmRSS/ {print $2}' "/proc/$recorder/status")" \
  'BEGIN {printf "processes %d  CPU %.3f %% of a core (%.2f s in %d s)  resident %.1f MB\n", n, t * 100 / hz / d, t / hz, d, rss / 1000}'

#!/usr/bin/env bash
# Whole runs of the desktop app and the headless recorder side by side, each
# with a data folder of its own, for DURATION seconds (default 3600):
#   vexel-app --headless       the recorder, at the settings' cadence
#   vexel-app --hidden         the app started at login; with no status area
#                              it waits minimised, at the settings' cadence
#   vexel-app                  the window open on Overview, every 2 s
# The two desktop runs use a virtual display (xvfb-run). Prints, per process,
# its CPU time as a share of one core, its peak resident memory and the bytes
# it wrote to storage per hour, read from /proc/<pid>/{stat,status,io} just
# before SIGTERM. Figures go to BENCHMARKS.md.
set -euo pipefail
cd "$(dirname "$0")/.."

duration="${DURATION:-3600}"
app="$PWD/build/src/vexel-app"
cmake --build build --target vexel-app >/dev/null
work="$(mktemp -d)"
children=()
cleanup() {
  for pid in "${children[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait || true
  rm -rf "$work"
}
trap cleanup EXIT

start() { # name, then the command
  local name="$1"
  shift
  mkdir "$work/$name"
  VEXEL_DATA_DIR="$work/$name" "$@" >/dev/null 2>&1 &
  children+=($!)
}
start recorder "$app" --headless
start hidden xvfb-run -a "$app" --hidden
start visible xvfb-run -a "$app"

# Each process writes its pid into its data folder's lock once it records.
pidOf() {
  local pid=""
  for _ in $(seq 200); do
    pid="$(cat "$work/$1/recorder.lock" 2>/dev/null || true)"
    [[ -n "$pid" ]] && break
    sleep 0.1
  done
  echo "$pid"
}
declare -A pids
for name in recorder hidden visible; do pids[$name]="$(pidOf "$name")"; done
sleep "$duration"

ticks="$(getconf CLK_TCK)"
printf '%-9s %10s %10s %14s\n' process "CPU %" "peak MB" "written MB/h"
for name in recorder hidden visible; do
  pid="${pids[$name]}"
  read -r -a stat <"/proc/$pid/stat"
  cpu="$(awk -v t="$((stat[13] + stat[14]))" -v hz="$ticks" -v d="$duration" 'BEGIN {printf "%.3f", t * 100 / hz / d}')"
  hwm="$(awk '/^VmHWM/ {printf "%.1f", $2 / 1000}' "/proc/$pid/status")"
  written="$(awk -v d="$duration" '/^write_bytes/ {printf "%.2f", $2 / 1e6 * 3600 / d}' "/proc/$pid/io")"
  printf '%-9s %10s %10s %14s\n' "$name" "$cpu" "$hwm" "$written"
  kill -TERM "$pid"
done
# xvfb-run ends its display itself once the app has quit.
wait "${children[@]}" || true
children=()

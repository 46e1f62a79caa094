#!/usr/bin/env bash
# The recorder's own CPU time over a minute at the default 5 s interval,
# without metrics and with them served and scraped every 5 s, side by side
# (each in a data folder of its own, so both record).
#   bench/recorder-metrics.sh [BUILD] [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
seconds=${2:-60}
work=$(mktemp -d)
pids=()
finish() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap finish EXIT
mkdir -p "$work/off" "$work/on"
"$build/src/vexel-recorder" --data-dir "$work/off" >/dev/null 2>&1 &
pids+=($!)
off=$!
"$build/src/vexel-recorder" --data-dir "$work/on" --metrics 127.0.0.1:0 >"$work/on.log" 2>&1 &
pids+=($!)
on=$!
until grep -q "Serving metrics" "$work/on.log"; do sleep 0.1; done
url=$(grep -o 'http://[^ ]*' "$work/on.log")
for ((i = 0; i < seconds / 5; i++)); do
  sleep 5
  curl -s -o /dev/null "$url"
done
ticks=$(getconf CLK_TCK)
for name in off on; do
  pid=${!name}
  read -r -a stat <"/proc/$pid/stat"
  cpu=$(((stat[13] + stat[14]) * 1000 / ticks))
  echo "recorder-metrics: metrics $name: ${cpu} ms of CPU in ${seconds} s ($(awk "BEGIN{printf \"%.3f\", $cpu / 10 / $seconds}") % of a core)"
done

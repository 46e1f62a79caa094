#!/usr/bin/env bash
# Times whole runs of the vexel binary as a user meets them, with hyperfine,
# and reads their peak resident memory with GNU time:
#   vexel status --json            (the one-second settle plus the work)
#   an MCP session                 (initialize, tools/list, all eight tools)
#   vexel history year --json      (on a full year of history)
#   vexel spikes --hours 840 --json
# Installs hyperfine and time from Debian when missing. Figures go to BENCHMARKS.md.
#   RUNS   timed runs per command (default 10)
set -euo pipefail
cd "$(dirname "$0")/.."

missing=()
command -v hyperfine >/dev/null || missing+=(hyperfine)
[[ -x /usr/bin/time ]] || missing+=(time)
if ((${#missing[@]})); then
  echo "Installing ${missing[*]} from Debian for the whole-process benchmarks"
  sudo=()
  ((EUID == 0)) || sudo=(sudo)
  "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build --target vexel vexel_make_year_history >/dev/null
vexel="$PWD/build/src/vexel"
runs="${RUNS:-10}"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
mkdir "$work/empty" "$work/year"
build/bench/vexel_make_year_history "$work/year"

session="$work/session.jsonl"
{
  echo '{"jsonrpc":"2.0","id":0,"method":"initialize","params":{"protocolVersion":"2025-06-18","capabilities":{},"clientInfo":{"name":"bench","version":"1"}}}'
  echo '{"jsonrpc":"2.0","method":"notifications/initialized"}'
  echo '{"jsonrpc":"2.0","id":1,"method":"tools/list"}'
  id=2
  for tool in system_status top_apps history spikes dev_servers listening_ports docker_containers; do
    echo "{\"jsonrpc\":\"2.0\",\"id\":$id,\"method\":\"tools/call\",\"params\":{\"name\":\"$tool\",\"arguments\":{}}}"
    id=$((id + 1))
  done
  echo '{"jsonrpc":"2.0","id":99,"method":"tools/call","params":{"name":"app_processes","arguments":{"name":"Kernel"}}}'
} >"$session"

# The largest peak RSS (kB) over five runs: of vexel itself (peak-rss.py) and,
# as GNU time counts it, of vexel or any tool it ran.
peak() {
  local own=0 all=0 kb
  for _ in 1 2 3 4 5; do
    kb=$(bench/peak-rss.py "$@")
    ((kb > own)) && own=$kb
    if [[ "$1" == "--input" ]]; then
      /usr/bin/time -f '%M' -o "$work/rss" "${@:3}" <"$2" >/dev/null 2>&1 || true
    else
      /usr/bin/time -f '%M' -o "$work/rss" "$@" >/dev/null 2>&1 || true
    fi
    kb=$(tail -1 "$work/rss")
    ((kb > all)) && all=$kb
  done
  echo "$own kB (with the tools it ran: $all kB)"
}

echo "== wall time (hyperfine, $runs runs after one warm-up)"
VEXEL_DATA_DIR="$work/empty" hyperfine --style basic --warmup 1 --runs "$runs" \
  -n 'status --json' "$vexel status --json" \
  -n 'mcp session (10 requests)' "$vexel mcp < $session"
VEXEL_DATA_DIR="$work/year" hyperfine --style basic --warmup 1 --runs "$runs" \
  -n 'history year --json' "$vexel history year --json" \
  -n 'spikes --hours 840 --json' "$vexel spikes --hours 840 --json"

echo "== peak resident memory (largest of five runs)"
echo "status --json: $(VEXEL_DATA_DIR="$work/empty" peak "$vexel" status --json)"
echo "mcp session: $(VEXEL_DATA_DIR="$work/empty" peak --input "$session" "$vexel" mcp)"
echo "history year --json: $(VEXEL_DATA_DIR="$work/year" peak "$vexel" history year --json)"
echo "spikes --hours 840 --json: $(VEXEL_DATA_DIR="$work/year" peak "$vexel" spikes --hours 840 --json)"

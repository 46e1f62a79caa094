#!/usr/bin/env bash
# The panel's update benchmark in a real status area: a message bus and a
# virtual display of its own, Debian's status-notifier-watcher and
# gtk-sni-tray-standalone, then vexel_pages_bench's panel figure.
#   bench/panel-session.sh            (re-runs itself inside the session)
set -euo pipefail
cd "$(dirname "$0")/.."
if [[ -z "${VEXEL_PANEL_SESSION:-}" ]]; then
  cmake --build build --target vexel_pages_bench >/dev/null
  exec env VEXEL_PANEL_SESSION=1 dbus-run-session -- xvfb-run -a -s "-screen 0 800x200x24" "$0" "$@"
fi
status-notifier-watcher >/dev/null 2>&1 &
watcher=$!
until gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
  --method org.freedesktop.DBus.NameHasOwner org.kde.StatusNotifierWatcher 2>/dev/null | grep -q true; do
  sleep 0.1
done
gtk-sni-tray-standalone --top --size 30 >/dev/null 2>&1 &
host=$!
until gdbus call --session --dest org.kde.StatusNotifierWatcher --object-path /StatusNotifierWatcher \
  --method org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierWatcher IsStatusNotifierHostRegistered \
  2>/dev/null | grep -q true; do
  sleep 0.1
done
build/bench/vexel_pages_bench --benchmark_filter=Panel "$@"
kill "$host" "$watcher"

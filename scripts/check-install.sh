#!/usr/bin/env bash
# Installs a build into a temporary prefix whose name has a space in it, as a
# user's folder may, and shows what a user gets: the installed tree, the
# validators' verdict on the desktop entry and the AppStream metadata, and
# the running app named through its entry in Vexel's own app list.
#   check-install.sh [BUILD]   BUILD defaults to build
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
work=$(mktemp -d)
app=
finish() {
  if [[ -n "$app" ]]; then kill "$app" 2>/dev/null && wait "$app" 2>/dev/null || true; fi
  rm -rf "$work"
}
trap finish EXIT
prefix="$work/Vexel install"
fail() {
  echo "check-install: $*" >&2
  exit 1
}

cmake --install "$build" --prefix "$prefix" >"$work/install.log"
echo "check-install: the tree installed into $prefix"
(cd "$prefix" && find . -type f | sort | sed 's|^\./|  |')

manifest=$(<"$build/install_manifest.txt")
for file in share/systemd/user/vexel-recorder.service share/applications/dev.vexel.Vexel.desktop; do
  grep -Fxq "$prefix/$file" <<<"$manifest" || fail "install_manifest.txt doesn't list $file"
done
grep -Fxq "ExecStart=\"$prefix/bin/vexel-recorder\"" "$prefix/share/systemd/user/vexel-recorder.service" ||
  fail "the recorder's unit doesn't start $prefix/bin/vexel-recorder"

# Every installed file belongs to one of the two packages' components, and
# the one without Qt holds no part of the app.
components=()
for component in vexel vexel-desktop; do
  cmake --install "$build" --prefix "$work/$component" --component "$component" >/dev/null
  components+=("$work/$component")
done
unpacked=$(for tree in "${components[@]}"; do (cd "$tree" && find . -type f); done | sort)
whole=$(cd "$prefix" && find . -type f | sort)
[[ "$unpacked" == "$whole" ]] || fail "files in no package's component: $(comm -13 <(echo "$unpacked") <(echo "$whole"))"
if (cd "$work/vexel" && find . -type f) | grep -Eq "vexel-app|applications/|icons/|metainfo/"; then
  fail "the vexel component holds part of the app: $(cd "$work/vexel" && find . -type f)"
fi
echo "check-install: each file is in the vexel or the vexel-desktop component, and the app only in the latter"

entry="$prefix/share/applications/dev.vexel.Vexel.desktop"
metainfo="$prefix/share/metainfo/dev.vexel.Vexel.metainfo.xml"
verdict=$(desktop-file-validate "$entry" 2>&1) || fail "desktop-file-validate: $verdict"
[[ -z "$verdict" ]] || fail "desktop-file-validate: $verdict"
echo "check-install: desktop-file-validate: no errors or warnings"
verdict=$(appstreamcli validate --no-net "$metainfo" 2>&1) || fail "appstreamcli validate: $verdict"
grep -q "Validation was successful" <<<"$verdict" || fail "appstreamcli validate: $verdict"
if grep -Eq "^[EW]:|warnings?: [1-9]" <<<"$verdict"; then fail "appstreamcli validate: $verdict"; fi
echo "check-install: appstreamcli validate --no-net:$(tr '\n' ' ' <<<"$verdict")"

# The installed app, alone in a home of its own, is "Vexel" in its own app
# list: the entry in the prefix's applications folder names its program.
mkdir -p "$work/home" "$work/data"
export HOME="$work/home" XDG_DATA_HOME="$work/home/.local/share" XDG_DATA_DIRS="$prefix/share:/usr/share"
export VEXEL_DATA_DIR="$work/data" QT_QPA_PLATFORM=offscreen
unset DBUS_SESSION_BUS_ADDRESS XDG_CONFIG_HOME
"$prefix/bin/vexel-app" >"$work/app.log" 2>&1 &
app=$!
for _ in $(seq 100); do
  report=$("$prefix/bin/vexel" app Vexel --json 2>/dev/null || true)
  if grep -q "\"pid\": *$app\b" <<<"$report"; then
    echo "check-install: the running app (process $app) is \"Vexel\" in vexel app Vexel"
    exit 0
  fi
  kill -0 "$app" 2>/dev/null || fail "vexel-app ended: $(cat "$work/app.log")"
  sleep 0.2
done
fail "vexel app Vexel never listed process $app: $report"

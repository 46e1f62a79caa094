#!/usr/bin/env bash
# Builds Vexel's two Debian packages and tries them on a clean Debian 12.
#   vexel          the command, the recorder, its systemd units, manual pages
#                  and completions (no Qt)
#   vexel-desktop  the app, its desktop entry, icons and AppStream metadata
# lintian judges the packages; debootstrap makes a fresh root, where apt
# installs them with what they require and nothing they only recommend. In
# that root `vexel status` and `vexel ports` run, the recorder records a
# few ticks that `vexel history` reads back, the app draws its pages
# offscreen, systemd-analyze verifies both units and scores their sandboxing,
# the desktop entry and the metadata pass their validators, and the system
# unit records under systemd booted in the root.
#   debian-packages.sh [OUT]   OUT is the build folder, build-deb by default;
#                              the packages and clean-root.log are left there
# VEXEL_DEBIAN_MIRROR names a mirror other than deb.debian.org. Needs root,
# or sudo, for debootstrap and chroot.
set -euo pipefail
cd "$(dirname "$0")/.."
out=$(realpath -m "${1:-build-deb}")
mirror=${VEXEL_DEBIAN_MIRROR:-http://deb.debian.org/debian}
sudo=()
if ((EUID != 0)); then
  sudo=(sudo)
fi
fail() {
  echo "debian-packages: $*" >&2
  exit 1
}

scripts/install-deps.sh package

# Built the way Debian builds its own packages: its compiler and linker flags,
# every hardening feature on.
export DEB_BUILD_MAINT_OPTIONS=hardening=+all
cmake -S . -B "$out" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr \
  -DVEXEL_BUILD_TESTS=OFF -DVEXEL_BUILD_BENCH=OFF -DVEXEL_FUZZ=OFF \
  -DCMAKE_CXX_FLAGS="$(dpkg-buildflags --get CPPFLAGS) $(dpkg-buildflags --get CXXFLAGS)" \
  -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" >/dev/null
cmake --build "$out"
rm -f "$out"/*.deb
(cd "$out" && cpack -G DEB >/dev/null)
debs=("$out"/vexel_*_*.deb "$out"/vexel-desktop_*_*.deb)
for deb in "${debs[@]}"; do
  [[ -f "$deb" ]] || fail "cpack made no $deb"
done
lintian --fail-on error,warning "${debs[@]}" 2>&1 | grep -v "^running with root privileges" || true
lintian --fail-on error,warning "${debs[@]}" >/dev/null 2>&1 || fail "lintian found errors or warnings"
echo "debian-packages: lintian: no errors or warnings"

work=$(mktemp -d)
root="$work/root"
cleanup() {
  if [[ -n "${booted:-}" ]]; then "${sudo[@]}" kill -KILL "$booted" 2>/dev/null || true; fi
  for mount in proc sys dev; do
    if mountpoint -q "$root/$mount"; then "${sudo[@]}" umount -R "$root/$mount"; fi
  done
  "${sudo[@]}" rm -rf "$work"
}
trap cleanup EXIT

echo "debian-packages: making a clean Debian 12 root from $mirror"
"${sudo[@]}" debootstrap --variant=minbase bookworm "$root" "$mirror" >"$work/debootstrap.log" 2>&1 ||
  fail "debootstrap failed: $(tail -5 "$work/debootstrap.log")"
"${sudo[@]}" tee "$root/etc/apt/sources.list" >/dev/null <<EOF
deb $mirror bookworm main
deb $mirror bookworm-updates main
deb ${mirror%/debian}/debian-security bookworm-security main
EOF
# The readings come from the running kernel: /proc, /sys and /dev are the host's.
"${sudo[@]}" mount -t proc proc "$root/proc"
for mount in sys dev; do
  "${sudo[@]}" mount --rbind "/$mount" "$root/$mount"
  "${sudo[@]}" mount --make-rslave "$root/$mount"
done
"${sudo[@]}" cp "${debs[@]}" "$root/tmp/"

log="$out/clean-root.log"
: >"$log"
# Runs a command in the root with a clean environment, logging it and its
# output; the command line is also said on standard error, its output on
# standard output.
in_root() {
  echo "# $*" | tee -a "$log" >&2
  "${sudo[@]}" chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 TERM=dumb \
    DEBIAN_FRONTEND=noninteractive "$@" 2>&1 | tee -a "$log"
}

in_root apt-get update -q >/dev/null
in_root apt-get install -y -q --no-install-recommends "/tmp/${debs[0]##*/}" "/tmp/${debs[1]##*/}" ||
  fail "apt couldn't install the packages"
in_root dpkg-query -W -f='${Package} ${Version}: ${Installed-Size} KiB installed\n  Depends: ${Depends}\n' \
  vexel vexel-desktop
if dpkg-deb -f "${debs[0]}" Depends | grep -qi qt; then fail "the vexel package depends on Qt"; fi
in_root vexel status || fail "vexel status failed in the clean root"
in_root vexel ports || fail "vexel ports failed in the clean root"
# The recorder, as its units run it: a few ticks of history and metrics.
in_root timeout --preserve-status -s TERM 12 vexel-recorder --data-dir /tmp/history --metrics-file /tmp/metrics.prom ||
  fail "vexel-recorder failed in the clean root"
in_root grep -m 3 "^vexel_app_cpu_seconds_total" /tmp/metrics.prom || fail "the recorder wrote no app metrics"
in_root vexel history today --data-dir /tmp/history || fail "vexel history read nothing the recorder wrote"
in_root env QT_QPA_PLATFORM=offscreen VEXEL_SNAPSHOT_DIR=/tmp/pictures VEXEL_DATA_DIR=/tmp/data vexel-app >/dev/null ||
  fail "vexel-app couldn't draw its pages in the clean root"
pictures=$("${sudo[@]}" find "$root/tmp/pictures" -name '*.png' -size +1k | wc -l)
((pictures > 0)) || fail "vexel-app drew no pictures"
echo "# vexel-app drew $pictures pages" | tee -a "$log"

# The validators come after the packages, so that nothing of theirs fills a
# dependency the packages forgot.
in_root apt-get install -y -q --no-install-recommends systemd desktop-file-utils appstream >/dev/null
system_unit=/usr/lib/systemd/system/vexel-recorder-system.service
user_unit=/usr/lib/systemd/user/vexel-recorder.service
# verify only warns of an unknown or misspelt key: any word from it fails.
said=$(in_root systemd-analyze verify --man=no "$system_unit") || fail "systemd-analyze verify: $said"
[[ -z "$said" ]] || fail "systemd-analyze verify: $said"
said=$(in_root env XDG_RUNTIME_DIR=/tmp systemd-analyze --user verify --man=no "$user_unit") ||
  fail "systemd-analyze --user verify: $said"
[[ -z "$said" ]] || fail "systemd-analyze --user verify: $said"
in_root systemd-analyze security --offline=yes --no-pager "$system_unit" | tail -1
in_root env XDG_RUNTIME_DIR=/tmp systemd-analyze --user security --offline=yes --no-pager "$user_unit" | tail -1
said=$(in_root desktop-file-validate /usr/share/applications/dev.vexel.Vexel.desktop) ||
  fail "desktop-file-validate: $said"
[[ -z "$said" ]] || fail "desktop-file-validate: $said"
said=$(in_root appstreamcli validate --no-net /usr/share/metainfo/dev.vexel.Vexel.metainfo.xml) ||
  fail "appstreamcli validate: $said"
if grep -Eq "^[EW]:|warnings?: [1-9]" <<<"$said"; then fail "appstreamcli validate: $said"; fi
echo "$said"

# The system unit for real: systemd boots as the first process of a PID
# namespace of its own, with the root as its /, and starts the enabled unit
# with all its sandboxing and a user of its own; its history appears in
# /var/lib/vexel, which the command reads as root.
in_root systemctl enable vexel-recorder-system.service
"${sudo[@]}" unshare --pid --fork --mount --uts sh -c "
  mount --make-rprivate / && mount --rbind '$root' '$root' && mount -t proc proc '$root/proc' &&
  mount -t tmpfs tmpfs '$root/run' && exec chroot '$root' /lib/systemd/systemd --system --unit=multi-user.target
" >"$work/boot.log" 2>&1 &
booted=
for _ in $(seq 120); do
  booted=$(pgrep -n -f "^/lib/systemd/systemd --system --unit=multi-user.target" || true)
  if [[ -n "$booted" ]] && "${sudo[@]}" test -s "$root/var/lib/private/vexel/history.sqlite"; then break; fi
  sleep 0.5
done
[[ -n "$booted" ]] || fail "systemd didn't boot in the root: $(cat "$work/boot.log")"
in_booted() {
  echo "# (booted) $*" | tee -a "$log" >&2
  "${sudo[@]}" nsenter -t "$booted" -m -p -r -w/ env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
    TERM=dumb "$@" 2>&1 | tee -a "$log"
}
sleep 65 # the recorder writes its points once a minute
in_booted systemctl status --no-pager vexel-recorder-system.service | head -8
running=$(in_booted systemctl is-active vexel-recorder-system.service) || true
in_booted journalctl --no-pager -u vexel-recorder-system.service
in_booted vexel --data-dir /var/lib/vexel history today || fail "the system unit's history can't be read"
"${sudo[@]}" kill -KILL "$booted"
[[ "$running" == active ]] || fail "the system unit is not running under systemd"

echo "debian-packages: installed and checked in a clean Debian 12 root; the log is $log"
for deb in "${debs[@]}"; do
  echo "  ${deb##*/}: $(du -k "$deb" | cut -f1) KiB"
done

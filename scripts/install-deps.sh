#!/usr/bin/env bash
# Installs the Debian 12 packages Vexel needs, and only those that are
# missing. Run as root or with sudo available.
#   install-deps.sh run    what building and running Vexel needs
#   install-deps.sh test   that, and what the tests, benchmarks, fuzzers and
#                          the format check need (the default)
#   install-deps.sh package  what building the run's programs, packing them
#                          and installing them in a clean root needs
set -euo pipefail

run_packages=(
  # build
  cmake ninja-build g++ pkg-config
  # libraries
  nlohmann-json3-dev libsqlite3-dev qt6-base-dev
  # the recorder serves its metrics to Prometheus with it
  libmicrohttpd-dev
  # lrelease compiles the app's English (its plural forms) into it; lupdate
  # checks that the translation source holds every sentence
  qt6-l10n-tools
  # the desktop app under Wayland compositors, and the icon theme's SVG symbols in its sidebar
  qt6-wayland libqt6svg6
  # the app's font and the GPU name database
  fonts-inter pci.ids
  # the tools Vexel runs: ss (iproute2), with lsof as the fallback, for listening ports
  iproute2 lsof
)
test_packages=(
  # tests, benchmarks, fuzzing and formatting
  libgtest-dev libgmock-dev libbenchmark-dev clang-14 libclang-rt-14-dev clang-format
  # tests run ps and python3 servers, and watch a whole session under strace
  procps python3 strace
  # the metrics are scraped by a real Prometheus, checked by its promtool
  prometheus
  # the manual pages and completions are read by the real man and shells
  man-db zsh fish
  # the desktop app runs for real on a virtual display
  xvfb xauth
  # its panel items in a real status area: a message bus of their own, the
  # watcher and a panel host, and a photograph of the screen
  dbus-daemon haskell-status-notifier-item-utils haskell-gtk-sni-tray-utils imagemagick
  # the desktop session test closes and finds the app's window through the X server,
  # and runs it under Weston, headless, for Wayland
  libxcb1-dev weston
  # the install check validates the desktop entry and the AppStream metadata;
  # scripts/icons.sh renders the icon's sizes
  desktop-file-utils appstream librsvg2-bin
  # a real icon theme, for the sidebar's symbols
  adwaita-icon-theme
)
package_packages=(
  # dpkg-shlibdeps finds the packages' library dependencies; lintian judges
  # them; debootstrap makes the clean Debian 12 they are installed into
  dpkg-dev lintian debootstrap
)

case "${1:-test}" in
  run) packages=("${run_packages[@]}") ;;
  test) packages=("${run_packages[@]}" "${test_packages[@]}") ;;
  package) packages=("${run_packages[@]}" "${package_packages[@]}") ;;
  *)
    echo "usage: $0 [run|test|package]" >&2
    exit 2
    ;;
esac

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done

if ((${#missing[@]} == 0)); then
  exit 0
fi

echo "Installing missing Debian packages: ${missing[*]}"
sudo=()
if ((EUID != 0)); then
  sudo=(sudo)
fi
"${sudo[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null

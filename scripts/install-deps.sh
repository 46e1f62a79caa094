#!/usr/bin/env bash
# Installs the Debian 12 packages Vexel needs to build, run and test, and only
# those that are missing. Run as root or with sudo available.
set -euo pipefail

packages=(
  # build
  cmake ninja-build g++ pkg-config
  # libraries
  nlohmann-json3-dev libsqlite3-dev qt6-base-dev
  # the app's font and the GPU name database
  fonts-inter pci.ids
  # the tools Vexel runs: ss (iproute2) and lsof for listening ports, ps for tests
  iproute2 lsof procps python3
  # the read-only check watches a whole session under strace
  strace
  # tests, benchmarks, fuzzing and formatting
  libgtest-dev libgmock-dev libbenchmark-dev clang-14 libclang-rt-14-dev clang-format
)

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

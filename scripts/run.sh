#!/usr/bin/env bash
# Sets up what is missing, builds Vexel and runs its main job on this machine:
# `vexel status`, or the vexel command with the arguments given.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build --target vexel vexel-app
if (($# == 0)); then
  set -- status
fi
exec build/src/vexel "$@"

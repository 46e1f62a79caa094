#!/usr/bin/env bash
# Sets up what is missing, builds Vexel and runs its main job on this machine:
# `vexel status`, or the vexel command with the arguments given. Builds only
# the programs (no tests, benchmarks or fuzzers) and installs only what they need.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh run
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVEXEL_BUILD_TESTS=OFF -DVEXEL_BUILD_BENCH=OFF \
  -DVEXEL_FUZZ=OFF >/dev/null
cmake --build build --target vexel vexel-app
if (($# == 0)); then
  set -- status
fi
exec build/src/vexel "$@"

#!/usr/bin/env bash
# Sets up what is missing (Debian packages, the npm MCP clients), builds
# everything with warnings as errors and runs every test: the CTest suites
# (the MCP client tests among them), then each fuzz target over its seeds and
# a short run of new inputs.
#   --sanitize   build and test in build-asan with ASan + UBSan instead
set -euo pipefail
cd "$(dirname "$0")/.."

build=build
options=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DVEXEL_WERROR=ON -DVEXEL_BUILD_TESTS=ON -DVEXEL_BUILD_BENCH=ON)
fuzz=1
if [[ "${1:-}" == "--sanitize" ]]; then
  build=build-asan
  options=(-DCMAKE_BUILD_TYPE=Debug -DVEXEL_WERROR=ON -DVEXEL_SANITIZE=ON -DVEXEL_BUILD_TESTS=ON -DVEXEL_BUILD_BENCH=OFF)
  fuzz=0
fi

scripts/install-deps.sh test
scripts/install-mcp-clients.sh
cmake -S . -B "$build" -G Ninja "${options[@]}" >/dev/null
cmake --build "$build"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp"
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
started=$SECONDS
(cd "$build" && ctest --output-on-failure -j2)
echo "test: the CTest suites took $((SECONDS - started)) s"

if ((fuzz)); then
  started=$SECONDS
  scripts/fuzz.sh
  echo "test: building and running the fuzz targets took $((SECONDS - started)) s"
fi

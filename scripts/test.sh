#!/usr/bin/env bash
# Sets up what is missing (Debian packages, the npm MCP clients), builds
# everything with warnings as errors and runs every test: the CTest suites
# (the MCP client tests among them), then each fuzz target over its seeds and
# a short run of new inputs.
#   --sanitize   build and test in build-asan with ASan + UBSan instead
#   --thread     build the app's and the engine's tests in build-tsan with
#                ThreadSanitizer and run them (the model, the sampler's thread,
#                the app, the recorder's metrics server), then a planted race
#                that it must report
set -euo pipefail
cd "$(dirname "$0")/.."

if [[ "${1:-}" == "--thread" ]]; then
  scripts/install-deps.sh test
  cmake -S . -B build-tsan -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVEXEL_WERROR=ON -DVEXEL_SANITIZE_THREAD=ON \
    -DVEXEL_BUILD_TESTS=ON -DVEXEL_BUILD_BENCH=OFF >/dev/null
  cmake --build build-tsan --target test_app test_engine planted_race
  export TSAN_OPTIONS="halt_on_error=1 second_deadlock_stack=1 suppressions=$PWD/tests/tsan.supp"
  started=$SECONDS
  build-tsan/tests/test_app
  build-tsan/tests/test_engine
  if build-tsan/tests/planted_race >/dev/null 2>&1; then
    echo "test: ThreadSanitizer missed the planted race: its suppressions hide Vexel's own races" >&2
    exit 1
  fi
  echo "test: the ThreadSanitizer run took $((SECONDS - started)) s"
  exit 0
fi

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
scripts/translations.sh check "$build"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp"
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
started=$SECONDS
(cd "$build" && ctest --output-on-failure -j2)
echo "test: the CTest suites took $((SECONDS - started)) s"
if ((fuzz)); then # the plain build's programs, not the sanitizers'
  scripts/check-install.sh "$build"
  # The window drawn on the demo world for a reviewer: every page, whole, and
  # every tab in light and dark, again in Linux's words, and in the
  # pseudo-locale (each translatable sentence wrapped and a third longer),
  # beside the live photographs the tests left.
  TZ=UTC QT_QPA_PLATFORM=offscreen VEXEL_SNAPSHOT_DIR="$build/pictures/demo" "$build/src/vexel-app" >/dev/null 2>&1
  TZ=UTC QT_QPA_PLATFORM=offscreen VEXEL_SNAPSHOT_PLATFORM=linux VEXEL_SNAPSHOT_DIR="$build/pictures/linux" \
    "$build/src/vexel-app" >/dev/null 2>&1
  TZ=UTC QT_QPA_PLATFORM=offscreen VEXEL_SNAPSHOT_LOCALE=pseudo VEXEL_SNAPSHOT_DIR="$build/pictures/pseudo" \
    "$build/src/vexel-app" >/dev/null 2>&1
  echo "test: pictures of the window are in $build/pictures"
fi

if ((fuzz)); then
  started=$SECONDS
  scripts/fuzz.sh
  echo "test: building and running the fuzz targets took $((SECONDS - started)) s"
fi

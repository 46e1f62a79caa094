#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each one over its seed
# corpus (the captured fixtures) plus a short burst of generated inputs.
#   FUZZ_SECONDS   seconds of generated inputs per target (default 5)
set -euo pipefail
cd "$(dirname "$0")/.."

cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVEXEL_FUZZ=ON -DVEXEL_WERROR=ON \
  -DCMAKE_CXX_COMPILER=clang++-14 >/dev/null
cmake --build build-fuzz

seconds="${FUZZ_SECONDS:-5}"
passed=0
failed=0
for target in build-fuzz/fuzz/fuzz_*; do
  [[ -x "$target" ]] || continue
  name="$(basename "$target")"
  seeds="fuzz/seeds/${name#fuzz_}"
  work="$(mktemp -d)"
  if "$target" -max_total_time="$seconds" -print_final_stats=0 "$work" "$seeds" >"$work.log" 2>&1; then
    echo "fuzz: $name ok"
    passed=$((passed + 1))
  else
    echo "fuzz: $name FAILED"
    tail -40 "$work.log"
    failed=$((failed + 1))
  fi
  rm -rf "$work" "$work.log"
done
echo "fuzz: $passed passed, $failed failed"
((failed == 0))

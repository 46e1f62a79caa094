#!/usr/bin/env bash
# Fails when any C++ file differs from what clang-format makes of it.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t files < <(git ls-files '*.cpp' '*.h')
if ((${#files[@]} == 0)); then
  exit 0
fi
clang-format --dry-run --Werror "${files[@]}"
echo "format: ${#files[@]} files clean"

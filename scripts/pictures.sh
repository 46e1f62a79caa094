#!/usr/bin/env bash
# Writes the README's pictures of the desktop app (the demo world in Linux's
# words, offscreen, light) into docs/pictures. Every other picture snapshot mode knows is one
# VEXEL_SNAPSHOT_DIR away: VEXEL_SNAPSHOT_DIR=/tmp/pictures build/src/vexel-app
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --build build --target vexel-app >/dev/null
# The charts mark local times: UTC keeps the pictures the same on every machine.
TZ=UTC QT_QPA_PLATFORM=offscreen VEXEL_SNAPSHOT_PLATFORM=linux VEXEL_SNAPSHOT_DIR="$PWD/docs/pictures" \
  VEXEL_SNAPSHOT_ONLY="overview-light.png,apps-selected-iterm-light.png,history-light.png,developers-light.png" \
  build/src/vexel-app
ls docs/pictures

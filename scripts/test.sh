#!/usr/bin/env bash
# Sets up, builds and runs every test (the screens on Qt's offscreen platform).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j "$(nproc)"

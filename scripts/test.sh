#!/usr/bin/env bash
# Builds Lullet and runs every test. Works on a fresh Debian 12 machine.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh

jobs=$(nproc)

# The core alone, without Qt Gui or Widgets on the link line: proves the layering holds.
cmake -S . -B build-core -G Ninja -DLULLET_WERROR=ON -DLULLET_CORE_ONLY=ON -DLULLET_BUILD_BENCH=OFF
cmake --build build-core -j "$jobs"
ctest --test-dir build-core --output-on-failure -j "$jobs"

# Everything, with tests that need a display or a session bus given private ones.
cmake -S . -B build -G Ninja -DLULLET_WERROR=ON
cmake --build build -j "$jobs"
dbus-run-session -- xvfb-run -a -s "-screen 0 1280x800x24 -nolisten tcp" \
    ctest --test-dir build --output-on-failure -j "$jobs"

#!/usr/bin/env bash
# Builds Lullet and starts it. Works on a fresh Debian 12 machine.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja
cmake --build build --target lullet -j "$(nproc)"
exec build/src/app/lullet "$@"

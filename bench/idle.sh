#!/usr/bin/env bash
# Idle cost of the running program: CPU share and resident size after it has settled, measured
# from /proc over a quiet period. Usage: bench/idle.sh [BUILD_DIR] [SECONDS] [STORE_FILE]
# With STORE_FILE, that store is copied in first (for example one made by bench_store --keep).
set -euo pipefail
build=${1:-build}
seconds=${2:-60}
store=${3:-}
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
if [ -n "$store" ]; then
    mkdir -p "$home/.local/share/Lullet"
    cp "$store" "$home/.local/share/Lullet/Lullet.sqlite"
fi
export HOME=$home XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
chmod 700 "$home"
"$build/src/app/lullet" >/dev/null 2>&1 &
pid=$!
sleep 5
ticks() { awk '{print $14 + $15}' "/proc/$pid/stat"; }
# Every thread's voluntary switches: each is a wakeup after a sleep.
switches() { cat /proc/$pid/task/*/status | awk '/^voluntary_ctxt_switches/ {n += $2} END {print n}'; }
t0=$(ticks); w0=$(switches); s0=$(date +%s.%N)
sleep "$seconds"
t1=$(ticks); w1=$(switches); s1=$(date +%s.%N)
rss=$(awk '/VmRSS/ {print $2}' "/proc/$pid/status")
wakeups=$((w1 - w0))
kill -TERM "$pid"; wait "$pid" || true
hz=$(getconf CLK_TCK)
awk -v t="$((t1 - t0))" -v hz="$hz" -v a="$s0" -v b="$s1" -v rss="$rss" -v w="$wakeups" 'BEGIN {
    printf "idle CPU: %.3f %% over %.0f s\n", 100 * t / hz / (b - a), b - a;
    printf "resident size: %.1f MiB\n", rss / 1024;
    printf "wakeups: %.2f a second\n", w / (b - a) }'

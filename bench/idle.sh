#!/usr/bin/env bash
# The running program, measured as a user runs it: under Xvfb with a window manager and a tray,
# over a store such as the one `bench_store --keep FILE` makes (50,000 items over two years).
#
#   bench/idle.sh [BUILD_DIR] [IDLE_SECONDS] [STORE_FILE]
#
# For the first launch of the day (the store as made, every rule's occurrence still to make), a
# same-day relaunch (the store the first run left), a launch at login (--in-tray: no window), and
# a bare Qt tray program as the floor, it reports: start to tray icon; how long the program stays
# busy after its window shows (the time it does not answer); resident and proportional memory
# after settling; CPU share and wakeups a second over the idle period.
#
# Then the views a user opens on a large store, from the keyboard as a user would: "Completed",
# the dashboard and a search, each with how long the window stays busy, the CPU it took and the
# memory after; the wakeups a second while the pointer moves over a list; and the memory a
# minute after the window is closed.
set -euo pipefail
build=${1:-build}
seconds=${2:-60}
store=${3:-}
for tool in Xvfb openbox trayer xdotool dbus-run-session; do
    command -v "$tool" >/dev/null || { echo "missing $tool (apt-get install xvfb openbox trayer xdotool dbus)"; exit 2; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

export BUILD=$build SECONDS_IDLE=$seconds STORE=$store WORK=$work
exec dbus-run-session -- bash -c '
set -u
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$WORK/display" 2>/dev/null & X=$!
for i in $(seq 50); do [ -s "$WORK/display" ] && break; sleep 0.1; done
export DISPLAY=:$(cat "$WORK/display")
openbox >/dev/null 2>&1 & O=$!
trayer --edge top --align right --widthtype request --height 28 --SetDockType true \
       --SetPartialStrut true >/dev/null 2>&1 & T=$!
sleep 1
hz=$(getconf CLK_TCK)
now() { date +%s.%N; }
ticks() { awk "{print \$14 + \$15}" "/proc/$1/stat"; }
# The voluntary switches of each thread (each is a wakeup after a sleep), as "thread count" lines.
switches() { for t in /proc/$1/task/*; do
               echo "${t##*/} $(awk "/^voluntary_ctxt_switches/ {print \$2}" $t/status 2>/dev/null)"; done; }
# Wakeups between two samples, over the threads alive at both: a pooled thread that ends
# meanwhile takes its count with it.
woken() { awk "NR == FNR {a[\$1] = \$2; next} (\$1 in a) {n += \$2 - a[\$1]} END {print n + 0}" "$1" "$2"; }
# The first small window of the process: its tray icon.
trayed() { for w in $(xdotool search --pid "$1" 2>/dev/null); do
             g=$(xdotool getwindowgeometry "$w" 2>/dev/null | awk "/Geometry/ {print \$2}")
             [ -n "$g" ] && [ "${g%x*}" -le 64 ] && return 0; done; return 1; }
shown() { for w in $(xdotool search --onlyvisible --pid "$1" 2>/dev/null); do
            g=$(xdotool getwindowgeometry "$w" 2>/dev/null | awk "/Geometry/ {print \$2}")
            [ -n "$g" ] && [ "${g%x*}" -gt 200 ] && return 0; done; return 1; }

measure() { # name, program and arguments
    local name=$1; shift
    local start; start=$(now)
    "$@" >/dev/null 2>&1 & local pid=$!
    local tray=""
    for i in $(seq 1000); do trayed $pid && { tray=$(now); break; }; sleep 0.01; done
    # Busy after the window shows: CPU time used until it has been quiet for half a second.
    local busy=-
    if shown $pid || { sleep 0.5; shown $pid; }; then
        local shownAt; shownAt=$(now); local last; last=$(ticks $pid); local quietSince=$shownAt
        for i in $(seq 300); do
            sleep 0.1; local t; t=$(ticks $pid)
            if [ "$t" -gt "$last" ]; then quietSince=$(now); fi
            last=$t
            awk -v a="$quietSince" -v b="$(now)" "BEGIN {exit !(b - a >= 0.5)}" && break
        done
        busy=$(awk -v a="$shownAt" -v b="$quietSince" "BEGIN {printf \"%.2f\", b - a}")
    fi
    sleep 3
    local t0 s0 t1 s1 rss pss
    t0=$(ticks $pid); switches $pid >"$WORK/w0"; s0=$(now)
    sleep "$SECONDS_IDLE"
    t1=$(ticks $pid); switches $pid >"$WORK/w1"; s1=$(now)
    rss=$(awk "/VmRSS/ {print \$2}" /proc/$pid/status)
    pss=$(awk "/^Pss:/ {print \$2}" /proc/$pid/smaps_rollup)
    kill -TERM $pid; wait $pid 2>/dev/null
    awk -v n="$name" -v st="$start" -v tr="${tray:-0}" -v busy="$busy" -v t="$((t1 - t0))" \
        -v hz="$hz" -v a="$s0" -v b="$s1" -v rss="$rss" -v pss="$pss" -v w="$(woken "$WORK/w0" "$WORK/w1")" "BEGIN {
        printf \"%-26s tray %5.2f s  busy %5s s  RSS %5.1f MiB  PSS %5.1f MiB  CPU %.3f %%  wakeups %.2f/s\n\",
            n, (tr > 0 ? tr - st : -1), busy, rss / 1024, pss / 1024, 100 * t / hz / (b - a), w / (b - a) }"
}

home=$WORK/home; mkdir -p "$home/.local/share/Lullet" "$home/run"; chmod 700 "$home/run"
export HOME=$home XDG_RUNTIME_DIR=$home/run
mkdir -p "$home/.config/Lullet"; printf "[General]\nisShowFirst=1\ndisableAutoPrompt=1\n" > "$home/.config/Lullet/Lullet.conf"
fresh() { rm -f "$home/.local/share/Lullet/"Lullet.sqlite*; [ -n "$STORE" ] && cp "$STORE" "$home/.local/share/Lullet/Lullet.sqlite"; true; }

measure "bare Qt tray program" "$BUILD/bench/bare_tray"
fresh; measure "first launch of the day" "$BUILD/src/app/lullet"
measure "same-day relaunch" "$BUILD/src/app/lullet"
fresh; measure "launch at login (no window)" "$BUILD/src/app/lullet" --in-tray


rssOf() { awk "/VmRSS/ {printf \"%.1f\", \$2 / 1024}" /proc/$1/status; }
# Until the process has used no CPU for half a second: the time taken and the CPU used.
settle() { # pid, start
    local last; last=$(ticks $1); local cpu0=$last; local quietSince; quietSince=$(now)
    for i in $(seq 600); do
        sleep 0.05; local t; t=$(ticks $1)
        [ "$t" -gt "$last" ] && quietSince=$(now)
        last=$t
        awk -v a="$quietSince" -v b="$(now)" "BEGIN {exit !(b - a >= 0.5)}" && break
    done
    awk -v s="$2" -v q="$quietSince" -v c="$((last - cpu0))" -v hz="$hz" \
        "BEGIN {printf \"busy %5.2f s  CPU %5.2f s\", q - s, c / hz}"
}
view() { # pid, name, keys...
    local pid=$1 name=$2; shift 2
    local start; start=$(now); local cpu0; cpu0=$(ticks $pid)
    xdotool "$@"
    printf "%-26s %s  RSS %s MiB\n" "$name" "$(settle $pid $start)" "$(rssOf $pid)"
}
fresh; "$BUILD/src/app/lullet" >/dev/null 2>&1 & P=$!
for i in $(seq 300); do shown $P && break; sleep 0.05; done
sleep 2; settle $P "$(now)" >/dev/null
w=$(for x in $(xdotool search --onlyvisible --pid $P); do g=$(xdotool getwindowgeometry $x | awk "/Geometry/ {print \$2}"); [ "${g%x*}" -gt 200 ] && echo $x; done | head -n 1)
eval "$(xdotool getwindowgeometry --shell "$w" | sed "s/^/W/")"
echo "views ($(rssOf $P) MiB with the window open on Today):"
# The rows of the sidebar and its search field, where a 600 by 600 window has them.
row() { echo mousemove $((WX + 40)) $((WY + 41 + 14 * $1)) click 1; }
view $P "  open Completed" $(row 5)
view $P "  open the dashboard" $(row 0)
xdotool mousemove $((WX + 60)) $((WY + 18)) click 1; sleep 0.5
view $P "  search \"walk\"" type --delay 0 walk
xdotool key Escape; sleep 1
view $P "  open Completed again" $(row 5)
# The pointer over the list, a row at a time, back and forth, for ten seconds.
switches $P >"$WORK/p0"; s0=$(now)
for i in $(seq 100); do
    xdotool mousemove $((WX + 350)) $((WY + 330 + (i % 20) * 12)); sleep 0.1
done
switches $P >"$WORK/p1"; s1=$(now)
awk -v w="$(woken "$WORK/p0" "$WORK/p1")" -v a="$s0" -v b="$s1" \
    "BEGIN {printf \"  pointer over a list        wakeups %.1f/s\n\", w / (b - a)}"
xdotool key --window "$w" alt+F4; sleep 60
echo "  a minute after the window closed: RSS $(rssOf $P) MiB"
kill -TERM $P; wait $P 2>/dev/null
kill $T $O $X 2>/dev/null; wait 2>/dev/null
'

#!/usr/bin/env bash
# Runs a command against a real keyring: its own session bus with a Secret Service of its own
# (gnome-keyring, unlocked with a throwaway password), in a home of its own, without a display
# for any unlock dialog to wait on. The user's keyring is never touched.
set -euo pipefail
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_DATA_HOME=$home/data XDG_CONFIG_HOME=$home/config
export XDG_RUNTIME_DIR=$home/run
mkdir -m 700 -p "$XDG_RUNTIME_DIR"
unset DISPLAY WAYLAND_DISPLAY XDG_CURRENT_DESKTOP

exec dbus-run-session -- bash -c '
    printf "throwaway" | gnome-keyring-daemon --foreground --unlock --components=secrets \
        >/dev/null 2>&1 &
    daemon=$!
    trap "kill $daemon 2>/dev/null" EXIT
    for _ in $(seq 100); do
        if dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
            org.freedesktop.DBus.NameHasOwner string:org.freedesktop.secrets 2>/dev/null |
            grep -q "boolean true"; then
            "$@"
            exit
        fi
        sleep 0.1
    done
    echo "the Secret Service did not start" >&2
    exit 1
' with-keyring "$@"

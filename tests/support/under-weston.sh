#!/bin/sh
# Runs a test natively on Wayland, under a headless weston with a runtime folder of its
# own. Exits with 77 (skipped) where weston is missing or does not come up.
set -u
command -v weston >/dev/null 2>&1 || { echo "SKIP: weston is not installed"; exit 77; }
dir=$(mktemp -d)
chmod 700 "$dir"
XDG_RUNTIME_DIR=$dir weston --backend=headless-backend.so --socket=wayland-test \
    --idle-time=0 >"$dir/weston.log" 2>&1 &
weston=$!
trap 'kill $weston 2>/dev/null; wait $weston 2>/dev/null; rm -rf "$dir"' EXIT
tries=0
while [ ! -S "$dir/wayland-test" ]; do
    tries=$((tries + 1))
    if [ $tries -gt 100 ]; then
        echo "SKIP: weston did not come up"
        cat "$dir/weston.log"
        exit 77
    fi
    sleep 0.1
done
XDG_RUNTIME_DIR=$dir WAYLAND_DISPLAY=wayland-test XDG_SESSION_TYPE=wayland \
    QT_QPA_PLATFORM=wayland "$@"

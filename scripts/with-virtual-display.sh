#!/usr/bin/env bash
# Runs a command on a virtual X display with a window manager and a session bus of its own; ends them with it.
# Usage: scripts/with-virtual-display.sh COMMAND [ARGUMENT...]      TARVO_SCREEN=1280x800x24 sets the size
set -euo pipefail

folder=$(mktemp -d)
chmod 700 "$folder"
x_server= window_manager=
finish() {
  [ -z "$window_manager" ] || kill "$window_manager" 2>/dev/null || true
  [ -z "$x_server" ] || kill "$x_server" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$folder"
}
trap finish EXIT
trap 'exit 143' TERM
trap 'exit 130' INT

mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 "${TARVO_SCREEN:-1280x800x24}" -nolisten tcp -noreset 3>"$folder/number" \
  2>"$folder/xvfb.log" &
x_server=$!
read -r -t 30 number <"$folder/number" || { cat "$folder/xvfb.log" >&2; exit 1; }
export DISPLAY=:$number
unset WAYLAND_DISPLAY
[ -n "${XDG_RUNTIME_DIR:-}" ] || { mkdir -m 700 "$folder/runtime"; export XDG_RUNTIME_DIR=$folder/runtime; }

openbox >"$folder/openbox.log" 2>&1 &
window_manager=$!
for _ in $(seq 100); do
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
  sleep 0.1
done

dbus-run-session -- "$@" &
command=$!
trap 'kill -TERM "$command" 2>/dev/null; wait "$command"; exit 143' TERM
trap 'kill -INT "$command" 2>/dev/null; wait "$command"; exit 130' INT
status=0
wait "$command" || status=$?
exit "$status"

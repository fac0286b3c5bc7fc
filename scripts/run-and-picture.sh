#!/usr/bin/env bash
# Runs a command on the present display and keeps a picture of the screen fresh in $TARVO_PICTURE while it runs.
set -euo pipefail

"$@" &
program=$!
trap 'kill -TERM "$program" 2>/dev/null' TERM INT
echo "Display:  DISPLAY=$DISPLAY (any X client or VNC server of this machine can join it)"
echo "Picture:  $TARVO_PICTURE (taken every 5 seconds)"
echo "End it with Ctrl+C."
(
  while sleep 5; do
    import -window root "$TARVO_PICTURE.new.png" 2>/dev/null && mv "$TARVO_PICTURE.new.png" "$TARVO_PICTURE"
  done
) &
photographer=$!
status=0
wait "$program" || status=$?
kill "$photographer" 2>/dev/null || true
exit "$status"

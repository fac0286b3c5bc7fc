#!/usr/bin/env bash
# Installs what is missing, builds and runs Tarvo. Without a display it runs in a virtual one and says where to look.
# Usage: scripts/run.sh [--for SECONDS] [ARGUMENTS FOR tarvo]
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=
if [ "${1:-}" = --for ]; then
  seconds=${2:?--for takes a number of seconds}
  shift 2
fi

scripts/install-packages.sh build run
cmake --preset release >/dev/null
cmake --build --preset release --target tarvo tarvo-status
program=$PWD/build/release/bin/tarvo
limited=()
[ -z "$seconds" ] || limited=(timeout --preserve-status "$seconds")

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "${limited[@]}" "$program" "$@"
fi

scripts/install-packages.sh virtual-display
export TARVO_PICTURE=$PWD/build/tarvo-on-virtual-display.png
echo "There is no display here, so Tarvo runs in a virtual one."
exec scripts/with-virtual-display.sh scripts/run-and-picture.sh "${limited[@]}" "$program" "$@"

#!/usr/bin/env bash
# Installs what is missing, builds and runs the tests.
# Usage: scripts/test.sh [PRESET...]     presets: dev (all tests; the default), asan, tsan, fuzz, coverage
# TARVO_CONFIGURE holds further options for configuring, e.g. -DTARVO_DESKTOP=OFF.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh build run virtual-display test

[ $# -gt 0 ] || set -- dev
for preset in "$@"; do
  echo "== $preset"
  # shellcheck disable=SC2086 # options are words
  cmake --preset "$preset" ${TARVO_CONFIGURE:-} >/dev/null
  cmake --build --preset "$preset"
  ctest --preset "$preset" -j "$(nproc)"
done

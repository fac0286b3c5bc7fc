#!/usr/bin/env bash
# Installs what is missing, builds and runs the tests.
# Usage: scripts/test.sh [PRESET...]     presets: dev (all tests; the default), asan, tsan, fuzz, coverage
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh build run virtual-display test

[ $# -gt 0 ] || set -- dev
for preset in "$@"; do
  echo "== $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
  ctest --preset "$preset" -j "$(nproc)"
done

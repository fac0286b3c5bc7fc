#!/usr/bin/env bash
# Installs what is missing, builds and runs the tests.
# Usage: scripts/test.sh [PRESET...]     presets: dev (all tests; the default), asan, tsan, fuzz, coverage
# TARVO_CONFIGURE holds further options for configuring, e.g. -DTARVO_DESKTOP=OFF.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh build run virtual-display test

[ $# -gt 0 ] || set -- dev
# On CI's shared machine a whole-program test may be late for a panel that others start: it gets a second and a third
# attempt there, and a test that fails each time fails the run.
repeat=()
[ -z "${CI:-}" ] || repeat=(--repeat until-pass:3)
for preset in "$@"; do
  echo "== $preset"
  # shellcheck disable=SC2086 # options are words
  cmake --preset "$preset" ${TARVO_CONFIGURE:-} >/dev/null
  cmake --build --preset "$preset"
  # Two slots a core: what waits most of its time takes one, what computes takes two (PROCESSORS).
  ctest --preset "$preset" -j "$((2 * $(nproc)))" "${repeat[@]}"
done

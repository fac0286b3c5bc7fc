#!/usr/bin/env bash
# The checks that need no build: format, layering, unlisted files, links, shell syntax. One line each: OK or FAIL.
# Usage: scripts/check.sh [--tidy [BASE]]      --tidy also runs clang-tidy over what changed since BASE (HEAD~1)
set -uo pipefail
cd "$(dirname "$0")/.."

failed=0
report() { # NAME COMMAND...
  local name=$1 output
  shift
  if output=$("$@" 2>&1); then echo "OK    $name"; else echo "FAIL  $name"; echo "$output" | head -60; failed=1; fi
}

cpp_files() { git ls-files --cached --others --exclude-standard '*.cpp' '*.h' '*.mm'; }
format() { cpp_files | xargs -r clang-format --dry-run -Werror; }
shell_syntax() {
  local file
  for file in scripts/*.sh .ci/run; do bash -n "$file" || return 1; done
}
tidy() {
  git diff --name-only --diff-filter=d "$1" -- 'src/*.cpp' 'apps/*.cpp' | xargs -r clang-tidy -p build/dev --quiet
}

report format format
report layering python3 scripts/check_layering.py
report "unlisted files" python3 scripts/check_unlisted.py
report links python3 scripts/check_links.py
report "shell syntax" shell_syntax
[ "${1:-}" != --tidy ] || report "clang-tidy" tidy "${2:-HEAD~1}"
exit $failed

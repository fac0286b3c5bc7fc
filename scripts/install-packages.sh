#!/usr/bin/env bash
# Installs the missing packages of the named groups of scripts/packages.txt (Debian, Ubuntu).
# Usage: scripts/install-packages.sh GROUP...
set -euo pipefail
cd "$(dirname "$0")"

[ $# -gt 0 ] || { echo "usage: $0 GROUP..." >&2; exit 2; }
command -v apt-get >/dev/null || {
  echo "This script installs with apt-get, which is not here. Install the packages of scripts/packages.txt ($*)" \
    "by your system's own means." >&2
  exit 1
}

installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

entries=()
for group in "$@"; do
  grep -q "^\[$group\]\$" packages.txt || { echo "$0: no group named $group" >&2; exit 2; }
  mapfile -t -O "${#entries[@]}" entries < <(awk -v want="[$group]" '
    /^\[/ { inside = ($0 == want); next }
    inside && !/^#/ && NF { print $1 }' packages.txt)
done

missing=()
for entry in "${entries[@]}"; do
  found=no
  for name in ${entry//|/ }; do installed "$name" && found=yes; done
  [ $found = yes ] || missing+=("$entry")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" != 0 ]; then
  command -v sudo >/dev/null || { echo "Missing packages, and no sudo to install them: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
names=()
for entry in "${missing[@]}"; do
  for name in ${entry//|/ }; do
    if apt-cache show "$name" >/dev/null 2>&1; then names+=("$name"); continue 2; fi
  done
  echo "No package of this system answers to $entry" >&2
  exit 1
done
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${names[@]}" \
  </dev/null >/dev/null

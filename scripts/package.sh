#!/usr/bin/env bash
# Builds the Debian package for the present system and checks it. The package stands in build/package.
# Usage: scripts/package.sh [--no-build]      --no-build takes what build/package holds
# One line for each check: OK, FAIL, or SKIP where the tool for it is not installed.
set -euo pipefail
cd "$(dirname "$0")/.."

# Two runs over the same commit give the same bytes.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 0)}
export SOURCE_DATE_EPOCH
umask 022

if [ "${1:-}" != --no-build ]; then
  cmake --preset package
  cmake --build --preset package
fi

failed=0
check() { # NAME TOOL COMMAND...
  local name=$1 tool=$2 output
  shift 2
  if ! command -v "$tool" >/dev/null; then echo "SKIP  $name: $tool is not installed"; return; fi
  if output=$("$@" 2>&1); then echo "OK    $name"; else echo "FAIL  $name"; echo "$output" | head -40; failed=1; fi
}
make_package() { (cd build/package && cpack -G DEB -B "$1" >"$1.log" 2>&1) || { cat "build/package/$1.log"; exit 1; }; }
same_bytes() { cmp build/package/first/*.deb build/package/second/*.deb; }
manual_pages() {
  local page
  for page in build/package/packaging/tarvo.1 build/package/packaging/tarvo-status.1; do
    [ -z "$(man --warnings -E UTF-8 -l -Tutf8 "$page" 2>&1 >/dev/null)" ] || return 1
  done
}
# Plug-ins that the programs load while they run: no program is linked with them, so that only we know of them.
loaded=(platforms/libqxcb.so imageformats/libqsvg.so tls/libqopensslbackend.so)
brings_what_it_loads() {
  local depends plugin owner missing=0
  depends=$(dpkg-deb -f build/package/*.deb Depends)
  for plugin in "${loaded[@]}"; do
    owner=$(dpkg -S "*/qt6/plugins/$plugin") || return 1
    owner=${owner%%:*}
    [[ ", $depends," =~ ", $owner"[,\ ] ]] || { echo "$plugin of $owner is loaded, but Depends is: $depends"; missing=1; }
  done
  return "$missing"
}

rm -rf build/package/first build/package/second build/package/*.deb
make_package first
make_package second
cp build/package/first/*.deb build/package/

check "the same bytes again" cmp same_bytes
check "dependencies on what is loaded" dpkg-deb brings_what_it_loads
check "desktop entry" desktop-file-validate desktop-file-validate packaging/*.desktop
check "AppStream metadata" appstreamcli appstreamcli validate --no-net build/package/packaging/*.metainfo.xml
check "manual pages" man manual_pages
check "lintian" lintian lintian --fail-on error build/package/*.deb
ls -l build/package/*.deb
exit $failed

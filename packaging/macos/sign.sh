#!/bin/sh
# sign.sh BUNDLE IDENTITY: signs the bundle and checks the signature. With an identity of the key chain the program gets
# the hardened runtime and its entitlements. "-" only seals it, for the machine that built it: libraries without a
# common team cannot be loaded under the hardened runtime.
set -eu
bundle=$1
identity=$2
here=$(cd "$(dirname "$0")" && pwd)

if [ "$identity" = "-" ]; then
  codesign --force --deep --sign - "$bundle"
else
  # From the inside out: each seal covers the ones below it.
  find "$bundle/Contents" \( -name '*.dylib' -o -name '*.framework' \) -prune -exec \
    codesign --force --timestamp --options runtime --sign "$identity" {} +
  codesign --force --timestamp --options runtime --entitlements "$here/entitlements.plist" --sign "$identity" \
    "$bundle/Contents/MacOS/tarvo-status"
  codesign --force --timestamp --options runtime --entitlements "$here/entitlements.plist" --sign "$identity" "$bundle"
fi
codesign --verify --deep --strict "$bundle"

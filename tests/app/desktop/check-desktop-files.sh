#!/usr/bin/env bash
# check-desktop-files.sh SOURCE_DIR BUILD_DIR: the .desktop entry and the
# AppStream metainfo pass their validators, and installing into an empty
# prefix places the programs and every desktop file where desktops look.
set -euo pipefail
src=$1 build=$2
id=org.lumidate.Lumidate
for tool in desktop-file-validate appstreamcli; do
  command -v "$tool" >/dev/null || { echo "SKIP: $tool is not installed" >&2; exit 77; }
done

desktop-file-validate "$src/resources/$id.desktop"
appstreamcli validate --no-net "$src/resources/$id.metainfo.xml"

# Everything an install copies must exist (a no-op when it is built).
cmake --build "$build" --target lumidate lumidate-cli lumidate_icons lumidate_package_files >/dev/null
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$build" --prefix "$prefix" >/dev/null

program=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$src/resources/$id.desktop")
expected=(
  "bin/$program"
  "bin/lumidate-cli"
  "share/applications/$id.desktop"
  "share/metainfo/$id.metainfo.xml"
  "share/icons/hicolor/scalable/apps/$id.svg"
)
for size in 16 22 24 32 48 64 128 256; do
  expected+=("share/icons/hicolor/${size}x${size}/apps/$id.png")
done
status=0
for file in "${expected[@]}"; do
  if [[ ! -s "$prefix/$file" ]]; then
    echo "missing after install: $file" >&2
    status=1
  fi
done
# Each rendering has the size its folder names.
for size in 16 48 256; do
  png="$prefix/share/icons/hicolor/${size}x${size}/apps/$id.png"
  [[ -s "$png" ]] || continue
  # Width and height: two big-endian 32-bit numbers at byte 16 of a PNG.
  read -r w h < <(od -An -tu1 -j16 -N8 "$png" |
                  awk '{print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8}')
  if [[ "$w" != "$size" || "$h" != "$size" ]]; then
    echo "$png is ${w}x${h}, expected ${size}x${size}" >&2
    status=1
  fi
done
[[ $status -eq 0 ]] && echo "desktop files valid and installed: ${#expected[@]} files"
exit $status

#!/usr/bin/env bash
# Makes the .deb, unpacks it into a scratch root as dpkg would install it,
# and runs what it installed from there: the tool on the sample game, and the
# editor finding its help files under share/.
#   deb_test.sh BUILD_DIR SAMPLE_DIR APP_ID
set -euo pipefail
build="$1" sample="$2" app_id="$3"
scratch="$(mktemp -d "$build/deb-test.XXXXXX")"
trap 'rm -rf "$scratch"' EXIT

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$scratch/out" >"$scratch/cpack.log" 2>&1 ||
  { cat "$scratch/cpack.log"; exit 1; }
debs=("$scratch"/out/*.deb)
[ -f "${debs[0]}" ] || { echo "cpack made no .deb"; exit 1; }
root="$scratch/root"
dpkg -x "${debs[0]}" "$root"

missing=0
for file in bin/kolta-editor bin/kolta-data \
    share/kolta-editor/help.txt share/kolta-editor/guide.html share/kolta-editor/file-formats.html \
    "share/applications/$app_id.desktop" "share/metainfo/$app_id.metainfo.xml" \
    share/man/man1/kolta-data.1 \
    share/icons/hicolor/{16x16,24x24,32x32,48x48,64x64,128x128,256x256}/apps/"$app_id.png"; do
  [ -f "$root/usr/$file" ] || { echo "the package lacks /usr/$file"; missing=1; }
done
[ "$missing" -eq 0 ]

dpkg-deb -f "${debs[0]}" Depends | grep -q libqt6widgets6 ||
  { echo "the package does not depend on Qt's widgets library"; exit 1; }

version="$("$root/usr/bin/kolta-data" --version)"
[ "$version" = "kolta-data $(dpkg-deb -f "${debs[0]}" Version)" ] ||
  { echo "kolta-data --version said: $version"; exit 1; }

cp -r "$sample" "$scratch/game"
info="$("$root/usr/bin/kolta-data" info "$scratch/game")"
grep -qx 'PlayerCount=[1-9][0-9]*' <<<"$info" && grep -qx 'TeamCount=[1-9][0-9]*' <<<"$info" ||
  { echo "kolta-data info said:"; echo "$info"; exit 1; }

where="$(HOME="$scratch/home" XDG_DATA_DIRS="$scratch/none" QT_QPA_PLATFORM=offscreen \
  "$root/usr/bin/kolta-editor" --where-help)" || { echo "the editor misses a help file:"; echo "$where"; exit 1; }
for name in help.txt guide.html file-formats.html; do
  grep -qxF "$name: $root/usr/share/kolta-editor/$name" <<<"$where" ||
    { echo "the editor did not find $name under share/:"; echo "$where"; exit 1; }
done
echo "The package installs and runs: $(basename "${debs[0]}")"

#!/usr/bin/env bash
# kolta-data.exe under Wine writes exactly what the Linux kolta-data writes:
# `normalize` on a copy of every game folder the tests have, compared file by
# file and byte by byte, exit codes included.
#   same_bytes.sh LINUX_TOOL WINE WINDOWS_TOOL SCRATCH FOLDER...
set -euo pipefail
linux_tool="$1" wine="$2" windows_tool="$3" scratch="$4"
shift 4
rm -rf "$scratch"
failed=0
for folder in "$@"; do
  name="$(basename "$folder")"
  # Windows file names ignore case: Players.dat is players.dat there and a
  # game the Linux tool cannot find, so the two rightly differ.
  if ls "$folder" | grep -q '^[^a-z].*\.dat$'; then
    echo "$name: left out, its file names differ from the game's only in case"
    continue
  fi
  mkdir -p "$scratch/linux" "$scratch/windows"
  cp -r "$folder" "$scratch/linux/$name"
  cp -r "$folder" "$scratch/windows/$name"
  linux_code=0 windows_code=0 differs=0
  "$linux_tool" normalize "$scratch/linux/$name" >/dev/null 2>&1 || linux_code=$?
  "$wine" "$windows_tool" normalize "Z:$scratch/windows/$name" >/dev/null 2>&1 || windows_code=$?
  if [ "$linux_code" -ne "$windows_code" ]; then
    echo "$name: exit $linux_code on Linux, $windows_code on Windows"
    differs=1
  fi
  if ! diff -r "$scratch/linux/$name" "$scratch/windows/$name" >/dev/null; then
    echo "$name: the files differ:"
    diff -rq "$scratch/linux/$name" "$scratch/windows/$name" || true
    differs=1
  fi
  if [ "$differs" -eq 0 ]; then
    echo "$name: exit $linux_code, $(ls "$scratch/linux/$name" | wc -l) files, same bytes"
  fi
  failed=$((failed | differs))
done
[ "$failed" -eq 0 ] && rm -rf "$scratch"
exit "$failed"

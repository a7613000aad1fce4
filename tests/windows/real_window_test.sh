#!/usr/bin/env bash
# The portable editor in a real window: Wine on a virtual X screen with a
# window manager. Each editor opens its own copy of the sample game; the
# keyboard picks the second player of the first squad, types 77 into his
# batting skill and saves with Ctrl+S, first in the Linux editor, then in the
# Windows one unzipped from the package. Both must leave the same bytes. Then
# the Windows editor gets a second edit and the close box, and must ask
# whether to save; "No" closes it and keeps the saved files.
#   real_window_test.sh ZIP LINUX_EDITOR SAMPLE SCRATCH
set -euo pipefail
zip="$1" linux_editor="$2" sample="$3" scratch="$4"
[ -f "$zip" ] || { echo "There is no $zip: cpack makes it (./windows.sh --editor runs cpack)"; exit 1; }
rm -rf "$scratch"
mkdir -p "$scratch/linux" "$scratch/windows"
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
unset WINEPATH

Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$scratch/display" 2>/dev/null &
xvfb=$!
openbox_pid=""
trap 'kill "$xvfb" ${openbox_pid:+"$openbox_pid"} 2>/dev/null || true; wineserver --kill 2>/dev/null || true' EXIT
for _ in $(seq 50); do [ -s "$scratch/display" ] && break; sleep 0.1; done
export DISPLAY=":$(cat "$scratch/display")"
# A window mapped while openbox is still starting can be lost to it: it stays
# unmapped for good. openbox runs its startup command once it manages the
# screen, so the editors start after that.
openbox --startup "touch '$scratch/wm-ready'" >/dev/null 2>&1 &
openbox_pid=$!
for _ in $(seq 100); do [ -e "$scratch/wm-ready" ] && break; sleep 0.1; done
[ -e "$scratch/wm-ready" ] || { echo "openbox did not start within 10 s"; exit 1; }

# wait_for_window NAME_PATTERN: the id of the first visible window so named,
# within 60 s. A search fails when a window it looks at goes away under it
# (Wine makes and drops windows as it starts), so it is asked again.
wait_for_window() {
  local id
  for _ in $(seq 300); do
    id="$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n1)" || true
    [ -z "$id" ] || { echo "$id"; return 0; }
    sleep 0.2
  done
  return 1
}

# no_window WHO LOG: fails, saying which named windows exist, whether each is
# shown, and what the editor printed.
no_window() {
  echo "$1 showed no window. Named windows:"
  local visible
  visible="$(xdotool search --onlyvisible --name . 2>/dev/null || true)"
  { xdotool search --name . 2>/dev/null || true; } | while read -r id; do
    local state="not shown"
    grep -qx "$id" <<<"$visible" && state="shown"
    echo "  $(xdotool getwindowname "$id" 2>/dev/null) ($state)"
  done
  echo "What it printed:"
  cat "$2"
  exit 1
}

# press WINDOW KEYS...: the keys, typed into that window once it is active.
press() {
  local window="$1"
  shift
  xdotool windowactivate --sync "$window" 2>/dev/null || true
  sleep 0.5
  xdotool key --delay 100 "$@"
}

# The edit, made the same way in both editors: the squad list has the
# keyboard at start; Down picks the second player, eleven Tabs go up the
# player column to his batting skill.
edit_and_save() {
  local window="$1"
  press "$window" Down $(printf 'Tab %.0s' $(seq 11)) ctrl+a 7 7 ctrl+s
  local info
  info="$(wait_for_window '^Info$')" || { echo "No word of a save after Ctrl+S"; return 1; }
  press "$info" Return
}

# game_copy DIR: the sample game copied into DIR/game.
game_copy() {
  mkdir -p "$1/game"
  cp "$sample/players.dat" "$sample/teams.dat" "$1/game/"
}

game_copy "$scratch/linux"
cp "$linux_editor" "$scratch/linux/kolta-editor"
printf '%s\r\n' "$scratch/linux/game" >"$scratch/linux/editor.dat"
"$scratch/linux/kolta-editor" >"$scratch/linux/log" 2>&1 &
linux_pid=$!
window="$(wait_for_window '^KOLTA editor')" || no_window "The Linux editor" "$scratch/linux/log"
edit_and_save "$window"
kill "$linux_pid"
wait "$linux_pid" 2>/dev/null || true

game_copy "$scratch/windows"
(cd "$scratch/windows" && unzip -q "$zip")
folder="$(dirname "$(find "$scratch/windows" -name kolta-editor.exe)")"
printf 'Z:%s\r\n' "${scratch//\//\\}\\windows\\game" >"$folder/editor.dat"
started=$(date +%s%N)
wine "$folder/kolta-editor.exe" >"$scratch/windows/log" 2>&1 &
wine_pid=$!
window="$(wait_for_window '^KOLTA editor')" || no_window "The Windows editor" "$scratch/windows/log"
echo "The Windows editor showed its window $(( ($(date +%s%N) - started) / 1000000 )) ms after it was started."
edit_and_save "$window"

for file in players.dat teams.dat; do
  cmp "$scratch/linux/game/$file" "$scratch/windows/game/$file" ||
    { echo "The Windows editor saved a $file unlike the Linux editor's"; exit 1; }
done
! cmp -s "$sample/players.dat" "$scratch/windows/game/players.dat" ||
  { echo "The edit did not reach players.dat"; exit 1; }

cp "$scratch/windows/game/players.dat" "$scratch/saved-players.dat"
press "$window" ctrl+a 6 6 alt+F4
question="$(wait_for_window '^Saving\.\.$')" || { echo "The close box did not ask whether to save"; exit 1; }
press "$question" n
timeout 30 tail --pid="$wine_pid" -f /dev/null ||
  { echo "The Windows editor did not close after No"; exit 1; }
cmp "$scratch/saved-players.dat" "$scratch/windows/game/players.dat" ||
  { echo "No to the save question still changed players.dat"; exit 1; }
rm -rf "$scratch"
echo "The Windows editor saves the Linux editor's bytes and asks before closing on unsaved edits."

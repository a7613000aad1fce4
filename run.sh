#!/usr/bin/env bash
# Sets up a fresh Debian machine, builds, and opens the editor on a working
# copy of the sample game (the committed sample files are never touched).
source "$(dirname "$0")/tools/setup.sh"
kolta_install_missing
kolta_build

game="$KOLTA_BUILD/sample-game"
if [ ! -f "$game/players.dat" ] || [ ! -f "$game/teams.dat" ]; then
  mkdir -p "$game"
  cp "$KOLTA_ROOT/sample/players.dat" "$KOLTA_ROOT/sample/teams.dat" "$game/"
fi

# editor.dat beside the program names the game's folder. A setting the user
# made through File > Options stays, unless it points at the committed sample.
setting="$KOLTA_BUILD/bin/editor.dat"
if [ ! -s "$setting" ] || [ "$(head -n 1 "$setting" | tr -d '\r')" = "$KOLTA_ROOT/sample" ]; then
  printf '%s\r\n' "$game" > "$setting"
fi

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display to open the editor on. On a machine without one, try:" >&2
  echo "  xvfb-run -a $0" >&2
  exit 1
fi
exec "$KOLTA_BUILD/bin/kolta-editor"

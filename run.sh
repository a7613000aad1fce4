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
"$KOLTA_BUILD/bin/kolta-data" info "$game"

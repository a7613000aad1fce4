#!/usr/bin/env bash
# What a Windows player does with the installer, in a scratch Wine prefix:
# installs it silently, starts the installed editor (on Qt's offscreen
# platform, as there is no screen) to find its help files, uninstalls it
# silently, and finds nothing left behind: no file or folder named for it, no
# entry in Add/Remove Programs.
#   setup_test.sh SETUP_EXE SCRATCH
set -euo pipefail
setup="$1" scratch="$2"
[ -f "$setup" ] || { echo "There is no $setup: cpack makes it (./windows.sh --editor runs cpack)"; exit 1; }
rm -rf "$scratch"
mkdir -p "$scratch"
export WINEPREFIX="$scratch/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
unset DISPLAY WAYLAND_DISPLAY WINEPATH
trap 'wineserver --kill 2>/dev/null || true; rm -rf "$scratch"' EXIT
wineboot --init >/dev/null 2>&1
wineserver --wait

folder="$WINEPREFIX/drive_c/Program Files/kolta-editor"
menu="$WINEPREFIX/drive_c/ProgramData/Microsoft/Windows/Start Menu/Programs/KOLTA editor"
uninstall_key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\kolta-editor'

wine "$setup" /S
wineserver --wait
for file in kolta-editor.exe kolta-data.exe Uninstall.exe platforms/qwindows.dll licenses/qt/SOURCE.txt; do
  [ -f "$folder/$file" ] || { echo "The installer did not install $file"; exit 1; }
done
[ -f "$menu/KOLTA editor.lnk" ] || { echo "The installer made no Start-menu entry"; exit 1; }
wine reg query "$uninstall_key" >/dev/null 2>&1 || { echo "Add/Remove Programs does not list the editor"; exit 1; }

where="$(wine "$folder/kolta-editor.exe" -platform offscreen --where-help | tr -d '\r')" ||
  { echo "The installed editor misses a help file:"; echo "$where"; exit 1; }
for name in help.txt guide.html file-formats.html; do
  grep -qxF "$name: C:\\Program Files\\kolta-editor\\$name" <<<"$where" ||
    { echo "The installed editor did not find $name beside it:"; echo "$where"; exit 1; }
done

wine "$folder/Uninstall.exe" /S
wineserver --wait
left="$(find "$WINEPREFIX/drive_c" -iname '*kolta*')"
[ -z "$left" ] || { echo "The uninstaller left:"; echo "$left"; exit 1; }
! wine reg query "$uninstall_key" >/dev/null 2>&1 || { echo "The uninstaller left the Add/Remove Programs entry"; exit 1; }
echo "$(basename "$setup") installs, runs and uninstalls, leaving nothing behind."

#!/usr/bin/env bash
# Builds the project for 64-bit Windows with mingw-w64 into build-windows/ and
# runs its tests under Wine.
#   ./windows.sh           the editor too when Qt for Windows is in the cache
#                          (tools/windows_qt.sh), else the core, kolta-data.exe
#                          and their tests, and a line on how to get the editor
#   ./windows.sh --editor  builds that Qt first when it is missing (once a
#                          machine, about 35 CPU-minutes), then everything
# With the editor: build-windows/bin/ holds kolta-editor.exe and kolta-data.exe
# with the DLLs they need, and cpack makes the portable zip and the installer
# in build-windows/; the window tests, the installer's test and the real-window
# test run under Wine as well. Installs what a fresh Debian 12 machine lacks.
# Wine's own files are in build-windows/wine; nothing outside the project
# folder is touched but the Qt cache.
source "$(dirname "$0")/tools/setup.sh"
windows_packages=(g++-mingw-w64-x86-64-posix wine wine64 googletest)
# Wine's own fonts stand in for Windows' in the real-window test.
editor_packages=(nsis xvfb openbox xdotool unzip fonts-wine)

windows_build="${KOLTA_WINDOWS_BUILD:-$KOLTA_ROOT/build-windows}"
qt_script="$KOLTA_ROOT/tools/windows_qt.sh"
if [ "${1:-}" = --editor ]; then
  kolta_install_missing "${windows_packages[@]}" "${editor_packages[@]}"
  "$qt_script"
  qt="$("$qt_script" --where)"
elif qt="$("$qt_script" --where)"; then
  kolta_install_missing "${windows_packages[@]}" "${editor_packages[@]}"
else
  kolta_install_missing "${windows_packages[@]}"
  echo "The editor is not built for Windows: Qt for Windows is not in the cache; './windows.sh --editor' builds it once (about 35 CPU-minutes, 20 min on 2 cores)."
  qt=""
fi
mkdir -p "$windows_build"

# The Linux programs whose bytes the Windows ones must match, built from the
# same sources.
linux_build="$windows_build/linux"
linux_targets=(kolta-data)
[ -n "$qt" ] && linux_targets+=(kolta-editor)
cmake -S "$KOLTA_ROOT" -B "$linux_build" -G Ninja $(kolta_launcher) \
  -DKOLTA_BUILD_GUI="$([ -n "$qt" ] && echo ON || echo OFF)" -DBUILD_TESTING=OFF >/dev/null
cmake --build "$linux_build" -j "$(nproc)" --target "${linux_targets[@]}"

# A private, headless Wine: no display, no offer to install Mono or Gecko, no
# messages of its own.
export WINEPREFIX="$windows_build/wine"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
unset DISPLAY WAYLAND_DISPLAY
if [ ! -f "$WINEPREFIX/system.reg" ]; then
  echo "Making the Wine prefix in $WINEPREFIX"
  wineboot --init >/dev/null 2>&1
  wineserver --wait
fi
# Windows programs ask for Tahoma by the names of the dialog font; Debian's
# Wine does not find its own Tahoma (fonts-wine) unless it is in the prefix.
if [ -n "$qt" ]; then
  cp -u /usr/share/wine/fonts/tahoma*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
fi
# Drive K: is a scratch folder, for a game whose folder is a drive's root.
drive="$windows_build/drive-k"
mkdir -p "$drive"
ln -sfn "$drive" "$WINEPREFIX/dosdevices/k:"

toolchain="$KOLTA_ROOT/cmake/mingw-w64-x86_64.cmake"
options=(-DKOLTA_GTEST_SOURCE=/usr/src/googletest -DCMAKE_BUILD_TYPE=Release
         -DKOLTA_LINUX_TOOL="$linux_build/bin/kolta-data" -DKOLTA_DRIVE_ROOT='K:\')
if [ -n "$qt" ]; then
  # Qt's own toolchain file finds that Qt and its host tools, then reads ours.
  toolchain_file="$qt/lib/cmake/Qt6/qt.toolchain.cmake"
  options+=(-DQT_CHAINLOAD_TOOLCHAIN_FILE="$toolchain" -DKOLTA_BUILD_GUI=ON
            -DKOLTA_LINUX_EDITOR="$linux_build/bin/kolta-editor")
else
  toolchain_file="$toolchain"
  options+=(-DKOLTA_BUILD_GUI=OFF)
fi
# CMake reads a toolchain file only when it first configures a folder.
fresh=()
grep -qxF "CMAKE_TOOLCHAIN_FILE:FILEPATH=$toolchain_file" "$windows_build/CMakeCache.txt" 2>/dev/null || fresh=(--fresh)
cmake "${fresh[@]}" -S "$KOLTA_ROOT" -B "$windows_build" -G Ninja $(kolta_launcher) \
  -DCMAKE_TOOLCHAIN_FILE="$toolchain_file" "${options[@]}" >/dev/null
cmake --build "$windows_build" -j "$(nproc)"

if [ -n "$qt" ]; then
  cpack --config "$windows_build/CPackConfig.cmake" -B "$windows_build" >"$windows_build/cpack.log" 2>&1 ||
    { cat "$windows_build/cpack.log"; exit 1; }
  for package in "$windows_build"/kolta-editor-*-win64.zip "$windows_build"/kolta-editor-*-win64-setup.exe; do
    echo "Made $(basename "$package"): $(du -m "$package" | cut -f1) MB"
  done
fi
(cd "$windows_build" && ctest --output-on-failure -j "$(nproc)")
wineserver --kill 2>/dev/null || true

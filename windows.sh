#!/usr/bin/env bash
# Builds the game data core, kolta-data.exe and the core's tests for 64-bit
# Windows with mingw-w64, and runs them under Wine: the tests, a round trip of
# the sample game through kolta-data.exe, and the check that kolta-data.exe
# writes exactly the bytes the Linux build writes. Then checks that the
# editor's sources compile for Windows (tools/windows_gui_check.sh). Installs what a fresh
# Debian 12 machine lacks. Everything lands in build-windows/, Wine's own
# files included, so nothing outside the project folder is touched.
source "$(dirname "$0")/tools/setup.sh"
kolta_install_missing g++-mingw-w64-x86-64-posix wine wine64 googletest

windows_build="${KOLTA_WINDOWS_BUILD:-$KOLTA_ROOT/build-windows}"
mkdir -p "$windows_build"

# The Linux kolta-data whose bytes the Windows one must match: the plain
# build's, or one built here without the editor and the tests.
linux_tool="$KOLTA_BUILD/bin/kolta-data"
if [ ! -x "$linux_tool" ]; then
  cmake -S "$KOLTA_ROOT" -B "$windows_build/linux" -G Ninja $(kolta_launcher) \
    -DKOLTA_BUILD_GUI=OFF -DBUILD_TESTING=OFF >/dev/null
  cmake --build "$windows_build/linux" -j "$(nproc)" --target kolta-data
  linux_tool="$windows_build/linux/bin/kolta-data"
fi

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
# Drive K: is a scratch folder, for a game whose folder is a drive's root.
drive="$windows_build/drive-k"
mkdir -p "$drive"
ln -sfn "$drive" "$WINEPREFIX/dosdevices/k:"

cmake -S "$KOLTA_ROOT" -B "$windows_build" -G Ninja $(kolta_launcher) \
  -DCMAKE_TOOLCHAIN_FILE="$KOLTA_ROOT/cmake/mingw-w64-x86_64.cmake" \
  -DKOLTA_BUILD_GUI=OFF -DKOLTA_GTEST_SOURCE=/usr/src/googletest \
  -DKOLTA_LINUX_TOOL="$linux_tool" -DKOLTA_DRIVE_ROOT='K:\' >/dev/null
cmake --build "$windows_build" -j "$(nproc)"
(cd "$windows_build" && ctest --output-on-failure -j "$(nproc)")

# The editor itself needs Qt for Windows, which is not here: its sources are
# compiled for Windows against this machine's Qt headers instead.
"$KOLTA_ROOT/tools/windows_gui_check.sh"
wineserver --kill 2>/dev/null || true

#!/usr/bin/env bash
# Qt 6 for Windows cannot be installed here, so the editor cannot be built for
# Windows on this machine. This is the next best check: every source of the
# windows and the editor's main, and what moc makes of every Q_OBJECT header,
# compiled for Windows by mingw-w64 against this machine's Qt headers (which
# switch to their Windows declarations when _WIN32 is set). It catches a
# POSIX call, a missing include or a non-portable construct in src/ui and
# src/app; it cannot catch what only the Windows build of Qt itself declares.
#   windows_gui_check.sh [QT_INCLUDE_DIR]
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
qt="${1:-/usr/include/x86_64-linux-gnu/qt6}"
moc="${KOLTA_MOC:-/usr/lib/qt6/libexec/moc}"
compiler=x86_64-w64-mingw32-g++-posix
flags=(-std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -DUNICODE -D_UNICODE
       -isystem "$qt" -isystem "$qt/QtCore" -isystem "$qt/QtGui" -isystem "$qt/QtWidgets"
       -I"$root/src/ui" -I"$root/src/core")
export compiler moc
export flags_text="${flags[*]}"

check_source() {
  # shellcheck disable=SC2086
  $compiler $flags_text "$1" || { echo "FAILED: $1" >&2; return 1; }
}
check_moc() {
  # shellcheck disable=SC2086
  "$moc" "$1" | $compiler $flags_text -x c++ -include "$1" - ||
    { echo "FAILED: moc of $1" >&2; return 1; }
}
export -f check_source check_moc

cd "$root"
sources=(src/ui/*/*.cpp src/app/*.cpp)
headers=($(grep -l 'Q_OBJECT' src/ui/*/*.h))
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -I{} bash -c 'check_source "$@"' _ {}
printf '%s\n' "${headers[@]}" | xargs -P "$(nproc)" -I{} bash -c 'check_moc "$@"' _ {}
echo "The editor's ${#sources[@]} sources and ${#headers[@]} moc outputs compile for Windows (mingw-w64, syntax only)."

#!/usr/bin/env bash
# Qt for 64-bit Windows, built once per machine from Debian's source of the
# Qt this machine has (qt6-base), cross-compiled with mingw-w64 into
# ~/.cache/kolta-editor/qt-VERSION-mingw-HASH. HASH covers the Debian version,
# the toolchain and the options below, so changing any of them builds a fresh
# Qt beside the old one. Does nothing when that folder is complete.
#   windows_qt.sh          builds it when needed; prints its folder last
#   windows_qt.sh --where  prints the folder, or fails when it is not built
# The first build takes about 35 CPU-minutes and 1.5 GB of disk while it runs;
# what stays is about 70 MB.
source "$(dirname "$0")/setup.sh"

qt_cache="${KOLTA_QT_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/kolta-editor}"

# Only Core, Gui, Widgets and Test, with the platform, style and image
# plugins (the main window's banner is a JPEG); the image, font and text
# libraries Qt bundles, so no DLL comes from elsewhere.
# DirectWrite's newest font database is built only with Direct2D in this Qt,
# yet the Windows platform plugin asks for it whenever it is configured: off
# with Direct2D, the plugin keeps to the GDI fonts it uses by default anyway.
qt_options=(
  -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
  -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_freetype=OFF
  -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_jpeg=OFF
  -DFEATURE_zstd=OFF
  -DINPUT_opengl=no -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF
  -DFEATURE_direct2d=OFF -DFEATURE_directwrite3=OFF
  -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_icu=OFF
  -DFEATURE_printsupport=OFF -DFEATURE_concurrent=OFF
  -DFEATURE_xml=OFF -DFEATURE_tabletevent=OFF
  -DFEATURE_androiddeployqt=OFF -DFEATURE_qmake=OFF
)

qt_toolchain='set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)'

# The host's Qt runs moc, rcc and uic for the cross build, so both must be
# the same release: the source is the host's own Debian version.
debian_version="$(dpkg-query -W -f='${Version}' qt6-base-dev 2>/dev/null || true)"
if [ -z "$debian_version" ]; then
  [ "${1:-}" = --where ] && exit 1
  kolta_install_missing
  debian_version="$(dpkg-query -W -f='${Version}' qt6-base-dev)"
fi
qt_version="${debian_version%%+*}"
qt_hash="$(printf '%s\n' "$debian_version" "$qt_toolchain" "${qt_options[@]}" | sha256sum | cut -c1-12)"
qt_prefix="$qt_cache/qt-$qt_version-mingw-$qt_hash"
complete_mark="$qt_prefix/kolta-build-complete"

if [ "${1:-}" = --where ]; then
  echo "$qt_prefix"
  [ -f "$complete_mark" ]
  exit
fi
if [ -f "$complete_mark" ]; then
  echo "$qt_prefix"
  exit 0
fi

kolta_install_missing g++-mingw-w64-x86-64-posix dpkg-dev

# apt-get source needs a deb-src entry. Debian's own entries are left as they
# are: a twin of each, for sources, goes into a file of its own.
if ! apt-cache showsrc qt6-base 2>/dev/null | grep -q '^Package:'; then
  twin=/etc/apt/sources.list.d/kolta-editor-deb-src
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  echo "== Adding Debian's source entries in $twin.*"
  if [ -f /etc/apt/sources.list.d/debian.sources ]; then
    sed 's/^Types: deb$/Types: deb-src/' /etc/apt/sources.list.d/debian.sources | $sudo tee "$twin.sources" >/dev/null
  else
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list | $sudo tee "$twin.list" >/dev/null
  fi
  $sudo apt-get update -qq
fi

started=$(date +%s)
work="$qt_prefix.work"
rm -rf "$work" "$qt_prefix"
mkdir -p "$work"
cd "$work"

echo "== Fetching Debian's qt6-base $debian_version source into $work (Debian's patches are applied as it unpacks)"
apt-get source -qq "qt6-base=$debian_version" >fetch.log 2>&1 || { cat fetch.log >&2; exit 1; }
source_dir="$(find "$work" -maxdepth 1 -type d -name 'qt6-base-*' | head -n1)"

echo "== Configuring Qt $qt_version for x86_64-w64-mingw32"
printf '%s\n' "$qt_toolchain" >toolchain.cmake
cmake -S "$source_dir" -B build -G Ninja "${qt_options[@]}" \
  -DCMAKE_TOOLCHAIN_FILE="$work/toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$qt_prefix" \
  -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
  >configure.log 2>&1 || { tail -n 40 configure.log >&2; exit 1; }

echo "== Building Qt $qt_version (the counter is ninja's)"
cmake --build build -j "$(nproc)"

echo "== Installing into $qt_prefix"
cmake --install build --strip >install.log 2>&1
# Qt's licence texts, and those of the libraries it bundles, go with every
# copy of the DLLs; so does the word on where this source came from.
mkdir -p "$qt_prefix/licenses"
cp -r "$source_dir/LICENSES" "$qt_prefix/licenses/"
(cd "$source_dir" && find src/3rdparty -maxdepth 2 -type f \
   \( -iname '*licen[cs]e*' -o -iname 'copying*' -o -name qt_attribution.json \) \
   -exec cp --parents {} "$qt_prefix/licenses/" \;)
cat >"$qt_prefix/licenses/SOURCE.txt" <<EOF
These Qt $qt_version libraries (Qt Core, Qt Gui, Qt Widgets and their plugins)
are built from Debian's source package qt6-base $debian_version, with the
patches Debian applies, unchanged otherwise, and cross-compiled for 64-bit
Windows with mingw-w64. The source is at
  https://snapshot.debian.org/package/qt6-base/$debian_version/
and on any Debian 12 machine with 'apt-get source qt6-base=$debian_version'.
The build options were:
$(printf '  %s\n' "${qt_options[@]}")
Qt is used here under the GNU Lesser General Public License version 3
(LICENSES/LGPL-3.0-only.txt). The Qt DLLs beside the program may be replaced
by any build of the same Qt version.
EOF

cd "$qt_cache"
rm -rf "$work"
elapsed=$(( $(date +%s) - started ))
times >"$qt_cache/times"  # the second line: the CPU time of the steps above, user then system
cpu="$(tail -n 1 "$qt_cache/times")"
rm "$qt_cache/times"
printf 'Built in %d min %02d s on %d cores (CPU time: user %s, system %s), %s\n' \
  $((elapsed / 60)) $((elapsed % 60)) "$(nproc)" ${cpu} "$(date -u +%F)" >"$complete_mark"
echo "== Qt $qt_version for Windows is ready: $(cat "$complete_mark")"
echo "$qt_prefix"

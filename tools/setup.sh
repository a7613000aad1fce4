# Shared by run.sh, test.sh, fuzz.sh and bench.sh: installs what a fresh Debian
# machine lacks and builds the project. Source it; it defines nothing else.
set -euo pipefail

KOLTA_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
KOLTA_BUILD="${KOLTA_BUILD:-$KOLTA_ROOT/build}"

kolta_packages=(cmake ninja-build g++ ccache qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev fonts-dejavu-core
                desktop-file-utils appstream dpkg-dev)

kolta_install_missing() {
  local missing=()
  for pkg in "${kolta_packages[@]}" "$@"; do
    dpkg -s "$pkg" >/dev/null 2>&1 || missing+=("$pkg")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# ccache, when it is there, lets the plain, sanitized and fuzz builds and the
# worktrees of one machine share what they compiled. The sloppiness lets it
# cache the sources compiled with a precompiled header too.
export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros,include_file_mtime,include_file_ctime}"
kolta_launcher() {
  command -v ccache >/dev/null && echo "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
  return 0
}

# Builds everything into $KOLTA_BUILD, or only the targets named in $KOLTA_TARGETS.
kolta_build() {
  cmake -S "$KOLTA_ROOT" -B "$KOLTA_BUILD" -G Ninja $(kolta_launcher) "$@" >/dev/null
  cmake --build "$KOLTA_BUILD" -j "$(nproc)" ${KOLTA_TARGETS:+--target $KOLTA_TARGETS}
}

# The fuzz targets need clang and its fuzzer runtime, which Debian ships apart.
kolta_fuzz_packages=(clang libclang-rt-dev)

# One fuzz target for each seed corpus folder: fuzz/corpus/NAME feeds NAME_fuzz.
kolta_fuzz_targets() {
  local corpus
  for corpus in "$KOLTA_ROOT"/fuzz/corpus/*/; do
    basename "$corpus"
  done
}

# Runs `$1 NAME` for every fuzz target, as many at once as there are cores;
# fails when any of them failed.
kolta_each_fuzz_target() {
  local run="$1" name failed=0 running=0
  for name in $(kolta_fuzz_targets); do
    if [ "$running" -ge "$(nproc)" ]; then
      wait -n || failed=1
      running=$((running - 1))
    fi
    "$run" "$name" &
    running=$((running + 1))
  done
  while [ "$running" -gt 0 ]; do
    wait -n || failed=1
    running=$((running - 1))
  done
  return "$failed"
}

# Whether clang and its fuzzer runtime are here, installing them if they can be.
kolta_fuzz_available() {
  local missing=0
  for pkg in "${kolta_fuzz_packages[@]}"; do
    dpkg -s "$pkg" >/dev/null 2>&1 || missing=1
  done
  [ "$missing" -eq 0 ] && return 0
  (kolta_install_missing "${kolta_fuzz_packages[@]}") && command -v clang++ >/dev/null
}

# Builds the fuzz targets into $1 with clang.
kolta_build_fuzz() {
  local dir="$1" targets=()
  for name in $(kolta_fuzz_targets); do targets+=("${name}_fuzz"); done
  CC=clang CXX=clang++ cmake -S "$KOLTA_ROOT" -B "$dir" -G Ninja $(kolta_launcher) -DKOLTA_FUZZ=ON -DKOLTA_BUILD_GUI=OFF -DBUILD_TESTING=OFF >/dev/null
  cmake --build "$dir" -j "$(nproc)" --target "${targets[@]}"
}

# Shared by run.sh and test.sh: installs what a fresh Debian machine lacks and
# builds the project into build/. Source it; it defines nothing else.
set -euo pipefail

KOLTA_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
KOLTA_BUILD="${KOLTA_BUILD:-$KOLTA_ROOT/build}"

kolta_packages=(cmake ninja-build g++ qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev fonts-dejavu-core)

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

kolta_build() {
  cmake -S "$KOLTA_ROOT" -B "$KOLTA_BUILD" -G Ninja "$@" >/dev/null
  cmake --build "$KOLTA_BUILD" -j "$(nproc)"
}

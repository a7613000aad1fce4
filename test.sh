#!/usr/bin/env bash
# Sets up a fresh Debian machine, builds, and runs every test.
source "$(dirname "$0")/tools/setup.sh"
kolta_install_missing
kolta_build
cd "$KOLTA_BUILD"
ctest --output-on-failure -j "$(nproc)"

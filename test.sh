#!/usr/bin/env bash
# Sets up a fresh Debian machine, builds, and runs every test; runs them all
# again built with AddressSanitizer and UndefinedBehaviorSanitizer; then runs
# each fuzz target over its seed corpus and a few seconds of new inputs; and
# last the Windows build under Wine (windows.sh: the editor too when Qt for
# Windows is in the cache, otherwise a line on how to get it).
source "$(dirname "$0")/tools/setup.sh"
kolta_install_missing
kolta_build
(cd "$KOLTA_BUILD" && ctest --output-on-failure -j "$(nproc)")

sanitized_build="${KOLTA_SANITIZE_BUILD:-$KOLTA_ROOT/build-asan}"
KOLTA_BUILD="$sanitized_build" kolta_build -DKOLTA_SANITIZE=ON
(cd "$sanitized_build" && ctest --output-on-failure -j "$(nproc)")

run_fuzz_targets() {
  if ! kolta_fuzz_available; then
    echo "clang is not available: the fuzz targets are not run."
    return 0
  fi
  fuzz_build="${KOLTA_FUZZ_BUILD:-$KOLTA_ROOT/build-fuzz}"
  kolta_build_fuzz "$fuzz_build"
  for name in $(kolta_fuzz_targets); do
    log="$fuzz_build/$name.log"
    work="$fuzz_build/corpus/$name"
    mkdir -p "$work"
    if ! "$fuzz_build/fuzz/${name}_fuzz" -runs=0 "$KOLTA_ROOT/fuzz/corpus/$name" >"$log" 2>&1 ||
       ! "$fuzz_build/fuzz/${name}_fuzz" -max_total_time=3 -timeout=10 -artifact_prefix="$fuzz_build/$name-" \
           "$work" "$KOLTA_ROOT/fuzz/corpus/$name" >>"$log" 2>&1; then
      sed -n '/^==[0-9]*==ERROR\|^property failed\|^SUMMARY/,$p' "$log" >&2
      echo "Fuzz target $name failed; the input is in $fuzz_build/" >&2
      exit 1
    fi
    echo "Fuzz target $name: seed corpus and 3 s of new inputs, nothing found."
  done
}
run_fuzz_targets

"$KOLTA_ROOT/windows.sh"

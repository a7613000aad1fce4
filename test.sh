#!/usr/bin/env bash
# Sets up a fresh Debian machine, builds, and runs every test; runs them all
# again built with AddressSanitizer and UndefinedBehaviorSanitizer; then runs
# each fuzz target over its seed corpus and a few seconds of new inputs; and
# last the Windows build under Wine (windows.sh: the editor too when Qt for
# Windows is in the cache, otherwise a line on how to get it).
# Each test runs twice, four at a time, so that a test that leans on timing,
# on another test or on a shared folder fails here rather than now and then.
# At the end the source tree must be as this script found it.
source "$(dirname "$0")/tools/setup.sh"
kolta_install_missing

# What git sees of the source tree, the build folders aside.
tree_state() {
  git -C "$KOLTA_ROOT" status --porcelain --ignored | grep -v '^!! build[^/]*/$' || true
  git -C "$KOLTA_ROOT" diff --binary HEAD | sha256sum
}
in_git=0
git -C "$KOLTA_ROOT" rev-parse --is-inside-work-tree >/dev/null 2>&1 && in_git=1
[ "$in_git" -eq 0 ] || tree_before="$(tree_state)"

# CPU seconds (user and system) of everything this script has run so far.
cpu_seconds() {
  local stat
  read -r -a stat </proc/$$/stat
  echo $(((stat[15] + stat[16]) / $(getconf CLK_TCK)))
}

# stage NAME COMMAND...: runs one stage and notes its wall and CPU time.
timings=()
stage() {
  local stage_name="$1" stage_start=$SECONDS stage_cpu
  stage_cpu="$(cpu_seconds)"
  shift
  echo "== $stage_name"
  "$@"
  timings+=("$(printf '%-26s %5d s, CPU %5d s' "$stage_name" $((SECONDS - stage_start)) \
    $(($(cpu_seconds) - stage_cpu)))")
}

run_tests() {
  (cd "$1" && ctest --output-on-failure -j 4 --repeat until-fail:2 --timeout 300)
}

stage "plain build" kolta_build
stage "plain tests" run_tests "$KOLTA_BUILD"

# The sanitized build needs the test programs only: no editor, package or manual page.
sanitized_build="${KOLTA_SANITIZE_BUILD:-$KOLTA_ROOT/build-asan}"
build_sanitized() {
  KOLTA_BUILD="$sanitized_build" KOLTA_TARGETS=test_programs kolta_build -DKOLTA_SANITIZE=ON
}
stage "sanitized build" build_sanitized
stage "sanitized tests" run_tests "$sanitized_build"

# One fuzz target: its seed corpus, then 3 s of new inputs.
fuzz_one() {
  local name="$1" log="$fuzz_build/$1.log" work="$fuzz_build/corpus/$1"
  mkdir -p "$work"
  if ! "$fuzz_build/fuzz/${name}_fuzz" -runs=0 "$KOLTA_ROOT/fuzz/corpus/$name" >"$log" 2>&1 ||
     ! "$fuzz_build/fuzz/${name}_fuzz" -max_total_time=3 -timeout=10 -artifact_prefix="$fuzz_build/$name-" \
         "$work" "$KOLTA_ROOT/fuzz/corpus/$name" >>"$log" 2>&1; then
    sed -n '/^==[0-9]*==ERROR\|^property failed\|^SUMMARY/,$p' "$log" >&2
    echo "Fuzz target $name failed; the input is in $fuzz_build/" >&2
    return 1
  fi
  echo "Fuzz target $name: seed corpus and 3 s of new inputs, nothing found."
}

# Every fuzz target, as many at once as there are cores.
run_fuzz_targets() {
  if ! kolta_fuzz_available; then
    echo "clang is not available: the fuzz targets are not run."
    return 0
  fi
  fuzz_build="${KOLTA_FUZZ_BUILD:-$KOLTA_ROOT/build-fuzz}"
  kolta_build_fuzz "$fuzz_build"
  kolta_each_fuzz_target fuzz_one
}
stage "fuzz build and replay" run_fuzz_targets

stage "Windows build under Wine" "$KOLTA_ROOT/windows.sh"

if [ "$in_git" -eq 1 ] && [ "$(tree_state)" != "$tree_before" ]; then
  echo "The tests changed the source tree (git status):" >&2
  git -C "$KOLTA_ROOT" status --short --ignored | grep -v '^!! build[^/]*/$' >&2
  exit 1
fi

echo "== Every stage passed:"
printf '   %s\n' "${timings[@]}"

#!/usr/bin/env bash
# Plants faults one at a time and checks that the tests catch each one.
#
#   tools/mutants.sh            every fault in tools/mutants.txt
#   tools/mutants.sh WORD...    only the faults whose line in mutants.txt holds a WORD
#
# The faults are data, one a line in tools/mutants.txt. The source tree is
# never written: the script works in a copy of it (build-mutants/tree, with
# its own build folder in build-mutants/tree/build, so ccache serves what the
# main build compiled), rebuilds only the test program a fault names, runs it
# under a timeout and puts the line back. A fault whose line is no longer in
# the source, or stands there more than once, is "stale": the list must be
# brought up to date. Exits 1 unless every fault is caught and none is stale.
source "$(dirname "$0")/setup.sh"
kolta_install_missing

faults="$KOLTA_ROOT/tools/mutants.txt"
work="${KOLTA_MUTANTS_DIR:-$KOLTA_ROOT/build-mutants}"
tree="$work/tree"
build="$tree/build"
timeout_seconds="${KOLTA_MUTANT_TIMEOUT:-120}"
started=$SECONDS
mkdir -p "$work"
exec 9>"$work/lock"
flock -n 9 || { echo "Another tools/mutants.sh is working in $work." >&2; exit 2; }

# The copy's paths, taken relative to the base folder, match the main build's,
# so ccache hands back what the main build compiled.
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$KOLTA_ROOT}" CCACHE_NOHASHDIR=1

# The copy takes every file git knows or would add, and only those; a file
# is written only when its bytes differ, so the build redoes only what changed.
sync_tree() {
  mkdir -p "$tree"
  local listed="$work/files.txt" file
  (cd "$KOLTA_ROOT" && git ls-files -co --exclude-standard | grep -v '^build[^/]*/' | sort) >"$listed"
  while IFS= read -r file; do
    [ -f "$KOLTA_ROOT/$file" ] || continue
    if ! cmp -s "$KOLTA_ROOT/$file" "$tree/$file"; then
      mkdir -p "$(dirname "$tree/$file")"
      cp "$KOLTA_ROOT/$file" "$tree/$file"
    fi
  done <"$listed"
  (cd "$tree" && find . -path ./build -prune -o -type f -print | sed 's|^\./||' | sort) |
    comm -23 - "$listed" | while IFS= read -r file; do rm -f "$tree/$file"; done
}

# The one file changed in the copy, and its bytes before the change.
planted=""
backup="$work/planted.orig"
restore() {
  if [ -n "$planted" ]; then
    cp "$backup" "$tree/$planted"  # a new time stamp: the next build compiles it again
    planted=""
  fi
}
trap restore EXIT
trap 'restore; exit 130' INT TERM

# plant FILE OLD NEW: replaces the one line of FILE that reads OLD (leading
# blanks aside) by NEW, keeping its indentation. Fails unless exactly one does.
plant() {
  local file="$tree/$1"
  [ -f "$file" ] || return 1
  local matches
  matches="$(OLD="$2" awk '{ line = $0; sub(/^[ \t]+/, "", line); if (line == ENVIRON["OLD"]) n++ } END { print n + 0 }' "$file")"
  [ "$matches" -eq 1 ] || return 1
  cp "$file" "$backup"
  planted="$1"
  OLD="$2" NEW="$3" awk '{
      line = $0; sub(/^[ \t]+/, "", line)
      if (line == ENVIRON["OLD"]) { match($0, /^[ \t]*/); print substr($0, 1, RLENGTH) ENVIRON["NEW"] }
      else print
    }' "$backup" >"$file"
}

run_program() {
  QT_QPA_PLATFORM=offscreen timeout "$timeout_seconds" "$build/tests/$1" --gtest_brief=1 >"$work/last-run.log" 2>&1
}

# The faults to plant: the lines of mutants.txt that are no comment, narrowed
# to those that hold one of the words given.
selected=()
while IFS= read -r entry; do
  case "$entry" in ''|'#'*) continue ;; esac
  if [ $# -gt 0 ]; then
    keep=0
    for word in "$@"; do
      if [[ "$entry" == *"$word"* ]]; then keep=1; fi
    done
    [ "$keep" -eq 1 ] || continue
  fi
  selected+=("$entry")
done <"$faults"
[ ${#selected[@]} -gt 0 ] || { echo "No fault in $faults matches: $*" >&2; exit 2; }

programs=()
for entry in "${selected[@]}"; do
  IFS=$'\t' read -r _ program _ <<<"$entry"
  if [[ " ${programs[*]} " != *" $program "* ]]; then programs+=("$program"); fi
done

echo "== Copying the tree to $tree and building ${programs[*]}"
sync_tree
KOLTA_ROOT="$tree" KOLTA_BUILD="$build" KOLTA_TARGETS="${programs[*]}" kolta_build >"$work/build.log" 2>&1 ||
  { tail -30 "$work/build.log" >&2; echo "The unchanged copy does not build." >&2; exit 1; }
for program in "${programs[@]}"; do
  run_program "$program" || { tail -30 "$work/last-run.log" >&2; echo "$program fails without any fault." >&2; exit 1; }
done

caught=0 missed=0 stale=0 number=0
missed_list=()
for entry in "${selected[@]}"; do
  IFS=$'\t' read -r file program old new what <<<"$entry"
  number=$((number + 1))
  mutant_start=$SECONDS
  label="$(printf '%2d  %-44s %s' "$number" "$file" "$what")"
  if ! plant "$file" "$old" "$new"; then
    echo "STALE   $label  (the line is not in the file once: $old)"
    stale=$((stale + 1))
    continue
  fi
  if ! cmake --build "$build" --target "$program" >"$work/build.log" 2>&1; then
    restore
    echo "BROKEN  $label  (does not compile: a fault must be one a compiler lets through)"
    stale=$((stale + 1))
    continue
  fi
  status=0
  (run_program "$program") 2>/dev/null || status=$?  # the subshell keeps the shell's word on a crash quiet
  restore
  note=""
  if [ "$status" -eq 0 ]; then
    verdict="MISSED" missed=$((missed + 1))
    missed_list+=("$label")
  else
    verdict="caught" caught=$((caught + 1))
    [ "$status" -ne 124 ] || note=" (timed out)"
  fi
  printf '%-8s%s  [%s, %d s]%s\n' "$verdict" "$label" "$program" $((SECONDS - mutant_start)) "$note"
done

total=$((caught + missed))
echo "== $caught of $total faults caught ($((total ? 100 * caught / total : 0)) %), $stale stale or broken, in $((SECONDS - started)) s"
for label in "${missed_list[@]}"; do echo "missed: $label"; done
[ "$missed" -eq 0 ] && [ "$stale" -eq 0 ]

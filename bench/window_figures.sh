#!/usr/bin/env bash
# Run by bench.sh on an X display: start to first shown window of the editor,
# of an empty Qt Widgets window and of a window with one line of text, taken
# in turns, and the share of a core the real editor uses while it sits idle on
# a full-size game. With FIGURES, the medians of the starts are added to that
# file in microseconds, under the programs' names, for bench.sh's ratios.
#   window_figures.sh BUILD_DIR [STARTS] [IDLE_SECONDS] [FIGURES]
set -euo pipefail
build="$1"
starts="${2:-15}"
idle_seconds="${3:-20}"
figures="${4:-/dev/null}"
game="$build/bench-game"

now_ns() { date +%s%N; }

# Wall time of one run of a program, in microseconds.
time_run() {
  local start end
  start=$(now_ns)
  "$@" >/dev/null 2>&1
  end=$(now_ns)
  echo $(((end - start) / 1000))
}

median() { sort -n | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

"$build/bench/editor_start" "$game"  # makes the game files, warms the caches
"$build/bench/empty_window_start"
"$build/bench/text_window_start"
editor_times=() empty_times=() text_times=()
for _ in $(seq "$starts"); do
  editor_times+=("$(time_run "$build/bench/editor_start" "$game")")
  empty_times+=("$(time_run "$build/bench/empty_window_start")")
  text_times+=("$(time_run "$build/bench/text_window_start")")
done
editor=$(printf '%s\n' "${editor_times[@]}" | median)
empty=$(printf '%s\n' "${empty_times[@]}" | median)
text=$(printf '%s\n' "${text_times[@]}" | median)
printf 'editor_start %s\nempty_window_start %s\ntext_window_start %s\n' "$editor" "$empty" "$text" >>"$figures"
echo "Start to first shown window, median of $starts runs each, taken in turns:"
awk -v e="$editor" -v w="$empty" -v t="$text" 'BEGIN {
  printf "  editor on a full-size game     %7.1f ms\n", e / 1000
  printf "  empty Qt Widgets window        %7.1f ms\n", w / 1000
  printf "  window with one line of text   %7.1f ms\n", t / 1000 }'

# The real program, pointed at the same game through editor.dat beside it.
cp "$game/editor.dat" "$build/bin/editor.dat"
"$build/bin/kolta-editor" &
editor_pid=$!
sleep 3
ticks_used() { awk '{ print $14 + $15 }' "/proc/$editor_pid/stat"; }
before=$(ticks_used)
start=$(now_ns)
sleep "$idle_seconds"
after=$(ticks_used)
end=$(now_ns)
kill "$editor_pid"
wait "$editor_pid" 2>/dev/null || true
rm -f "$build/bin/editor.dat"
awk -v t=$((after - before)) -v hz="$(getconf CLK_TCK)" -v ns=$((end - start)) 'BEGIN {
  cpu = t / hz; wall = ns / 1e9
  printf "Editor idle on a full-size game: %.2f s of CPU in %.1f s, %.2f%% of a core\n", cpu, wall, 100 * cpu / wall }'

#!/usr/bin/env bash
# Builds the benchmark programs in build-bench/ and prints their figures at the
# game's full size (2000 players, 500 teams): load, save and its parts, search
# and sort, the squad commands, a keystroke written through the document, the
# kolta-data commands, start to first shown window beside an empty Qt window,
# and the editor's use of a core while idle. Each benchmark runs five times, in turns with the others
# of its program, and its median CPU time is kept.
#
# Last come the ratios that bench/limits.txt lists: each hot path against a
# floor measured in the same run, so that a busy machine slows both alike.
#   ./bench.sh           all figures and the ratios
#   ./bench.sh --check   the same, then fails if a ratio is above its limit
source "$(dirname "$0")/tools/setup.sh"
check=""
case "${1:-}" in
  --check) check=1 ;;
  "") ;;
  *) echo "usage: $0 [--check]" >&2; exit 2 ;;
esac
kolta_install_missing xvfb xauth
dir="${KOLTA_BENCH_BUILD:-$KOLTA_ROOT/build-bench}"
cmake -S "$KOLTA_ROOT" -B "$dir" -G Ninja $(kolta_launcher) -DKOLTA_BUILD_BENCHMARKS=ON >/dev/null
cmake --build "$dir" -j "$(nproc)" --target bench/all kolta-editor

# One line a figure: its name and its median in microseconds.
figures="$dir/figures.txt"
: >"$figures"
echo "Machine: $(nproc) cores, $(lscpu | sed -n 's/^Model name: *//p')"
for program in "$dir"/bench/*; do
  name="$(basename "$program")"
  case "$name" in
    editor_start | empty_window_start | text_window_start) continue ;;
  esac
  [ -x "$program" ] && [ -f "$program" ] || continue
  echo
  echo "== $name"
  QT_QPA_PLATFORM=offscreen "$program" --benchmark_counters_tabular=true --benchmark_min_time=0.2 --benchmark_repetitions=5 \
    --benchmark_enable_random_interleaving=true --benchmark_display_aggregates_only=true \
    --benchmark_out="$dir/$name.json" --benchmark_out_format=json 2>&1 | grep -v -E '_(mean|stddev|cv) '
  "$KOLTA_ROOT/bench/medians.awk" "$dir/$name.json" >>"$figures"
done
echo
xvfb-run -a -s "-screen 0 1280x1024x24" "$KOLTA_ROOT/bench/window_figures.sh" "$dir" 15 20 "$figures"
echo
"$KOLTA_ROOT/bench/ratios.awk" -v check="$check" "$KOLTA_ROOT/bench/limits.txt" "$figures"

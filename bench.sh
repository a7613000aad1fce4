#!/usr/bin/env bash
# Builds the benchmark programs in build-bench/ and prints their figures at the
# game's full size (2000 players, 500 teams): load, save, search and sort, the
# squad commands, a keystroke written through the document, start to first
# shown window beside an empty Qt window, and the editor's use of a core while
# idle.
#   ./bench.sh
source "$(dirname "$0")/tools/setup.sh"
kolta_install_missing xvfb xauth
dir="${KOLTA_BENCH_BUILD:-$KOLTA_ROOT/build-bench}"
cmake -S "$KOLTA_ROOT" -B "$dir" -G Ninja -DKOLTA_BUILD_BENCHMARKS=ON >/dev/null
cmake --build "$dir" -j "$(nproc)" --target bench/all kolta-editor

echo "Machine: $(nproc) cores, $(lscpu | sed -n 's/^Model name: *//p')"
for program in "$dir"/bench/*; do
  case "$(basename "$program")" in
    editor_start | empty_window_start) continue ;;
  esac
  [ -x "$program" ] && [ -f "$program" ] || continue
  echo
  echo "== $(basename "$program")"
  QT_QPA_PLATFORM=offscreen "$program" --benchmark_counters_tabular=true 2>&1
done
echo
xvfb-run -a -s "-screen 0 1280x1024x24" "$KOLTA_ROOT/bench/window_figures.sh" "$dir"

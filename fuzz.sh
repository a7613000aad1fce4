#!/usr/bin/env bash
# Fuzzes every target (the readers, the CSV import, check, diff, the tables' filter) for SECONDS each (default 60), two
# targets at a time on a machine with two cores. Inputs that found new paths
# collect in build-fuzz/corpus/, anything that fails in build-fuzz/findings/.
#   ./fuzz.sh 3600
source "$(dirname "$0")/tools/setup.sh"
seconds="${1:-60}"
dir="${KOLTA_FUZZ_BUILD:-$KOLTA_ROOT/build-fuzz}"
kolta_fuzz_available || { echo "The fuzz targets need clang, which could not be installed." >&2; exit 1; }
kolta_build_fuzz "$dir"

mkdir -p "$dir/findings" "$dir/logs"
fuzz_one() {
  local name="$1"
  mkdir -p "$dir/corpus/$name"
  "$dir/fuzz/${name}_fuzz" -max_total_time="$seconds" -timeout=10 -print_final_stats=1 \
    -artifact_prefix="$dir/findings/$name-" "$dir/corpus/$name" "$KOLTA_ROOT/fuzz/corpus/$name" \
    >"$dir/logs/$name.log" 2>&1
}

failed=0
kolta_each_fuzz_target fuzz_one || failed=1

total=0
printf '%-16s %14s %12s\n' target executions "per second"
for name in $(kolta_fuzz_targets); do
  log="$dir/logs/$name.log"
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")
  printf '%-16s %14s %12s\n' "$name" "${runs:-?}" "${rate:-?}"
  total=$((total + ${runs:-0}))
  grep -q '^SUMMARY' "$log" && sed -n '/^SUMMARY/,$p' "$log"
done
printf '%-16s %14s\n' total "$total"
if [ "$failed" -ne 0 ]; then
  echo "Something was found: see $dir/findings/ and $dir/logs/" >&2
  exit 1
fi
echo "Nothing found."

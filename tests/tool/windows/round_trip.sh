#!/usr/bin/env bash
# The sample game through kolta-data.exe under Wine, in folders named outside
# ASCII: info, export to CSV, import the CSV back, then diff against the
# sample and check. The files must come back byte for byte.
#   round_trip.sh WINE WINDOWS_TOOL SAMPLE SCRATCH
set -euo pipefail
wine="$1" tool="$2" sample="$3" scratch="$4"
rm -rf "$scratch"
game="$scratch/Spiele/Költa"
sheets="$scratch/Таблицы"
mkdir -p "$game"
cp "$sample/players.dat" "$sample/teams.dat" "$game/"

run() {
  echo "> kolta-data $*"
  "$wine" "$tool" "$@"
}
run info "Z:$game" | tee "$scratch/info.txt"
grep -q '^PlayerCount=[1-9]' "$scratch/info.txt"
run export "Z:$game" "Z:$sheets"
[ -s "$sheets/players.csv" ] && [ -s "$sheets/teams.csv" ]
run import "Z:$game" "Z:$sheets"
run diff "Z:$sample" "Z:$game"
run check "Z:$game"
cmp "$sample/players.dat" "$game/players.dat"
cmp "$sample/teams.dat" "$game/teams.dat"
rm -rf "$scratch"

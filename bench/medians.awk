#!/usr/bin/awk -f
# Reads a Google Benchmark JSON file, one key a line as the library writes it,
# and prints each benchmark's median CPU time in microseconds:
# "BM_LoadBothFiles 412.500".
BEGIN { toMicro["ns"] = 0.001; toMicro["us"] = 1; toMicro["ms"] = 1000; toMicro["s"] = 1000000 }
function text(line) { sub(/^[^:]*: *"?/, "", line); sub(/"?,?$/, "", line); return line }
/^ *"name":/ { name = text($0); cpu = ""; unit = "" }
/^ *"cpu_time":/ { cpu = text($0) }
/^ *"time_unit":/ { unit = text($0) }
/^ *}/ {
  if (name ~ /_median$/ && cpu != "" && unit in toMicro) {
    sub(/_median$/, "", name)
    printf "%s %.3f\n", name, cpu * toMicro[unit]
  }
  name = ""
}

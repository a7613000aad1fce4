#!/usr/bin/awk -f
# ratios.awk [-v check=1] LIMITS FIGURES
# Prints each ratio LIMITS names, a figure over its floor, both from FIGURES
# ("name microseconds" lines). With check set, exits 1 if a ratio is above its
# limit or a figure is missing; a limit of "-" is printed and never checked.
FILENAME == ARGV[1] {
  if ($0 ~ /^[[:space:]]*(#|$)/) next
  ratios[++count] = $1; figureOf[$1] = $2; floorOf[$1] = $3; limitOf[$1] = $4
  next
}
{ value[$1] = $2 }
END {
  print "Ratios, each figure over its floor in the same run (limits in bench/limits.txt):"
  failed = 0
  for (i = 1; i <= count; ++i) {
    r = ratios[i]; f = figureOf[r]; b = floorOf[r]; limit = limitOf[r]
    if (!(f in value) || !(b in value) || value[b] <= 0) {
      printf "  %-22s missing: %s or %s\n", r, f, b
      failed = 1
      continue
    }
    ratio = value[f] / value[b]
    verdict = limit == "-" ? "" : (ratio <= limit + 0 ? "ok" : "OVER")
    if (verdict == "OVER") failed = 1
    printf "  %-22s %9.1f / %9.1f us = %5.2f   limit %-5s %s\n", r, value[f], value[b], ratio, limit, verdict
  }
  if (check && failed) {
    print "A ratio is above its limit or missing."
    exit 1
  }
}

#!/usr/bin/env bash
# What writing the power CSV costs: a year of the four-face example at 60 s,
# every row to /dev/null, against the same run with --summary only. The two
# runs alternate (A B A B ...) so the ratio holds on a busy machine; quote the
# median of the per-pair CPU ratios (target: at most 1.5).
# Usage: bench/ecriture_csv.sh [KESTREL] [RUNS]
set -euo pipefail
ici=$(cd "$(dirname "$0")" && pwd)
kestrel=${1:-$ici/../build/release/bin/kestrel}
n=${2:-5}
pwr=$ici/../examples/quatre_faces.pwr
an=(--pwr "$pwr" --end 19072.55 --quiet)  # the example starts at day 18707.55

# CPU seconds (user + system) of one run, its output thrown away.
cpu() {
  local TIMEFORMAT='%U %S' t
  t=$( { time "$kestrel" power "${an[@]}" "$@" > /dev/null 2>&1; } 2>&1 )
  echo "$t" | awk '{ printf "%.3f", $1 + $2 }'
}

ratios=()
for ((i = 1; i <= n; ++i)); do
  a=$(cpu --out /dev/null)
  b=$(cpu --summary)
  r=$(awk -v a="$a" -v b="$b" 'BEGIN { printf "%.3f", a / b }')
  echo "run $i: CSV $a s, summary $b s, ratio $r"
  ratios+=("$r")
done
printf '%s\n' "${ratios[@]}" | sort -n | awk '{ v[NR] = $1 } END { print "median ratio: " v[int((NR + 1) / 2)] }'

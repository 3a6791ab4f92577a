#!/usr/bin/env bash
# What writing the power CSV costs: a year of the four-face example at 60 s,
# every row to /dev/null, against the same run with --summary only. The two
# runs alternate (A B A B ...) so the ratio holds on a busy machine; quote the
# median of "A/B cpu" (target: at most 1.5).
# Usage: bench/ecriture_csv.sh [KESTREL] [RUNS]
set -euo pipefail
ici=$(cd "$(dirname "$0")" && pwd)
kestrel=${1:-$ici/../build/release/bin/kestrel}
n=${2:-5}
pwr=$ici/../examples/quatre_faces.pwr
an="--pwr $pwr --end 19072.55"  # the example starts at day 18707.55
farm-bench -n "$n" --timeout 900 --vs "$kestrel power $an --summary" -- $kestrel power $an --out /dev/null

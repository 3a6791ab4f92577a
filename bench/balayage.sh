#!/usr/bin/env bash
# A sweep of 16 one-month power cases of the four-face example (cel_np x
# bat_c, 4 x 4) on 1 and on 2 threads: cases per second and the speed-up
# (target 1.8 on two free cores; note `uptime` with the figures), then the
# peak memory of 4 cases against 16 (it must not grow with the cases).
# Usage: bench/balayage.sh [KESTREL]
set -euo pipefail
ici=$(cd "$(dirname "$0")" && pwd)
kestrel=${1:-$ici/../build/release/bin/kestrel}
base="sweep power --quiet --pwr $ici/../examples/quatre_faces.pwr --end 18737.55"
seize="--set cel_np=20,30,40,50 --set bat_c=10,15,20,25"
quatre="--set cel_np=20,30 --set bat_c=10,20"
uptime
for j in 1 2; do
  debut=$(date +%s.%N)
  $kestrel $base $seize --jobs $j > /dev/null
  fin=$(date +%s.%N)
  echo "jobs $j: $(echo "16 / ($fin - $debut)" | bc -l | cut -c1-6) cas/s ($(echo "$fin - $debut" | bc) s)"
done
for cas in quatre seize; do
  /usr/bin/time -v $kestrel $base ${!cas} --jobs 2 2>&1 >/dev/null | grep "Maximum resident" | sed "s/^/$cas cas: /"
done
uptime

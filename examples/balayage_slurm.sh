#!/bin/bash
# A power sweep as a Slurm job array: each array task runs one of 8 slices of
# the cases; slice 1 carries the header, so the slices end to end are the table.
#   sbatch examples/balayage_slurm.sh
#   cat tranche_{1..8}.csv > balayage.csv
#SBATCH --job-name=kestrel-sweep
#SBATCH --array=1-8
#SBATCH --cpus-per-task=4
#SBATCH --time=01:00:00
set -euo pipefail
kestrel sweep power --quiet --pwr examples/quatre_faces.pwr \
  --set cel_np=10:40:16 --set bat_c=5,10,15,20 \
  --jobs "${SLURM_CPUS_PER_TASK:-1}" \
  --cases "${SLURM_ARRAY_TASK_ID}:8" --out "tranche_${SLURM_ARRAY_TASK_ID}.csv"

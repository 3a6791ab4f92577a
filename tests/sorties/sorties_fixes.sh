#!/usr/bin/env bash
# Runs a fixed set of headless runs (every example project, the orbit over
# several periods and steps, attitude runs with and without wheels and
# dampers, the field listings) and prints one "sha256  name" line per output.
# With --check FILE, compares those lines with FILE and fails on any change:
# code moves must leave every number the program writes as it was.
# Usage: sorties_fixes.sh KESTREL SOURCE_DIR [--check FILE]
set -euo pipefail
kestrel=$1
src=$2
ex=$src/examples
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"

# Writes the 8 little-endian bytes given as \x escapes at byte offset $2 of $1.
patch() { printf "$3" | dd of="$1" bs=1 seek="$2" conv=notrunc status=none; }

# Power: a day of each example at its own 60 s step, one spinning case.
for p in "$ex"/*.pwr; do
  n=$(basename "$p" .pwr)
  "$kestrel" power --pwr "$p" --out "power_$n.csv"
  "$kestrel" project show "$p" > "show_$n.txt"
done
"$kestrel" power --pwr "$ex/quatre_faces.pwr" --spin 2 --pointing 10,20,30 --end 18707.8 \
  --out power_spin.csv

# Orbit: default period, several periods at other steps, an eccentric one.
"$kestrel" project new --pwr defaut.pwr --att defaut.att --orb defaut.orb
"$kestrel" orbit --out orbit_defaut.csv
"$kestrel" orbit --start 18707.5 --end 18708.0 --step 60 --out orbit_12h.csv
"$kestrel" orbit --start 18707.55 --end 18710.55 --step 600 --out orbit_3j.csv
cp defaut.orb excentrique.orb
patch excentrique.orb 40 '\x9a\x99\x99\x99\x99\x99\xb9\x3f'  # orb_excentricite 0.1
patch excentrique.orb 82 '\x00\x00\x00\x00\x00\x80\xbe\x40'  # orb_demi 7808 km
"$kestrel" orbit --orb excentrique.orb --step 30 --out orbit_excentrique.csv
for f in defaut.att defaut.orb defaut.pwr excentrique.orb; do
  "$kestrel" project show "$f" > "show_$f.txt"
done

# Attitude: bare body; wheels; dampers; wheels and dampers with rates.
"$kestrel" attitude --quiet --att defaut.att --out att_nu.tmp
cp defaut.att roues.att
patch roues.att 308 '\x7b\x14\xae\x47\xe1\x7a\x84\x3f'  # JR(0) 0.01 kg m2
patch roues.att 316 '\x7b\x14\xae\x47\xe1\x7a\x84\x3f'  # JR(1)
patch roues.att 332 '\x00\x00\x00\x00\x00\x00\xe0\x3f'  # OM_init(0) 0.5 rad/s
patch roues.att 348 '\x9a\x99\x99\x99\x99\x99\xb9\x3f'  # OM_init(2) 0.1 rad/s
cp defaut.att amortisseurs.att
for d in 0 1 2; do
  patch amortisseurs.att $((356 + 8 * d)) '\x9a\x99\x99\x99\x99\x99\xb9\x3f'  # md(d) 0.1 kg
  patch amortisseurs.att $((380 + 8 * d)) '\x33\x33\x33\x33\x33\x33\xd3\x3f'  # ld(d) 0.3 m
  patch amortisseurs.att $((404 + 8 * d)) '\x9a\x99\x99\x99\x99\x99\xa9\x3f'  # c(d) 0.05
  patch amortisseurs.att $((428 + 8 * d)) '\x7b\x14\xae\x47\xe1\x7a\x84\x3f'  # k(d) 0.01
done
cp amortisseurs.att complet.att
patch complet.att 308 '\x7b\x14\xae\x47\xe1\x7a\x84\x3f'
patch complet.att 332 '\x00\x00\x00\x00\x00\x00\xe0\x3f'
"$kestrel" attitude --quiet --att roues.att --out att_roues.tmp
"$kestrel" attitude --quiet --att amortisseurs.att --rates 0.5,-0.2,0.1 --step 1 --end 18707.58 \
  --out att_amortisseurs.tmp
# Stiff springs at 10 s: the state blows up; the message and exit code count too.
cp amortisseurs.att raides.att
for d in 0 1 2; do
  patch raides.att $((428 + 8 * d)) '\x00\x00\x00\x00\x00\x00\x24\x40'  # k(d) 10
done
rc=0
"$kestrel" attitude --quiet --att raides.att --out att_raides.tmp 2> att_raides_err.txt || rc=$?
echo "sortie $rc" >> att_raides_err.txt
"$kestrel" attitude --quiet --att complet.att --rates 0.2,0,-0.2 --pointing 10,20,30 --step 1 \
  --end 18707.6 --every 3 --out att_complet.tmp
"$kestrel" attitude --quiet --pwr "$ex/cylindre.pwr" --att complet.att --end 18707.6 --step 2 \
  --out att_cylindre.tmp
for f in roues.att amortisseurs.att complet.att; do
  "$kestrel" project show "$f" > "show_$f.txt"
done

sha256sum -- *.csv *.tmp *.txt > sommes.txt
if [[ ${3:-} == --check ]]; then
  diff -u "$4" sommes.txt
else
  cat sommes.txt
fi

#!/usr/bin/env bash
# Runs one fuzz target from its seed corpus, niced, for a given time:
#   fuzz/lance.sh pwr|att|orb|tle [seconds, default 600] [libFuzzer options...]
# after `cmake --preset fuzz && cmake --build --preset fuzz`. Seeds: the
# example projects and the new-project files. The growing corpus stays in
# build/fuzz/corpus/<target>; a crash, leak or slow input is written to
# build/fuzz/trouvailles/<target>/ and stops the run.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
bin=$racine/build/fuzz/bin
cible=${1:?pwr, att, orb or tle}
duree=${2:-600}
shift $(( $# < 2 ? $# : 2 ))
corpus=$racine/build/fuzz/corpus/$cible
graines=$racine/build/fuzz/graines/$cible
trouvailles=$racine/build/fuzz/trouvailles/$cible
mkdir -p "$corpus" "$graines" "$trouvailles"

case $cible in
  pwr) cp "$racine"/examples/*.pwr "$graines"/
       "$bin/kestrel" project new --pwr "$graines/nouveau.pwr" ;;
  att) "$bin/kestrel" project new --att "$graines/nouveau.att" ;;
  orb) "$bin/kestrel" project new --orb "$graines/nouveau.orb" ;;
  tle) # the ISS on 20 September 2008 (both checksums 7)
       printf '%s\n' "ISS (ZARYA)" \
         "1 25544U 98067A   08264.51782528 -.00002182  00000-0 -11606-4 0  2927" \
         "2 25544  51.6416 247.4627 0006703 130.5360 325.0288 15.72125391563537" > "$graines/iss.tle" ;;
  *) echo "cible inconnue : $cible (pwr, att, orb ou tle)" >&2; exit 2 ;;
esac

# -timeout: an input that takes more than 10 s is a finding (a hang)
exec nice -n 19 "$bin/fuzz_$cible" -max_total_time="$duree" -timeout=10 -print_final_stats=1 \
  -artifact_prefix="$trouvailles/" "$@" "$corpus" "$graines"

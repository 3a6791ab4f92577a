#!/usr/bin/env bash
# The Debian package as a user gets it: built by CPack, unpacked into a scratch
# root, its programs run from there (data found in share/kestrel, the attitude
# results in the user's own data folder), and lintian finds no error.
# Arguments: the build folder, the cpack program, the project version.
set -euo pipefail
construction=$1 cpack=$2 version=$3
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
echec() { echo "ÉCHEC : $*" >&2; exit 1; }

(cd "$construction" && "$cpack" --config CPackConfig.cmake -B "$tmp/sortie" >/dev/null)
deb="$tmp/sortie/kestrel_${version}_amd64.deb"
[ -f "$deb" ] || echec "paquet absent : $deb"

racine="$tmp/racine"
dpkg-deb -x "$deb" "$racine"
for f in usr/bin/kestrel usr/bin/kestrel-gui usr/share/kestrel/flux_solaire.txt \
         usr/share/kestrel/densite.txt usr/share/kestrel/terre_512x256.png \
         usr/share/kestrel/examples/quatre_faces.pwr usr/share/applications/kestrel.desktop \
         usr/share/icons/hicolor/scalable/apps/kestrel.svg usr/share/icons/hicolor/48x48/apps/kestrel.png \
         usr/share/man/man1/kestrel.1.gz usr/share/man/man1/kestrel-gui.1.gz usr/share/doc/kestrel/copyright; do
  [ -e "$racine/$f" ] || echec "fichier absent du paquet : $f"
done
grep -qx 'Name=KESTREL' "$racine/usr/share/applications/kestrel.desktop" || echec "entrée de bureau sans Name=KESTREL"

[ "$("$racine/usr/bin/kestrel" --version)" = "kestrel $version" ] || echec "kestrel --version"
[ "$("$racine/usr/bin/kestrel-gui" --version)" = "kestrel-gui $version" ] || echec "kestrel-gui --version"

# The attitude run reads the tables from share/kestrel and writes its results
# in the user's data folder, never in the installed tree.
export HOME="$tmp/maison"
unset XDG_DATA_HOME
mkdir -p "$HOME"
"$racine/usr/bin/kestrel" attitude --step 10 --quiet > "$tmp/attitude.txt" 2>&1 || { cat "$tmp/attitude.txt"; echec "kestrel attitude"; }
resultats="$HOME/.local/share/kestrel/temp/temp.tmp"
[ -s "$resultats" ] || echec "fichier de résultats absent : $resultats"
[ "$(grep -c '' "$resultats")" -gt 6 ] || echec "fichier de résultats trop court"
[ ! -e "$racine/usr/share/kestrel/temp" ] || echec "résultats écrits dans l'arbre installé"

# Without its tables the run says which folders it searched.
if [ ! -f /usr/share/kestrel/flux_solaire.txt ]; then
  mv "$racine/usr/share/kestrel" "$racine/usr/share/kestrel.cache"
  if "$racine/usr/bin/kestrel" attitude --step 10 --quiet > /dev/null 2> "$tmp/erreur.txt"; then
    echec "kestrel attitude sans tables a réussi"
  fi
  grep -qF "dossiers cherchés : $racine/usr/bin, $racine/usr/share/kestrel, /usr/share/kestrel" "$tmp/erreur.txt" \
    || { cat "$tmp/erreur.txt"; echec "message sans les dossiers cherchés"; }
  mv "$racine/usr/share/kestrel.cache" "$racine/usr/share/kestrel"
fi

# The desktop program starts and stays up on its first screen (killed by
# timeout: status 124) instead of failing at start-up.
set +e
QT_QPA_PLATFORM=offscreen timeout 4 "$racine/usr/bin/kestrel-gui" > "$tmp/gui.txt" 2>&1
statut=$?
set -e
[ $statut -eq 124 ] || { cat "$tmp/gui.txt"; echec "kestrel-gui s'est arrêté (statut $statut)"; }

if command -v lintian > /dev/null; then
  lintian --no-tag-display-limit "$deb" > "$tmp/lintian.txt" 2>&1 || true
  if grep -q '^E:' "$tmp/lintian.txt"; then cat "$tmp/lintian.txt"; echec "lintian"; fi
else
  echo "lintian absent : contrôle du paquet sauté"
fi
echo "paquet ${deb##*/} : contenu, programmes et lintian corrects"

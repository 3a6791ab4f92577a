#include "core/orbit/ligne_orbite.h"

#include "core/shell/ligne_finie.h"

namespace kestrel {

void ligne_orbite(double j, const SortiesOrbite& o, LigneOrbite& v) {
    v = {j,
         o.sat_pos[0],    o.sat_pos[1],    o.sat_pos[2],
         o.sat_vit[0],    o.sat_vit[1],    o.sat_vit[2],
         o.soleil_pos[0], o.soleil_pos[1], o.soleil_pos[2],
         o.eclipse == VRAI ? -1.0 : 0.0,
         o.anomalie_moy,  o.sat_lon,       o.sat_lat,       o.sat_alt};
}

bool ligne_orbite_finie(Erreur& faute, double j, const SortiesOrbite& o, LigneOrbite& v) {
    ligne_orbite(j, o, v);
    return ligne_finie(faute, j, v, COLONNES_ORBITE);
}

}  // namespace kestrel

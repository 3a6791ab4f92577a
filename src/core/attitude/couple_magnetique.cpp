#include <cmath>

#include "core/attitude/champ_igrf.h"
#include "core/attitude/couple_magnetique.h"
#include "core/etat/etat.h"
#include "core/math/math.h"
#include "core/orbit/matrices.h"
#include "core/orbit/orb_projection.h"

namespace kestrel {

void couple_magnetique(Etat& etat, double date) {
    const SortiesOrbite& o = etat.orb;
    double lat = o.sat_lat;  // geodetic, taken as it stands for the colatitude
    double lon = modulo(o.sat_lon, DEUX_PI);
    Vec3 b = champ_igrf(date, vec_norme(o.sat_pos), PI / 2 - lat, lon);
    for (double& x : b) x *= 1e-9;  // nT -> T

    // radial, south, east -> Earth-fixed -> inertial -> body
    double horiz = std::cos(lat) * b[0] + std::sin(lat) * b[1];
    Vec3 terre{horiz * std::cos(lon) - std::sin(lon) * b[2], horiz * std::sin(lon) + std::cos(lon) * b[2],
               std::sin(lat) * b[0] - std::cos(lat) * b[1]};
    Vec3 inertiel, B;
    vers_inertiel(date, terre, inertiel);
    inertiel_vers_corps(etat, inertiel, B);

    const AttitudeRecord& a = etat.att;
    Vec3 D;
    for (int i = 0; i < 3; ++i) D[i] = a.dip_cmd[i] * a.dip_act[i] + a.dip_res[i];
    vec_vectoriel(D, B, etat.att.c_magnetique);
}

}  // namespace kestrel

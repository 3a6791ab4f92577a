#include <cmath>

#include "core/attitude/couple_gravite.h"
#include "core/etat/etat.h"
#include "core/orbit/matrices.h"

namespace kestrel {

void couple_gravite(Etat& etat) {
    const Vec3& pos = etat.orb.sat_pos;
    double r = vec_norme(pos);  // km
    Vec3 u{pos[0] / r, pos[1] / r, pos[2] / r};
    Vec3 n;
    inertiel_vers_corps(etat, u, n);

    const Mat3& I = etat.att.I;
    Mat3 J;
    J(0, 0) = I(0, 0), J(1, 1) = I(1, 1), J(2, 2) = I(2, 2);
    J(0, 1) = J(1, 0) = -I(0, 1);
    J(0, 2) = J(2, 0) = -I(0, 2);
    J(1, 2) = J(2, 1) = -I(1, 2);
    Vec3 Jn, nJn;
    mat_vecteur(J, n, Jn);
    vec_vectoriel(n, Jn, nJn);
    // 3 x 398601.3 km³/s²
    vec_echelle(1195803.9 / (r * r * r), nJn, etat.att.c_gravite);
}

}  // namespace kestrel

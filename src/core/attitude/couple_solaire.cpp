#include <cmath>

#include "core/attitude/couple_solaire.h"
#include "core/attitude/faces.h"
#include "core/etat/etat.h"
#include "core/orbit/matrices.h"

namespace kestrel {

void couple_solaire(Etat& etat, double date) {
    Vec3& c = etat.att.c_solaire;
    c = {};
    if (etat.orb.eclipse != FAUX) return;

    const Vec3& sol = etat.orb.soleil_pos;  // placed at `date` with the orbit
    Vec3 d{sol[0] - etat.orb.sat_pos[0], sol[1] - etat.orb.sat_pos[1], sol[2] - etat.orb.sat_pos[2]};
    double l = vec_norme(d);
    Vec3 s{d[0] / l, d[1] / l, d[2] / l};
    Vec3 S;
    inertiel_vers_corps(etat, s, S);

    const AttitudeRecord& a = etat.att;
    for (int k = 0; k < 6; ++k) {
        const Vec3& n = AttitudeRecord::face_n[k];
        double ck = vec_scalaire(n, S);
        if (!(ck > 0)) continue;
        // diffuse and specular push along the normal (no second cosine on the
        // specular part), absorbed part along the light
        double kn = 2 * (a.cd[k] / 3 + a.cr[k]);
        double ks = 1 - a.cr[k];
        double e = aire_face(a, k) * (-2.322e-06) * ck;  // N/m² solar pressure x 2 x m²
        Vec3 P{(kn * n[0] + ks * S[0]) * e, (kn * n[1] + ks * S[1]) * e, (kn * n[2] + ks * S[2]) * e};
        Vec3 t;
        vec_vectoriel(a.face_c[k], P, t);
        vec_somme(c, t, c);
    }
}

}  // namespace kestrel

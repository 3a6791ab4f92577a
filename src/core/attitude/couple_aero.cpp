#include <cmath>

#include "core/attitude/atmosphere.h"
#include "core/attitude/couple_aero.h"
#include "core/attitude/faces.h"
#include "core/etat/etat.h"
#include "core/orbit/matrices.h"

namespace kestrel {

namespace {

void coupe_petits(Vec3& c) {
    for (double& x : c)
        if (std::fabs(x) <= 1e-10) x = 0;
}

}  // namespace

double facteur_vent(double alt) {
    if (alt < 400) return ((alt - 100) * 0.4 / 300) + 1;
    if (alt <= 600) return 1.4;
    return 1.4 - ((alt - 600) * 0.4 / 200);
}

void couple_aero(Etat& etat, double date, const TablesAtmosphere& tables) {
    Vec3& c = etat.att.c_aero;
    c = {};

    double alt = etat.orb.sat_alt;
    // Earth's rate in deg/s, to rad/s
    Vec3 rot{0, 0, facteur_vent(alt) * 0.004178079012116429 * 0.017453292519943278};
    Vec3 rxp;
    vec_vectoriel(rot, etat.orb.sat_pos, rxp);
    Vec3 vrel{etat.orb.sat_vit[0] - rxp[0], etat.orb.sat_vit[1] - rxp[1], etat.orb.sat_vit[2] - rxp[2]};
    Vec3 V;
    inertiel_vers_corps(etat, vrel, V);
    double v = vec_norme(V);  // km/s

    double T = temperature_exo(tables, date, etat.orb.sat_lon, etat.orb.sat_lat, alt, etat.orb.soleil_pos);
    double rho = densite(tables, T, alt);
    double q = rho * 0.5 * v * v * 1e7;

    const AttitudeRecord& a = etat.att;
    Vec3 u{V[0] / v, V[1] / v, V[2] / v};
    for (int k = 0; k < 6; ++k) {
        const Vec3& n = AttitudeRecord::face_n[k];
        double ck = vec_scalaire(n, u);
        if (ck > 0) {
            Vec3 Fn;
            vec_echelle(-2 * q * (2 - a.sn[k]) * ck * ck, n, Fn);
            Vec3 p;  // the area multiplies the lever, not the force
            vec_echelle(aire_face(a, k), a.face_c[k], p);
            Vec3 t;
            vec_vectoriel(p, Fn, t);
            vec_somme(c, t, c);

            Vec3 w{V[0] - v * ck * n[0], V[1] - v * ck * n[1], V[2] - v * ck * n[2]};
            double lw = vec_norme(w);
            if (lw != 0) {
                Vec3 Ft;
                vec_echelle((-2 * q * ck * std::sqrt(1 - ck * ck) * a.st[k]) / lw, w, Ft);
                vec_vectoriel(p, Ft, t);
                vec_somme(c, t, c);
            }
        }
        coupe_petits(c);  // after every face, the skipped ones too
    }
}

}  // namespace kestrel

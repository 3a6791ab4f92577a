#include "core/attitude/pointage_soleil.h"

#include "core/attitude/attitude_init.h"
#include "core/etat/etat.h"
#include "core/math/math.h"
#include "core/orbit/matrices.h"
#include "core/orbit/orb_projection.h"

namespace kestrel {

Erreur pointage_soleil(Etat& etat, double date) {
    AttitudeRecord& a = etat.att;
    a.yd = {};
    quat_refresh(etat);
    soleil_position(etat, date);

    // divided by the length of the Sun vector, not of the difference
    const Vec3& sol = etat.orb.soleil_pos;
    double ls = vec_norme(sol);
    Vec3 s{(sol[0] - etat.orb.sat_pos[0]) / ls, (sol[1] - etat.orb.sat_pos[1]) / ls,
           (sol[2] - etat.orb.sat_pos[2]) / ls};
    vers_orbital_i(etat.orbite, s);
    vers_orbital_u(etat, s);

    // The steps below work on u, which nothing fills.
    Vec3 u{};
    Vec3 c;
    vec_vectoriel(u, Vec3{1, 0, 0}, c);
    double lc = vec_norme(c);
    if (lc == 0.0) {
        Erreur e;
        e.code = CodeErreur::faute_calcul;
        e.detail = "pointage_soleil";
        e.date = date;
        return e;
    }
    for (double& x : c) x /= lc;

    // plane angle of c in [0, 2 pi) from its components on y and z
    double cy = c[1], cz = c[2];
    double e = (cz >= 0) ? arccos_p(cy) : DEUX_PI - arccos_p(cy);
    double p = arccos_p(u[0]);
    if (p < 0) p = DEMI_PI - p;

    constexpr double DEG = 57.29577951308238;
    e *= DEG;
    p *= DEG;
    switch (a.mode_pointage) {
        case 1:
        case 4:
            a.yd[0] = e, a.yd[1] = p + 180, a.yd[2] = 0;
            break;
        case 2:
        case 5:
            a.yd[0] = e, a.yd[1] = p + 90, a.yd[2] = 0;
            break;
        case 3:
            a.yd[0] = modulo(e + 270, 360), a.yd[1] = 0, a.yd[2] = 90 - p;
            break;
        case 6:
            a.yd[0] = modulo(e + 270, 360), a.yd[1] = 0, a.yd[2] = 270 - p;
            break;
        default:
            break;
    }
    quat_refresh(etat);
    return {};
}

}  // namespace kestrel

#include "core/power/geometrie_vue.h"

#include "core/etat/etat.h"
#include "core/orbit/matrices.h"
#include "core/orbit/orb_projection.h"

namespace kestrel {

namespace {

constexpr double RAYON_TERRE = 6378.137;  // km

}  // namespace

Vec3 vers_vue(const Vec3& v) { return {v[0], v[2], -v[1]}; }

GeometrieVue geometrie_vue(const Etat& etat, double date) {
    GeometrieVue g;
    // The texture's Greenwich meridian lies on -y of the sphere before the
    // turn: a quarter turn more brings it to the sidereal angle.
    g.angle_terre = temps_sideral(date) / DEG_RAD + 90.0;
    const Vec3& s = etat.orb.sat_pos;
    g.sat = vers_vue({s[0] / RAYON_TERRE, s[1] / RAYON_TERRE, s[2] / RAYON_TERRE});
    const Vec3& sol = etat.orb.soleil_pos;
    const double k = 1.0 / 1000.0 / RAYON_TERRE;
    g.soleil = vers_vue({sol[0] * k, sol[1] * k, sol[2] * k});

    // Body -> local orbital -> plane -> inertial, the reverse of the turns
    // that environment_update applies to the Sun and the satellite.
    const Orbite& o = etat.orbite;
    const Pointage& pt = etat.pointage;
    Vec3 p_sat{};
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, s, p_sat);
    for (int i = 0; i < 3; ++i) {
        Vec3 e{}, local{}, plan{}, inertiel{};
        e[i] = 1.0;
        depuis_corps(pt.psi, pt.theta, pt.phi, e, local);
        local_vers_plan(p_sat, local, plan);
        depuis_plan(o, o.orb_ascension, o.orb_inclinaison, plan, inertiel);
        const Vec3 v = vers_vue(inertiel);
        for (int k2 = 0; k2 < 3; ++k2) g.axes[4 * i + k2] = v[k2];
    }
    g.axes[15] = 1.0;
    return g;
}

}  // namespace kestrel

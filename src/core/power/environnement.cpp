// Sun and Earth seen from the satellite, in the body frame.
#include "core/power/environnement.h"

#include <algorithm>
#include <cmath>

#include "core/etat/etat.h"
#include "core/math/math.h"
#include "core/orbit/matrices.h"
#include "core/orbit/orb_trajecto.h"
#include "core/shell/calendrier.h"

namespace kestrel {

namespace {

constexpr double RAYON_TERRE = 6378.137;  // km

// Inertial -> plane -> local orbital (form A) -> body; p_sat is the satellite
// in the plane frame.
void vers_corps_satellite(const Etat& etat, const Vec3& p_sat, const Vec3& v, Vec3& r) {
    const Orbite& o = etat.orbite;
    Vec3 plan{}, local{};
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, v, plan);
    plan_vers_local(p_sat, plan, local);
    vers_corps(etat.pointage.psi, etat.pointage.theta, etat.pointage.phi, local, r);
}

// Flux of the Sun at d km from it, W/m² (km² -> m² by 1e6).
double flux_a_distance(double sun_power, double d) { return sun_power / 4 / PI / d / d / 1e6; }

// z, sqrt(1 - z²) and azimuth of a unit vector; the root is 0 from |z| = 1 on.
void direction(const Vec3& u, double& z, double& sxy, double& az) {
    z = u[2];
    sxy = std::fabs(z) >= 1.0 ? 0.0 : std::sqrt(1.0 - z * z);
    az = atan_quad(u[1], u[0]);
}

}  // namespace

double angle_spin(const Etat& etat, double date) {
    double a = (date - etat.session.j_debut) * etat.pointage.vitesse_spin * 360.0 * 1440.0 +
               etat.pointage.att_lacet;
    // One correction only: several turns past the range stay outside it.
    if (a >= 360.0)
        a -= 360.0;
    else if (a < 0.0)
        a += 360.0;
    return a;
}

void environment_update(Etat& etat, double date) {
    PowerRecord& p = etat.pwr;
    orb_position(etat, date);

    etat.pointage.psi = angle_spin(etat, date);
    etat.pointage.theta = etat.pointage.att_tangage;
    etat.pointage.phi = etat.pointage.att_roulis;

    Vec3 p_sat{};
    vers_plan(etat.orbite, etat.orbite.orb_ascension, etat.orbite.orb_inclinaison, etat.orb.sat_pos, p_sat);
    Vec3 sat{}, sol{};
    vers_corps_satellite(etat, p_sat, etat.orb.sat_pos, sat);
    vers_corps_satellite(etat, p_sat, etat.orb.soleil_pos, sol);

    const double r = vec_norme(sat);
    p.earth_half = std::asin(RAYON_TERRE / r);

    // Albedo lighting from the Sun-Earth-satellite angle seen at the Earth's centre.
    const double d_terre = vec_norme(sol);
    const double c = std::clamp(vec_scalaire(sat, sol) / (r * d_terre), -1.0, 1.0);
    double w = std::cos(0.9 * std::acos(c));
    if (w < 0) w = 0;
    w = std::sqrt(w * w * w);

    Vec3 u_sol{}, u_nad{};
    for (int k = 0; k < 3; ++k) {
        u_sol[k] = sol[k] - sat[k];
        u_nad[k] = -sat[k] / r;
    }
    const double d = vec_norme(u_sol);
    for (double& x : u_sol) x /= d;

    p.flux_sun = static_cast<float>(flux_a_distance(p.sun_power, d));
    Date cal;
    jour_vers_date(date, cal);
    const int m = cal.mois - 1;
    p.flux_alb = flux_a_distance(p.sun_power, d_terre) * p.albedo[m] * w;
    p.flux_ir = p.earth_ir[m];

    p.sun_nadir_cos = vec_scalaire(u_sol, u_nad);
    // Sharp cone, no penumbra; on the cone itself the satellite is sunlit.
    p.eclipse = p.sun_nadir_cos > std::cos(p.earth_half) ? VRAI : FAUX;

    direction(u_sol, p.sun_z, p.sun_sxy, p.sun_az);
    direction(u_nad, p.nad_z, p.nad_sxy, p.nad_az);
}

}  // namespace kestrel

// Prism of 4 or 6 lateral faces carrying the cells, top, bottom and the
// internal node. One-second explicit Euler passes.
#include <array>
#include <cmath>

#include "core/etat.h"
#include "core/power/flux.h"
#include "core/power/thermique.h"

namespace kestrel {

void thermal_faces(Etat& etat) {
    PowerRecord& p = etat.pwr;
    const float t = static_cast<float>(etat.session.j_courant);
    const int n = p.nb_faces;
    const double cote = static_cast<double>(p.body_width) * p.body_height;  // m², one face
    const double l2 = static_cast<double>(p.body_width) * p.body_width;
    const double couvercle = p.opt_faces == 0 ? l2 : (n * l2 / 4) / std::tan(PI / n);  // m²

    std::array<double, 3> al{};
    for (int j = 0; j < 3; ++j) al[j] = alpha(p, t, p.fac_alpha0[j], p.fac_alpha_lim[j], p.fac_t99[j]);

    // Absorbed flux per node for the step: faces 0..n-1, top 8, bottom 9.
    std::array<double, 10> absorbe{};
    for (int i = 0; i < n && i < 8; ++i)
        absorbe[i] = al[0] * solar_albedo_flux(etat, p.face_elev[i], p.face_azim[i]) +
                     p.fac_eps[0] * earth_ir_flux(etat, p.face_elev[i], p.face_azim[i]);
    absorbe[8] = al[1] * solar_albedo_flux(etat, DEMI_PI, 0) + p.fac_eps[1] * earth_ir_flux(etat, DEMI_PI, 0);
    absorbe[9] = al[2] * solar_albedo_flux(etat, -DEMI_PI, 0) + p.fac_eps[2] * earth_ir_flux(etat, -DEMI_PI, 0);

    const double cap0 = static_cast<double>(p.fac_mass[0]) * p.fac_cp[0];
    const double cap_int = static_cast<double>(p.int_cp) * p.int_mass;

    auto& T = p.node_t;
    std::array<double, 11> T4{}, d{};
    for (int pas = 0; pas < etat.session.pas_sim; ++pas) {
        for (int i = 0; i < 11; ++i) T4[i] = (T[i] * T[i]) * (T[i] * T[i]);

        double interne = 0;
        for (int i = 0; i < n && i < 8; ++i) {
            const double echange = (T[10] - T[i]) * p.fac_cond[0] + SIGMA * p.fac_rad[0] * (T4[10] - T4[i]);
            d[i] = (absorbe[i] - p.fac_eps[0] * SIGMA * T4[i] + echange) / cap0;
            interne -= echange;
        }
        for (int j = 1; j <= 2; ++j) {
            const int i = 7 + j;
            d[i] = (absorbe[i] - p.fac_eps[j] * SIGMA * T4[i] + (T[10] - T[i]) * p.fac_cond[j] +
                    SIGMA * p.fac_rad[j] * (T4[10] - T4[i])) /
                   (static_cast<double>(p.fac_mass[j]) * p.fac_cp[j]);
        }
        interne *= cote;
        interne -= ((T[10] - T[9]) * p.fac_cond[2] + (T[10] - T[8]) * p.fac_cond[1]) * couvercle;
        interne -= couvercle * SIGMA * ((T4[10] - T4[9]) * p.fac_rad[2] + (T4[10] - T4[8]) * p.fac_rad[1]);
        d[10] = (p.p_heat + interne) / cap_int;

        for (int i = 0; i < n && i < 8; ++i) T[i] += d[i];
        for (int i = 8; i < 11; ++i) T[i] += d[i];
    }
    // In this layout the battery does not follow the internal node.
    p.t_bat = 20.0;
}

}  // namespace kestrel

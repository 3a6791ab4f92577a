// Cylinder of 36 strips of 10 degrees with top, bottom and internal node.
// Strips exchange with the internal node and conduct around the wall. A step
// above 300 s is run in at most 599 passes of k seconds.
#include <array>

#include "core/etat.h"
#include "core/power/flux.h"
#include "core/power/thermique.h"

namespace kestrel {

int passes_cylindre(int pas, int& k) {
    k = pas > 300 ? pas / 300 : 1;
    return pas / k;
}

void thermal_cylinder(Etat& etat) {
    PowerRecord& p = etat.pwr;
    const float t = static_cast<float>(etat.session.j_courant);
    constexpr double DIX_DEG = 0.17453292519943278;  // rad
    const double bande = p.body_width * DIX_DEG;      // m, strip width on the full width
    const double disque = PI * p.body_width * p.body_width / 4;  // m²

    std::array<double, 3> al{};
    for (int j = 0; j < 3; ++j) al[j] = alpha(p, t, p.fac_alpha0[j], p.fac_alpha_lim[j], p.fac_t99[j]);

    // The strips' fluxes depend only on the step's directions: computed once.
    std::array<double, 38> absorbe{};
    for (int i = 0; i < 36; ++i) {
        const double b = (i * 10 + 5) * DEG_RAD;
        absorbe[i] = al[0] * solar_albedo_flux(etat, 0, b) + p.fac_eps[0] * earth_ir_flux(etat, 0, b);
    }
    absorbe[36] = al[1] * solar_albedo_flux(etat, DEMI_PI, 0) + p.fac_eps[1] * earth_ir_flux(etat, DEMI_PI, 0);
    absorbe[37] = al[2] * solar_albedo_flux(etat, -DEMI_PI, 0) + p.fac_eps[2] * earth_ir_flux(etat, -DEMI_PI, 0);

    const double emis0 = p.fac_eps[0] * SIGMA;
    const double cond0 = p.fac_cond[0], ray0 = SIGMA * p.fac_rad[0];
    const double tour = p.cyl_cond / bande;
    const double cap0 = static_cast<double>(p.fac_cp[0]) * p.fac_mass[0];
    const double cap_int = static_cast<double>(p.int_cp) * p.int_mass;

    int k = 1;
    const int n = passes_cylindre(etat.session.pas_sim, k);
    auto& T = p.node_t;
    std::array<double, 39> T4{}, d{};
    for (int pas = 0; pas < n; ++pas) {
        for (int i = 0; i < 39; ++i) T4[i] = (T[i] * T[i]) * (T[i] * T[i]);
        const double Ti_ = T[38], T4i = T4[38];

        double interne = p.p_heat;
        for (int i = 0; i < 36; ++i) {
            const int g = i == 0 ? 35 : i - 1;
            const int dr = i == 35 ? 0 : i + 1;
            double di = absorbe[i] - emis0 * T4[i] + (Ti_ - T[i]) * cond0 + ray0 * (T4i - T4[i]);
            di -= (2 * T[i] - T[g] - T[dr]) * tour;
            d[i] = di / cap0 * k;
            interne -= (Ti_ - T[i]) * cond0 * bande;
            interne -= ray0 * (T4i - T4[i]) * bande;
        }
        for (int j = 1; j <= 2; ++j) {
            const int i = 35 + j;
            double dj = absorbe[i] - p.fac_eps[j] * SIGMA * T4[i] + (Ti_ - T[i]) * p.fac_cond[j] +
                        SIGMA * p.fac_rad[j] * (T4i - T4[i]);
            d[i] = dj / (static_cast<double>(p.fac_cp[j]) * p.fac_mass[j]) * k;
        }
        interne -= ((Ti_ - T[37]) * p.fac_cond[2] + (Ti_ - T[36]) * p.fac_cond[1]) * disque;
        interne -= disque * SIGMA * p.fac_rad[1] * (T4i - T4[36]);
        interne -= disque * SIGMA * p.fac_rad[2] * (T4i - T4[37]);
        d[38] = interne / cap_int * k;

        for (int i = 0; i < 39; ++i) T[i] += d[i];
    }
    p.t_bat = T[38] - 273.15;
}

}  // namespace kestrel

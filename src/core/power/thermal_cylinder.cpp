// Cylinder of 36 strips of 10 degrees with top, bottom and internal node.
// Strips exchange with the internal node and conduct around the wall. A step
// above 300 s is run in at most 599 passes of k seconds.
#include <array>

#include "core/etat/etat.h"
#include "core/power/alpha.h"
#include "core/power/flux.h"
#include "core/power/thermal_cylinder.h"
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
    for (int j = 0; j < 3; ++j) al[j] = alpha_memo(p, j, t, p.fac_alpha0[j], p.fac_alpha_lim[j], p.fac_t99[j]);

    // The fluxes depend only on the step's directions, not on the
    // temperatures: the same in every pass, so computed once.
    constexpr PlanNoeuds N = NOEUDS_CYLINDRE;
    const VueTerre vue = vue_terre(etat);
    std::array<double, N.interne> absorbe{};  // every node but the internal one
    incidences_bandes(p);
    for (int i = 0; i < N.parois; ++i) {
        const FluxSurface f = flux_surface_bande(p, vue, i);
        absorbe[i] = al[0] * f.sa + p.fac_eps[0] * f.ir;
    }
    const FluxSurface haut = flux_surface(etat, vue, normale(DEMI_PI, 0));
    const FluxSurface bas = flux_surface(etat, vue, normale(-DEMI_PI, 0));
    absorbe[N.haut] = al[1] * haut.sa + p.fac_eps[1] * haut.ir;
    absorbe[N.bas] = al[2] * bas.sa + p.fac_eps[2] * bas.ir;

    const double emis0 = p.fac_eps[0] * SIGMA;
    const double cond0 = p.fac_cond[0], ray0 = SIGMA * p.fac_rad[0];
    const double cyl_cond = p.cyl_cond;  // W/K
    const double cap0 = static_cast<double>(p.fac_cp[0]) * p.fac_mass[0];
    const double cap_int = static_cast<double>(p.int_cp) * p.int_mass;
    std::array<double, 3> emis{}, cond{}, ray{}, cap{};
    for (int j = 1; j < 3; ++j) {
        emis[j] = p.fac_eps[j] * SIGMA;
        cond[j] = p.fac_cond[j];
        ray[j] = SIGMA * p.fac_rad[j];
        cap[j] = static_cast<double>(p.fac_cp[j]) * p.fac_mass[j];
    }
    const double disque_ray1 = disque * SIGMA * p.fac_rad[1];
    const double disque_ray2 = disque * SIGMA * p.fac_rad[2];
    const double chaleur = p.p_heat;

    int k = 1;
    const int n = passes_cylindre(etat.session.pas_sim, k);
    // Temperatures worked on a local copy, written back after the loop.
    std::array<double, N.nombre> T = p.node_t;
    std::array<double, N.nombre> T4{}, d{};
    std::array<double, N.parois> conduction{}, rayonnement{};  // W/m², strip to internal node
    for (int pas = 0; pas < n; ++pas) {
        for (int i = 0; i < N.nombre; ++i) T4[i] = (T[i] * T[i]) * (T[i] * T[i]);
        const double Ti_ = T[N.interne], T4i = T4[N.interne];

        // Exchanges with the internal node first, then its serial sum in
        // strip order, then the strips' own derivatives: these are
        // independent of the sum, so the processor runs both at once.
        for (int i = 0; i < N.parois; ++i) {
            conduction[i] = (Ti_ - T[i]) * cond0;
            rayonnement[i] = ray0 * (T4i - T4[i]);
        }
        double interne = chaleur;
        for (int i = 0; i < N.parois; ++i) {
            interne -= conduction[i] * bande;
            interne -= rayonnement[i] * bande;
        }
        auto bande_i = [&](int i, int g, int dr) {
            double di = absorbe[i] - emis0 * T4[i] + conduction[i] + rayonnement[i];
            di -= (2 * T[i] - T[g] - T[dr]) * cyl_cond / bande;
            d[i] = di / cap0 * k;
        };
        constexpr int der = N.parois - 1;  // the wall closes on itself
        bande_i(0, der, 1);
        for (int i = 1; i < der; ++i) bande_i(i, i - 1, i + 1);
        bande_i(der, der - 1, 0);
        for (int j = 1; j <= 2; ++j) {
            const int i = j == 1 ? N.haut : N.bas;
            const double dj = absorbe[i] - emis[j] * T4[i] + (Ti_ - T[i]) * cond[j] + ray[j] * (T4i - T4[i]);
            d[i] = dj / cap[j] * k;
        }
        interne -= ((Ti_ - T[N.bas]) * cond[2] + (Ti_ - T[N.haut]) * cond[1]) * disque;
        interne -= disque_ray1 * (T4i - T4[N.haut]);
        interne -= disque_ray2 * (T4i - T4[N.bas]);
        d[N.interne] = interne / cap_int * k;

        for (int i = 0; i < N.nombre; ++i) T[i] += d[i];
    }
    p.node_t = T;
    p.t_bat = T[N.interne] - 273.15;
}

}  // namespace kestrel

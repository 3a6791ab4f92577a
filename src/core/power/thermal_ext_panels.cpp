// Nine nodes of the external-panel satellite: one node for both sides of a
// panel, six body faces, the internal node; node 1 carries only the rear's
// optical data. One-second explicit Euler passes.
#include <array>

#include "core/etat/etat.h"
#include "core/power/alpha.h"
#include "core/power/flux.h"
#include "core/power/thermal_ext_panels.h"
#include "core/power/thermique.h"

namespace kestrel {

void thermal_ext_panels(Etat& etat) {
    PowerRecord& p = etat.pwr;
    const float t = static_cast<float>(etat.session.j_courant);

    // Normals (elevation, azimuth) of the front, rear and the six faces.
    const double a[8] = {p.pan_angle, p.pan_angle + PI, 0, 0, 0, 0, DEMI_PI, -DEMI_PI};
    const double b[8] = {PI, PI, 0 * PI / 2, 1 * PI / 2, 2 * PI / 2, 3 * PI / 2, 0, 0};

    // Absorbed-flux constant and radiation factor of each surface for the step.
    const VueTerre vue = vue_terre(etat);
    std::array<double, 8> absorbe{}, emis{};
    for (int i = 0; i < 8; ++i) {
        const double al = alpha_memo(p, i, t, p.ext_alpha0[i], p.ext_alpha_lim[i], p.ext_t99[i]);
        const FluxSurface f = flux_surface(etat, vue, normale(a[i], b[i]));
        absorbe[i] = al * f.sa + p.ext_eps[i] * f.ir;
        emis[i] = p.ext_eps[i] * SIGMA;
    }
    const double perte_elec = p.pan_power[0] / p.ext_area;  // W/m²
    constexpr PlanNoeudsPanneaux N = NOEUDS_PANNEAUX;
    constexpr int fin_faces = N.premiere_face + N.nb_faces;
    const double cap0 = static_cast<double>(p.ext_mass[0]) * p.ext_cp[0];
    std::array<double, N.nombre> cap{};
    for (int i = N.premiere_face; i < N.nombre; ++i) cap[i] = static_cast<double>(p.ext_cp[i]) * p.ext_mass[i];
    std::array<double, 6> cond{}, ray{};
    for (int k = 0; k < 6; ++k) {
        cond[k] = p.ext_cond[k];
        ray[k] = SIGMA * p.ext_rad[k];
    }
    const double aire = p.body_face_area, chaleur = p.p_heat;

    // Temperatures worked on a local copy, written back after the loop.
    std::array<double, N.nombre> T = {};
    T[N.panneau] = p.node_t[N.panneau];
    for (int i = N.premiere_face; i < N.nombre; ++i) T[i] = p.node_t[i];
    for (int pas = 0; pas < etat.session.pas_sim; ++pas) {
        std::array<double, N.nombre> T4{}, d{};
        for (int i = 0; i < N.nombre; ++i) T4[i] = (T[i] * T[i]) * (T[i] * T[i]);

        // Surfaces 0 and 1 are the front and rear of the one panel node.
        const int q = N.panneau;
        d[q] = (absorbe[0] - emis[0] * T4[q]) + (absorbe[1] - emis[1] * T4[q]) - perte_elec;
        d[q] /= cap0;
        double interne = 0;
        for (int i = N.premiere_face; i < fin_faces; ++i) {
            const int k = i - N.premiere_face;
            // Face: balance + conduction + radiation, summed left to right;
            // the internal node takes the exchange as one term.
            const double conduction = (T[N.interne] - T[i]) * cond[k];
            const double rayonnement = ray[k] * (T4[N.interne] - T4[i]);
            d[i] = (((absorbe[i] - emis[i] * T4[i]) + conduction) + rayonnement) / cap[i];
            interne -= conduction + rayonnement;
        }
        d[N.interne] = (aire * interne + chaleur) / cap[N.interne];

        T[N.panneau] += d[N.panneau];
        for (int i = N.premiere_face; i < N.nombre; ++i) T[i] += d[i];
    }
    p.node_t[N.panneau] = T[N.panneau];
    for (int i = N.premiere_face; i < N.nombre; ++i) p.node_t[i] = T[i];
    p.t_bat = T[N.interne] - 273.15;
}

}  // namespace kestrel

// Prism of 4 or 6 lateral faces carrying the cells, top, bottom and the
// internal node. One-second explicit Euler passes.
#include <array>
#include <cmath>

#include "core/etat/etat.h"
#include "core/power/alpha.h"
#include "core/power/flux.h"
#include "core/power/thermal_faces.h"
#include "core/power/thermique.h"

namespace kestrel {

void thermal_faces(Etat& etat) {
    PowerRecord& p = etat.pwr;
    const float t = static_cast<float>(etat.session.j_courant);
    constexpr PlanNoeuds N = NOEUDS_FACES;
    const int n = p.nb_faces < N.parois ? p.nb_faces : N.parois;
    const double cote = static_cast<double>(p.body_width) * p.body_height;  // m², one face
    const double l2 = static_cast<double>(p.body_width) * p.body_width;
    const double couvercle = p.opt_faces == 0 ? l2 : (p.nb_faces * l2 / 4) / std::tan(PI / p.nb_faces);  // m²

    std::array<double, 3> al{};
    for (int j = 0; j < 3; ++j) al[j] = alpha_memo(p, j, t, p.fac_alpha0[j], p.fac_alpha_lim[j], p.fac_t99[j]);

    // Absorbed flux per node for the step: faces, top, bottom.
    const VueTerre vue = vue_terre(etat);
    std::array<double, N.interne> absorbe{};
    for (int i = 0; i < n; ++i) {
        const FluxSurface f = flux_surface(etat, vue, normale(p.face_elev[i], p.face_azim[i]));
        absorbe[i] = al[0] * f.sa + p.fac_eps[0] * f.ir;
    }
    const FluxSurface haut = flux_surface(etat, vue, normale(DEMI_PI, 0));
    const FluxSurface bas = flux_surface(etat, vue, normale(-DEMI_PI, 0));
    absorbe[N.haut] = al[1] * haut.sa + p.fac_eps[1] * haut.ir;
    absorbe[N.bas] = al[2] * bas.sa + p.fac_eps[2] * bas.ir;

    const double cap0 = static_cast<double>(p.fac_mass[0]) * p.fac_cp[0];
    const double cap_int = static_cast<double>(p.int_cp) * p.int_mass;
    std::array<double, 3> emis{}, cond{}, ray{}, cap{};
    for (int j = 0; j < 3; ++j) {
        emis[j] = p.fac_eps[j] * SIGMA;
        cond[j] = p.fac_cond[j];
        ray[j] = SIGMA * p.fac_rad[j];
        cap[j] = static_cast<double>(p.fac_mass[j]) * p.fac_cp[j];
    }
    const double chaleur = p.p_heat;
    const double ray_couvercle = couvercle * SIGMA;

    // Temperatures worked on a local copy, written back after the loop.
    constexpr int I = N.interne;
    std::array<double, N.nombre> T{};
    for (int i = 0; i < N.nombre; ++i) T[i] = p.node_t[i];
    std::array<double, N.nombre> T4{}, d{};
    for (int pas = 0; pas < etat.session.pas_sim; ++pas) {
        for (int i = 0; i < N.nombre; ++i) T4[i] = (T[i] * T[i]) * (T[i] * T[i]);

        double interne = 0;
        for (int i = 0; i < n; ++i) {
            // Face: balance + conduction + radiation, summed left to right;
            // the internal node takes the exchange as one term.
            const double conduction = (T[I] - T[i]) * cond[0], rayonnement = ray[0] * (T4[I] - T4[i]);
            d[i] = (absorbe[i] - emis[0] * T4[i] + conduction + rayonnement) / cap0;
            interne -= conduction + rayonnement;
        }
        for (int j = 1; j <= 2; ++j) {
            const int i = j == 1 ? N.haut : N.bas;
            d[i] = (absorbe[i] - emis[j] * T4[i] + (T[I] - T[i]) * cond[j] + ray[j] * (T4[I] - T4[i])) / cap[j];
        }
        interne *= cote;
        interne -= ((T[I] - T[N.bas]) * cond[2] + (T[I] - T[N.haut]) * cond[1]) * couvercle;
        interne -= ray_couvercle * ((T4[I] - T4[N.bas]) * p.fac_rad[2] + (T4[I] - T4[N.haut]) * p.fac_rad[1]);
        d[I] = (chaleur + interne) / cap_int;

        for (int i = 0; i < n; ++i) T[i] += d[i];
        for (int i = N.haut; i < N.nombre; ++i) T[i] += d[i];
    }
    for (int i = 0; i < n; ++i) p.node_t[i] = T[i];
    for (int i = N.haut; i < N.nombre; ++i) p.node_t[i] = T[i];
    // In this layout the battery does not follow the internal node.
    p.t_bat = 20.0;
}

}  // namespace kestrel

// Currents (C units) for a given charge voltage, charge power or discharge
// power, by secant from the previous step's current.
#include <cmath>

#include "core/etat/etat.h"
#include "core/power/bat_curves.h"
#include "core/power/bat_solveurs.h"

namespace kestrel {

namespace {

constexpr double TOLERANCE = 1e-5;    // on |g - cible|, V or W per Ah
constexpr double COURANT_MIN = 1e-06;  // C; keeps log10 of the current defined
constexpr long PLAFOND = 100000;      // passes before a fault

// i0 is tested alone first; then (ia, ib) = (i0, i1) and each pass moves to
// (ib, i_new) until g(ib) meets the tolerance.
template <class G>
double secante(Etat& etat, G&& g, double cible, double i0, double i1, const char* nom) {
    double ga = g(i0);
    if (std::fabs(ga - cible) <= TOLERANCE) return i0;
    double ia = i0, ib = i1;
    double gb = g(ib);
    long passes = 0;
    do {
        if (++passes > PLAFOND) {
            signale_faute(etat, CodeErreur::non_convergence, etat.session.j_courant, nom);
            return ib;
        }
        double in = ia + (cible - ga) * (ib - ia) / (gb - ga);
        if (!(in > 0)) in = COURANT_MIN;
        ia = ib;
        ga = gb;
        ib = in;
        gb = g(ib);
    } while (!(std::fabs(gb - cible) <= TOLERANCE));
    return ib;
}

}  // namespace

double bat_i_from_v_charge(Etat& etat, double soc, double v, double i0, double t) {
    auto g = [&](double i) { return bat_v_charge(etat, i, t, soc); };
    return secante(etat, g, v, i0, i0 * 0.99, "bat_i_from_v_charge");
}

double bat_i_from_p_charge(Etat& etat, double soc, double p, double i0, double t) {
    auto g = [&](double i) { return i * bat_v_charge(etat, i, t, soc); };
    return secante(etat, g, p, i0, i0 * 1.1, "bat_i_from_p_charge");
}

double bat_i_from_p_discharge(Etat& etat, double soc, double p, double i0, double t) {
    if (!(soc > 0)) return 0;
    auto g = [&](double i) { return i * bat_v_discharge(etat.pwr, i, t, soc); };
    return secante(etat, g, p, i0, i0 * 1.1, "bat_i_from_p_discharge");
}

}  // namespace kestrel

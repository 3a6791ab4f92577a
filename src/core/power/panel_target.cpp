// Where an external panel (front normal at azimuth pi) wants to point.
#include <cmath>

#include "core/etat/etat.h"
#include "core/math/math.h"
#include "core/power/flux.h"
#include "core/power/panel_target.h"

namespace kestrel {

namespace {

// Turn the target by half a turn when the rear would collect more.
void retournement(Etat& etat) {
    double& t = etat.pwr.pan_target;
    if (solar_albedo_flux(etat, t + PI, PI) > solar_albedo_flux(etat, t, PI)) t -= signe(t) * PI;
}

// Slope of the cell flux on the front with respect to the panel angle a.
double pente_flux(const Etat& etat, double a) {
    const PowerRecord& p = etat.pwr;
    return p.flux_sun * cell_cosine_derivee(etat, a, PI, p.sun_z, p.sun_sxy, p.sun_az) +
           p.flux_alb * cell_cosine_derivee(etat, a, PI, p.nad_z, p.nad_sxy, p.nad_az);
}

}  // namespace

void panel_target_update(Etat& etat) {
    PowerRecord& p = etat.pwr;
    const double c1 = std::cos(p.sun_az - PI);
    const double c2 = std::cos(p.nad_az - PI);

    if (p.flux_alb > 0) {
        // Weighted sum of the two directions; in eclipse the albedo alone.
        const double k = p.eclipse == VRAI ? 0.0 : p.flux_sun / p.flux_alb;
        p.pan_target = std::atan((p.sun_z * k + p.nad_z) / (p.sun_sxy * k * c1 + p.nad_sxy * c2));
        retournement(etat);
        return;
    }
    if (p.flux_alb == 0) {
        if (std::fabs(p.sun_z) < 0.001 && std::fabs(p.sun_az - PI) < 0.001)
            p.pan_target = PAS_DE_CIBLE;
        else if (std::fabs(p.sun_sxy) < 0.001)
            p.pan_target = DEMI_PI;
        else
            p.pan_target = std::atan(p.sun_z / (p.sun_sxy * c1));
        retournement(etat);
        if (cell_flux(etat, p.pan_target, PI) == 0 || p.eclipse == VRAI) p.pan_target = PAS_DE_CIBLE;
    }
    // A negative albedo flux keeps the previous target.
}

double panel_target_refined(Etat& etat) {
    panel_target_update(etat);
    const PowerRecord& p = etat.pwr;
    double a0 = p.pan_target;
    if (p.flux_sun == 0 || p.flux_alb == 0) return a0;

    double a1 = a0 + 0.1;
    double d0 = pente_flux(etat, a0);
    double d1 = pente_flux(etat, a1);
    long passes = 0;
    while (!(std::fabs(d1) <= 1e-5)) {
        if (++passes > 100000) {
            signale_faute(etat, CodeErreur::non_convergence, etat.session.j_courant, "panel_target_refined");
            break;
        }
        const double a2 = a1 - (a1 - a0) * d1 / (d1 - d0);
        a0 = a1;
        d0 = d1;
        a1 = a2;
        d1 = pente_flux(etat, a1);
    }
    return a1;
}

}  // namespace kestrel

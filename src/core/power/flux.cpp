// Fluxes on one surface of the satellite from the directions of the step.
#include "core/power/flux.h"

#include <algorithm>
#include <cmath>

#include "core/etat/etat.h"
#include "core/orbit/matrices.h"

namespace kestrel {

namespace {

constexpr double RAYON_TERRE = 6378.137;  // km

// Angle between the normal (a, b) and the unit direction (z, sxy, az).
// The clamp only absorbs rounding past +-1.
double incidence(const Normale& n, double z, double sxy, double az) {
    const double c = n.sin_a * z + sxy * n.cos_a * std::cos(az - n.b);
    return std::acos(std::clamp(c, -1.0, 1.0));
}

double incidence(double a, double b, double z, double sxy, double az) { return incidence(normale(a, b), z, sxy, az); }

double direct(const PowerRecord& p, double inc_soleil) {
    const double c = std::cos(inc_soleil);
    return (p.eclipse != VRAI && c > 0) ? p.flux_sun * c : 0.0;
}

// Sun and albedo on the cells through the law `cosinus` of the incidence.
template <class F>
double flux_cellule(const PowerRecord& p, const Normale& n, F&& cosinus) {
    const double g = cosinus(incidence(n, p.sun_z, p.sun_sxy, p.sun_az));
    const double soleil = (p.eclipse != VRAI && g > 0) ? p.flux_sun * g : 0.0;
    // The albedo is taken as a point source at nadir under the same law.
    const double h = cosinus(incidence(n, p.nad_z, p.nad_sxy, p.nad_az));
    const double albedo = h > 0 ? p.flux_alb * h : 0.0;
    return soleil + albedo;
}

// Sun and albedo on the cells from the two incidences, the sun's cosine given.
double flux_cellule_incidences(const PowerRecord& p, const LoiCellule& q, double th_s, double cos_s, double th_e) {
    const double g = th_s <= q.d ? std::max(cos_s, 0.0) : cell_cosine(q, th_s);
    const double soleil = (p.eclipse != VRAI && g > 0) ? p.flux_sun * g : 0.0;
    const double h = cell_cosine(q, th_e);
    const double albedo = h > 0 ? p.flux_alb * h : 0.0;
    return soleil + albedo;
}

}  // namespace

const PowerRecord::IncidencesBandes& incidences_bandes(PowerRecord& p) {
    PowerRecord::IncidencesBandes& c = p.bandes;
    const std::array<double, 6> cle = {p.sun_z, p.sun_sxy, p.sun_az, p.nad_z, p.nad_sxy, p.nad_az};
    if (c.valide && c.cle == cle) return c;
    c.cle = cle;
    c.valide = true;
    for (int i = 0; i < 36; ++i) {
        // Normal in the xy plane: sin 0 and cos 0 are exactly 0 and 1.
        const Normale n{0.0, 0.0, 1.0, (i * 10 + 5) * DEG_RAD};
        c.soleil[i] = incidence(n, p.sun_z, p.sun_sxy, p.sun_az);
        c.cos_soleil[i] = std::cos(c.soleil[i]);
        c.terre[i] = incidence(n, p.nad_z, p.nad_sxy, p.nad_az);
    }
    return c;
}

double cell_flux_bande(const PowerRecord& p, const LoiCellule& q, int i) {
    return flux_cellule_incidences(p, q, p.bandes.soleil[i], p.bandes.cos_soleil[i], p.bandes.terre[i]);
}

FluxSurface flux_surface_bande(const PowerRecord& p, const VueTerre& v, int i) {
    const double deg = p.bandes.terre[i] * 180.0 / PI;
    const double f = facteur_vue(v, deg);
    const double c = p.bandes.cos_soleil[i];
    const double direct = (p.eclipse != VRAI && c > 0) ? p.flux_sun * c : 0.0;
    return {direct + f * p.flux_alb, f * p.flux_ir};
}

Normale normale(double a, double b) { return {a, std::sin(a), std::cos(a), b}; }

LoiCellule loi_cellule(const PowerRecord& p) {
    LoiCellule q{};
    q.d = p.inc_div * DEG_RAD;
    q.m = p.inc_max * DEG_RAD;
    q.A = (std::sin(q.d) * (q.m - q.d) - std::cos(q.d)) / ((q.m - q.d) * (q.m - q.d));
    q.B = -std::sin(q.d) - 2 * q.A * q.d;
    q.C = -q.A * q.m * q.m - q.B * q.m;
    return q;
}

double cell_cosine(const LoiCellule& q, double theta) {
    if (theta <= q.d) return std::max(std::cos(theta), 0.0);
    if (!(theta < q.m)) return 0.0;
    const double g = q.A * theta * theta + q.B * theta + q.C;
    return g < 0 ? 0 : g;
}

double cell_flux(const Etat& etat, const LoiCellule& q, const Normale& n) {
    return flux_cellule(etat.pwr, n, [&q](double theta) { return cell_cosine(q, theta); });
}

double incidence_sun(const Etat& etat, double a, double b) {
    const PowerRecord& p = etat.pwr;
    return incidence(a, b, p.sun_z, p.sun_sxy, p.sun_az);
}

double incidence_earth(const Etat& etat, double a, double b) {
    const PowerRecord& p = etat.pwr;
    return incidence(a, b, p.nad_z, p.nad_sxy, p.nad_az);
}

double cell_cosine_derivee(const Etat& etat, double a, double b, double z, double sxy, double az) {
    const LoiCellule q = loi_cellule(etat.pwr);
    const double theta = incidence(a, b, z, sxy, az);
    // d(cos theta)/da
    const double u = std::cos(a) * z - sxy * std::sin(a) * std::cos(az - b);
    if (theta < q.d) return u;
    if (theta < q.m) return -(2 * q.A * theta + q.B) * u / std::sin(theta);
    return 0;
}

double cell_flux(const Etat& etat, double a, double b) {
    // The parabola's coefficients cost two sines: built only when needed.
    const PowerRecord& p = etat.pwr;
    return flux_cellule(p, normale(a, b), [&p](double theta) {
        if (theta <= p.inc_div * DEG_RAD) return std::max(std::cos(theta), 0.0);
        return cell_cosine(loi_cellule(p), theta);
    });
}

double solar_flux_direct(const Etat& etat, double a, double b) {
    return direct(etat.pwr, incidence_sun(etat, a, b));
}

double albedo_flux(Etat& etat, double a, double b) {
    const double deg = incidence_earth(etat, a, b) * 180.0 / PI;
    return facteur_vue(vue_terre(etat), deg) * etat.pwr.flux_alb;
}

double solar_albedo_flux(Etat& etat, double a, double b) {
    return solar_flux_direct(etat, a, b) + albedo_flux(etat, a, b);
}

double earth_ir_flux(Etat& etat, double a, double b) {
    const double deg = incidence_earth(etat, a, b) * 180.0 / PI;
    return facteur_vue(vue_terre(etat), deg) * etat.pwr.flux_ir;
}

VueTerre vue_terre(Etat& etat) {
    const double r = vec_norme(etat.orb.sat_pos);  // km
    const double s = RAYON_TERRE / r;
    etat.pwr.earth_half = std::asin(s);
    const double rho = etat.pwr.earth_half;
    VueTerre v;
    v.L = std::log(r - RAYON_TERRE);
    v.f0 = (0.664 + 0.521 * rho - 0.203 * rho * rho) * std::sin(rho) * std::sin(rho);
    return v;
}

double facteur_vue(const VueTerre& v, double deg) {
    const double L = v.L;
    double f;
    if (deg < 90)
        f = v.f0 * ((1 - 0.0031 * deg) - L * deg * (0.0668 / 90));
    else
        f = v.f0 * ((2.395 - 0.02345 * deg + 5.367e-05 * deg * deg) -
                    L * (0.1091 - 2.833e-06 * deg * deg - 0.000215 * deg));
    return f < 0.001 ? 0.0 : f;
}

FluxSurface flux_surface(const Etat& etat, const VueTerre& v, const Normale& n) {
    const PowerRecord& p = etat.pwr;
    const double deg = incidence(n, p.nad_z, p.nad_sxy, p.nad_az) * 180.0 / PI;
    const double f = facteur_vue(v, deg);
    return {direct(p, incidence(n, p.sun_z, p.sun_sxy, p.sun_az)) + f * p.flux_alb, f * p.flux_ir};
}

}  // namespace kestrel

// Incidences, the cell law and the fluxes on hand-placed geometries.
#include <gtest/gtest.h>

#include <cmath>

#include "core/power/flux.h"
#include "outils_power.h"

namespace kestrel {
namespace {

using essai::etat_soleil_zenith;

TEST(CellCosine, CosineThenParabolaReachingZeroAtIncMaxWithTheSlopeKeptAtIncDiv) {
    const LoiCellule q = loi_cellule(PowerRecord{});  // inc_div 50 deg, inc_max 75 deg
    // d = 0.872665, m = 1.308997: A = (sin d (m-d) - cos d)/(m-d)^2 = -1.620591,
    // B = -sin d - 2 A d = 2.062421, C = -A m^2 - B m = 0.077137; at 62.5 deg:
    // 0.398528; continuous at d, nothing from m on nor behind the cell (never negative).
    const double d = 50 * DEG_RAD, h = 1e-6;
    const double cas[][3] = {{0, 1, 0}, {40 * DEG_RAD, std::cos(40 * DEG_RAD), 1e-15},
                             {62.5 * DEG_RAD, 0.3985282213, 1e-9}, {75 * DEG_RAD - 1e-9, 0, 1e-8},
                             {80 * DEG_RAD, 0, 0}, {PI, 0, 0}, {d + 1e-12, std::cos(d), 1e-10}};
    for (const auto& c : cas) EXPECT_NEAR(cell_cosine(q, c[0]), c[1], c[2]) << c[0];
    // Slope of the cosine there: -sin d = -0.766044 on both sides.
    EXPECT_NEAR((cell_cosine(q, d) - cell_cosine(q, d - h)) / h, -std::sin(d), 1e-5);
    EXPECT_NEAR((cell_cosine(q, d + h) - cell_cosine(q, d)) / h, -std::sin(d), 1e-5);
}

TEST(Flux, SunOnTheFacesThenTheEclipseThatKeepsTheEarth) {
    Etat e = etat_soleil_zenith(1000.0);
    // A lateral face sees the Sun at grazing incidence: nothing; the bottom face has it behind.
    essai::verifie({{"top inc", incidence_sun(e, PI / 2, 0), 0.0, 1e-7},
                    {"top", solar_flux_direct(e, PI / 2, 0), 1000.0, 1e-9},
                    {"top cells", cell_flux(e, PI / 2, 0), 1000.0, 1e-9},
                    {"top sun and albedo", solar_albedo_flux(e, PI / 2, 0), 1000.0, 1e-9},
                    {"side", solar_flux_direct(e, 0, 0), 0.0, 1e-9}, {"side cells", cell_flux(e, 0, 0), 0, 0},
                    {"bottom inc", incidence_sun(e, -PI / 2, 0), PI, 1e-7},
                    {"bottom", solar_flux_direct(e, -PI / 2, 0), 0, 0},
                    {"bottom cells", cell_flux(e, -PI / 2, 0), 0, 0}});
    // Sun 60 deg from the lateral face (0, 0): beyond inc_div the cells follow
    // the parabola, 0.459722 at 60 deg.
    essai::pose_soleil(e.pwr, 60 * DEG_RAD, 0);
    essai::verifie({{"incidence", incidence_sun(e, 0, 0), 60 * DEG_RAD, 1e-9},
                    {"direct", solar_flux_direct(e, 0, 0), 500.0, 1e-7},
                    {"cells", cell_flux(e, 0, 0), 459.7216056, 1e-6}});
    // In eclipse the bottom face looks at nadir: the cells take the albedo at
    // full cosine, the thermal side takes it times the view factor at 0 deg
    // (F0 = 0.825624 at r = 7000 km: rho = asin(6378.137/7000) = 1.144893).
    e.pwr.eclipse = VRAI;
    e.pwr.flux_alb = 200;
    e.pwr.flux_ir = 240;
    essai::verifie({{"top direct", solar_flux_direct(e, PI / 2, 0), 0, 0},
                    {"cells", cell_flux(e, -PI / 2, 0), 200.0, 1e-9},
                    {"albedo", albedo_flux(e, -PI / 2, 0), 200.0 * 0.8256243963, 1e-7},
                    {"infrared", earth_ir_flux(e, -PI / 2, 0), 240.0 * 0.8256243963, 1e-7},
                    {"sun and albedo", solar_albedo_flux(e, -PI / 2, 0), 200.0 * 0.8256243963, 1e-7}});
}

TEST(EarthViewFactor, FormulaOnBothSidesOfNinetyAndTheCut) {
    Etat e = etat_soleil_zenith();
    // r = 7000 km, h = 621.863 km, L = ln h = 6.432720. A normal turned away
    // from the Earth still gets some infrared; F falls through 0.001 between
    // 149 deg (0.001097) and 150 deg (0.000626), then the fit rises again
    // towards 180 deg: 0.0416934 straight behind.
    const double cas[][2] = {{0, 0.8256243963},   {60, 0.4355412616}, {120, 0.0664021061},
                             {149, 0.0010971026}, {150, 0.0},         {180, 0.0416929840}};
    const VueTerre v = vue_terre(e);
    for (const auto& c : cas) EXPECT_NEAR(facteur_vue(v, c[0]), c[1], 1e-9) << c[0];
    EXPECT_NEAR(e.pwr.earth_half, std::asin(6378.137 / 7000.0), 1e-12);
}

}  // namespace
}  // namespace kestrel

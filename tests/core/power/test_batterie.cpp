// Battery curves (values and slopes at the joins), capacity factors and the
// secant solvers on curves whose crossing is known.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "core/power/bat_curves.h"
#include "core/power/bat_solveurs.h"
#include "outils_power.h"

namespace kestrel {
namespace {

// At 25 °C and 1C the curve points are the table's columns 0 and 3:
// discharge x = 0, 0.15, 0.95, 1 and v = 1.3, 1.21, 1.2, 1.0 (x is the depth);
// charge x = 0, 0.15, 0.65, 1.2 and v = 1.3, 1.4, 1.41, 1.59.
constexpr double T25 = 25.0;
constexpr double TOL = 1e-6;  // the table holds single-precision values

struct Valeur {
    double soc, v, tol = TOL;
};

// Left and right difference quotients of v at x, both expected equal to s.
void pentes(const std::function<double(double)>& v, double x, double s) {
    const double h = 1e-6;
    EXPECT_NEAR((v(x) - v(x - h)) / h, s, 1e-4) << x;
    EXPECT_NEAR((v(x + h) - v(x)) / h, s, 1e-4) << x;
}

TEST(BatteryCurves, PointsDischargeValuesJoinsAndTheCapacityFactors) {
    PowerRecord p;
    // charge point 1 at 35 °C and 10C: x = (15 + 0.1*10 - 5*1)/100, v = 1.4 - 0.001*10 + 0.01
    const PointCourbe q = point_courbe(p.ch_pt, 1, 10.0, 35.0);
    essai::verifie({{"x", q.x, 0.11, TOL}, {"v", q.y, 1.40, TOL}});
    // Discharge: soc 1 (x = 0) v0; 0.85 x1; 0.45 on the line of slope -0.0125;
    // 0.05 x2; parabolas: x = 0.05 -> 1.2504167, x = 0.975 -> 1.1498438; it
    // tends to v3 at soc 0, and an empty battery gives nothing.
    const Valeur cas[] = {{1.0, 1.3}, {0.85, 1.21}, {0.45, 1.205}, {0.05, 1.2}, {0.95, 1.2504166667},
                          {0.025, 1.14984375}, {1e-12, 1.0, 1e-5}, {0.0, 0.0, 0}, {-0.1, 0.0, 0}};
    for (const Valeur& c : cas) EXPECT_NEAR(bat_v_discharge(p, 1, T25, c.soc), c.v, c.tol) << c.soc;
    // Slope -0.0125 on both sides of both joins (v against the depth x = 1 - soc).
    for (double x : {0.15, 0.95}) pentes([&](double d) { return bat_v_discharge(p, 1, T25, 1 - d); }, x, -0.0125);
    // Capacity factors: cmax 1.2, c10 0.6, cmin 30 %, t999 50 °C, tmin -50 °C.
    // Current: cmax up to 0.1C; 1.2796 at 0.2C, limited to cmax; 1 - 0.4 log10(0.5) at 0.5C.
    const Valeur courant[] = {{0.1, p.bat_cmax, 0}, {0.0, p.bat_cmax, 0}, {0.2, 1.2, 1e-7},
                              {0.5, 1.1204119983, 1e-7}, {1.0, 1.0, 1e-12}, {10.0, 0.6, 1e-7}};
    for (const Valeur& c : courant) EXPECT_NEAR(bat_cap_current(p, c.soc), c.v, c.tol) << c.soc;
    // k = ln(700)/100: 0.7 (1 - exp(-75 k)) + 0.3 = 0.9948563 at 25 °C
    for (const Valeur& c : {Valeur{-50, 0.3}, Valeur{50, 0.999}, Valeur{25, 0.9948563133}})
        EXPECT_NEAR(bat_cap_temp(p, c.soc), c.v, 1e-7) << c.soc;
}

TEST(BatteryCurves, ChargeValuesJoinsTheFlatTopOfTheCubicAndTheTrappedFailures) {
    Etat e;
    // Hermite cubic from (0.65, 1.41, slope 0.02) to (1.2, 1.59, slope 0):
    // 1.4892487 at 0.9, 1.5368310 at soc 1, 1.59 at x3 = 1.2, and past x3 it
    // comes down: 1.5704147.
    const Valeur cas[] = {{0.0, 1.3}, {0.15, 1.4}, {0.4, 1.405}, {0.65, 1.41},
                          {0.9, 1.48924868}, {1.0, 1.5368309542}, {1.2, 1.59}, {1.3, 1.5704147258}};
    for (const Valeur& c : cas) EXPECT_NEAR(bat_v_charge(e, 1, T25, c.soc), c.v, c.tol) << c.soc;
    const auto courbe = [&](double soc) { return bat_v_charge(e, 1, T25, soc); };
    for (double xj : {0.15, 0.65}) pentes(courbe, xj, 0.02);
    EXPECT_NEAR((courbe(1.2 + 1e-6) - courbe(1.2 - 1e-6)) / 2e-6, 0.0, 1e-4);  // flat at x3
    EXPECT_FALSE(e.alertes.incompat_charge);
    // Failures are trapped and reported.
    Etat f, g;
    // Points 1 and 2 at the same capacity: the straight part has no slope.
    for (int j : {1, 2}) {
        f.pwr.ch_pt[j][0] = 50;
        f.pwr.ch_pt[j][2] = 0;
    }
    EXPECT_EQ(bat_v_charge(f, 1, T25, 0.3), 0.0);
    EXPECT_TRUE(f.alertes.incompat_charge);
    // A zero current (log of 0) is the same failure.
    EXPECT_EQ(bat_v_charge(g, 0, T25, 0.3), 0.0);
    EXPECT_TRUE(g.alertes.incompat_charge);
}

TEST(BatterySolvers, PowerAndVoltageSolversFindTheKnownCrossing) {
    Etat e;
    // In the straight part at soc 0.4 and 25 °C: v(i) = 1.405 + 0.011 log10(i).
    // v = 1.416 at 10C.
    const double i = bat_i_from_v_charge(e, 0.4, 1.416, 5.0, T25);
    EXPECT_NEAR(1.405 + 0.011 * std::log10(i), 1.416, 1.1e-5);
    // A start point that already meets the tolerance comes back unchanged.
    EXPECT_EQ(bat_i_from_v_charge(e, 0.4, 1.416, 10.0, T25), 10.0);
    EXPECT_EQ(bat_i_from_p_discharge(e, 0.0, 1.0, 2.0, T25), 0.0);  // empty battery
    // Curves with no current dependence: v does not move with i, so the power
    // i * v crosses the target at i = target / v exactly.
    for (int j = 0; j < 4; ++j)
        for (int k : {2, 5}) e.pwr.ch_pt[j][k] = e.pwr.de_pt[j][k] = 0;
    // discharge at soc 0.45: v = 1.205 V, target 2.41 W/Ah -> 2C
    EXPECT_NEAR(bat_i_from_p_discharge(e, 0.45, 2.41, 0.5, T25) * 1.205, 2.41, 1e-5);
    // charge at soc 0.4: v = 1.405 V, target 4.215 -> 3C
    EXPECT_NEAR(bat_i_from_p_charge(e, 0.4, 4.215, 0.5, T25) * 1.405, 4.215, 1e-5);
    EXPECT_FALSE(e.faute);
    // v does not depend on i now: 1.5 V is never reached at soc 0.4.
    e.session.j_courant = 18000.5;
    bat_i_from_v_charge(e, 0.4, 1.5, 1.0, T25);
    EXPECT_EQ(e.faute.code, CodeErreur::non_convergence);
    EXPECT_EQ(e.faute.detail, "bat_i_from_v_charge");
    EXPECT_EQ(e.faute.date, 18000.5);
}

}  // namespace
}  // namespace kestrel

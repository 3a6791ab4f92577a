// Battery curves (values and slopes at the joins), capacity factors and the
// secant solvers on curves whose crossing is known.
#include <gtest/gtest.h>

#include <cmath>

#include "core/power/batterie.h"
#include "core/etat.h"

namespace kestrel {
namespace {

// At 25 °C and 1C the curve points are the table's columns 0 and 3:
// discharge x = 0, 0.15, 0.95, 1 and v = 1.3, 1.21, 1.2, 1.0 (x is the depth);
// charge x = 0, 0.15, 0.65, 1.2 and v = 1.3, 1.4, 1.41, 1.59.
constexpr double T25 = 25.0;
constexpr double TOL = 1e-6;  // the table holds single-precision values

TEST(BatteryCurves, PointsFollowTemperatureAndCurrent) {
    PowerRecord p;
    // charge point 1 at 35 °C and 10C: x = (15 + 0.1*10 - 5*1)/100, v = 1.4 - 0.001*10 + 0.01
    const PointCourbe q = point_courbe(p.ch_pt, 1, 10.0, 35.0);
    EXPECT_NEAR(q.x, 0.11, TOL);
    EXPECT_NEAR(q.y, 1.40, TOL);
}

TEST(BatteryCurves, DischargeValuesAndJoins) {
    PowerRecord p;
    EXPECT_NEAR(bat_v_discharge(p, 1, T25, 1.0), 1.3, TOL);    // x = 0: v0
    EXPECT_NEAR(bat_v_discharge(p, 1, T25, 0.85), 1.21, TOL);  // x1
    EXPECT_NEAR(bat_v_discharge(p, 1, T25, 0.45), 1.205, TOL); // line, slope -0.0125
    EXPECT_NEAR(bat_v_discharge(p, 1, T25, 0.05), 1.2, TOL);   // x2
    // parabolas: x = 0.05 -> 1.2504167, x = 0.975 -> 1.1498438
    EXPECT_NEAR(bat_v_discharge(p, 1, T25, 0.95), 1.2504166667, TOL);
    EXPECT_NEAR(bat_v_discharge(p, 1, T25, 0.025), 1.14984375, TOL);
    EXPECT_NEAR(bat_v_discharge(p, 1, T25, 1e-12), 1.0, 1e-5);  // tends to v3
    EXPECT_EQ(bat_v_discharge(p, 1, T25, 0.0), 0.0);
    EXPECT_EQ(bat_v_discharge(p, 1, T25, -0.1), 0.0);
    // Slope -0.0125 on both sides of both joins (v against the depth x = 1 - soc).
    const double h = 1e-6;
    for (double x : {0.15, 0.95}) {
        const double g = (bat_v_discharge(p, 1, T25, 1 - x) - bat_v_discharge(p, 1, T25, 1 - (x - h))) / h;
        const double d = (bat_v_discharge(p, 1, T25, 1 - (x + h)) - bat_v_discharge(p, 1, T25, 1 - x)) / h;
        EXPECT_NEAR(g, -0.0125, 1e-4) << x;
        EXPECT_NEAR(d, -0.0125, 1e-4) << x;
    }
}

TEST(BatteryCurves, ChargeValuesJoinsAndTheFlatTopOfTheCubic) {
    Etat e;
    EXPECT_NEAR(bat_v_charge(e, 1, T25, 0.0), 1.3, TOL);
    EXPECT_NEAR(bat_v_charge(e, 1, T25, 0.15), 1.4, TOL);
    EXPECT_NEAR(bat_v_charge(e, 1, T25, 0.4), 1.405, TOL);
    EXPECT_NEAR(bat_v_charge(e, 1, T25, 0.65), 1.41, TOL);
    // Hermite cubic from (0.65, 1.41, slope 0.02) to (1.2, 1.59, slope 0):
    // 1.5368310 at soc 1, 1.59 at x3 = 1.2, and past x3 it comes down: 1.5704147.
    EXPECT_NEAR(bat_v_charge(e, 1, T25, 1.0), 1.5368309542, TOL);
    EXPECT_NEAR(bat_v_charge(e, 1, T25, 1.2), 1.59, TOL);
    EXPECT_NEAR(bat_v_charge(e, 1, T25, 1.3), 1.5704147258, TOL);
    {
        // Value v2 and slope s at x2, value v3 and slope 0 at x3: with
        // h = x2 - x3, a3 = s/h² - 2 (v2 - v3)/h³, a2 = (v2 - v3)/h² - a3 (x2 + 2 x3);
        // the cubic is summed term by term, a3 x³ + a2 x² + a1 x + a0.
        const double v2 = 1.41f, v3 = 1.59f, x2 = 0.65, x3 = 1.2;
        const double s = (v2 - static_cast<double>(1.4f)) / (x2 - 0.15), h = x2 - x3;
        const double a3 = s / (h * h) - 2 * (v2 - v3) / (h * h * h);
        const double a2 = (v2 - v3) / (h * h) - a3 * (x2 + 2 * x3);
        const double a1 = -3 * x3 * x3 * a3 - 2 * x3 * a2;
        const double a0 = v3 - a3 * x3 * x3 * x3 - a2 * x3 * x3 - a1 * x3;
        const double x = 0.9;
        const double v = a3 * x * x * x + a2 * x * x + a1 * x + a0;  // 1.48924868
        ASSERT_NE(v, ((a3 * x + a2) * x + a1) * x + a0);
        EXPECT_EQ(bat_v_charge(e, 1, T25, x), v);
    }
    const double h = 1e-6;
    for (double x : {0.15, 0.65}) {
        const double g = (bat_v_charge(e, 1, T25, x) - bat_v_charge(e, 1, T25, x - h)) / h;
        const double d = (bat_v_charge(e, 1, T25, x + h) - bat_v_charge(e, 1, T25, x)) / h;
        EXPECT_NEAR(g, 0.02, 1e-4) << x;
        EXPECT_NEAR(d, 0.02, 1e-4) << x;
    }
    const double pente_x3 = (bat_v_charge(e, 1, T25, 1.2 + h) - bat_v_charge(e, 1, T25, 1.2 - h)) / (2 * h);
    EXPECT_NEAR(pente_x3, 0.0, 1e-4);
    EXPECT_FALSE(e.pwr.alerte_charge);
}

TEST(BatteryCurves, ChargeFailureIsTrappedAndReported) {
    Etat e;
    // Points 1 and 2 at the same capacity: the straight part has no slope.
    e.pwr.ch_pt[1][0] = 50;
    e.pwr.ch_pt[2][0] = 50;
    e.pwr.ch_pt[1][2] = 0;
    e.pwr.ch_pt[2][2] = 0;
    EXPECT_EQ(bat_v_charge(e, 1, T25, 0.3), 0.0);
    EXPECT_TRUE(e.pwr.alerte_charge);
    // A zero current (log of 0) is the same failure.
    Etat f;
    EXPECT_EQ(bat_v_charge(f, 0, T25, 0.3), 0.0);
    EXPECT_TRUE(f.pwr.alerte_charge);
}

TEST(BatteryCapacity, CurrentAndTemperatureFactors) {
    PowerRecord p;  // cmax 1.2, c10 0.6, cmin 30 %, t999 50 °C, tmin -50 °C
    EXPECT_EQ(bat_cap_current(p, 0.1), p.bat_cmax);  // not above 0.1
    EXPECT_EQ(bat_cap_current(p, 0.0), p.bat_cmax);
    EXPECT_NEAR(bat_cap_current(p, 0.2), 1.2, 1e-7);  // 1.2796, limited to cmax
    EXPECT_NEAR(bat_cap_current(p, 0.5), 1.1204119983, 1e-7);  // 1 - 0.4 log10(0.5)
    EXPECT_NEAR(bat_cap_current(p, 1.0), 1.0, 1e-12);
    EXPECT_NEAR(bat_cap_current(p, 10.0), 0.6, 1e-7);
    EXPECT_NEAR(bat_cap_temp(p, -50), 0.3, 1e-7);
    EXPECT_NEAR(bat_cap_temp(p, 50), 0.999, 1e-7);
    // k = ln(700)/100: 0.7 (1 - exp(-75 k)) + 0.3 = 0.9948563
    EXPECT_NEAR(bat_cap_temp(p, 25), 0.9948563133, 1e-7);
}

// Curves with no current dependence: v does not move with i, so the power
// i * v crosses the target at i = target / v exactly.
void sans_effet_courant(PowerRecord& p) {
    for (int j = 0; j < 4; ++j) {
        p.ch_pt[j][2] = 0;
        p.ch_pt[j][5] = 0;
        p.de_pt[j][2] = 0;
        p.de_pt[j][5] = 0;
    }
}

TEST(BatterySolvers, PowerSolversFindTheKnownCrossing) {
    Etat e;
    sans_effet_courant(e.pwr);
    // discharge at soc 0.45: v = 1.205 V, target 2.41 W/Ah -> 2C
    const double id = bat_i_from_p_discharge(e, 0.45, 2.41, 0.5, T25);
    EXPECT_NEAR(id * 1.205, 2.41, 1e-5);
    // charge at soc 0.4: v = 1.405 V, target 4.215 -> 3C
    const double ic = bat_i_from_p_charge(e, 0.4, 4.215, 0.5, T25);
    EXPECT_NEAR(ic * 1.405, 4.215, 1e-5);
    EXPECT_FALSE(e.faute);
}

TEST(BatterySolvers, VoltageSolverAndTheFirstPointTest) {
    Etat e;
    // In the straight part at soc 0.4 and 25 °C: v(i) = 1.405 + 0.011 log10(i).
    // v = 1.416 at 10C.
    const double i = bat_i_from_v_charge(e, 0.4, 1.416, 5.0, T25);
    EXPECT_NEAR(1.405 + 0.011 * std::log10(i), 1.416, 1.1e-5);
    // A start point that already meets the tolerance comes back unchanged.
    EXPECT_EQ(bat_i_from_v_charge(e, 0.4, 1.416, 10.0, T25), 10.0);
    EXPECT_EQ(bat_i_from_p_discharge(e, 0.0, 1.0, 2.0, T25), 0.0);  // empty battery
}

TEST(BatterySolvers, NoCrossingEndsInAFaultNamingTheSolver) {
    Etat e;
    sans_effet_courant(e.pwr);
    e.session.j_courant = 18000.5;
    // v does not depend on i here: 1.5 V is never reached at soc 0.4.
    bat_i_from_v_charge(e, 0.4, 1.5, 1.0, T25);
    ASSERT_TRUE(e.faute);
    EXPECT_EQ(e.faute.code, CodeErreur::non_convergence);
    EXPECT_EQ(e.faute.detail, "bat_i_from_v_charge");
    EXPECT_EQ(e.faute.date, 18000.5);
}

}  // namespace
}  // namespace kestrel

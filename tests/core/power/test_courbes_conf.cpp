// Curves of the power settings' charts against the laws worked by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "core/power/courbes_conf.h"
#include "core/etat/power_record.h"

using namespace kestrel;

TEST(CourbesConf, CelluleAuxTemperatures) {
    PowerRecord p;  // AsGa at Tref 28 °C
    const auto c = courbes_cellule(p, false);
    ASSERT_EQ(c.size(), 5u);
    EXPECT_EQ(c[0].nom, "Tréf");
    EXPECT_EQ(c[1].nom, "-22°C");
    EXPECT_EQ(c[4].nom, "78°C");
    ASSERT_EQ(c[0].points.size(), 51u);
    // At V = 0 the current is Isc; at Voc it is 0.
    EXPECT_NEAR(c[0].points[0].y, 0.53, 1e-6);
    EXPECT_NEAR(c[0].points[50].x, 1.0, 1e-6);
    EXPECT_NEAR(c[0].points[50].y, 0.0, 1e-9);
    // At Tref + 50: Isc = 0.53 + 50 * 0.0003 = 0.545, Voc = 1 - 0.1 = 0.9.
    EXPECT_NEAR(c[4].points[0].y, 0.545, 1e-6);
    EXPECT_NEAR(c[4].points[50].x, 0.9, 1e-6);
    // Tref, V = 0.86 (point 43): a = ln(0.53 / 0.03) = 2.871680,
    // Vt = 0.14 / a = 0.0487520, I0 = 0.53 / (exp(1 / Vt) - 1) = 6.6115e-10,
    // I = 0.53 - I0 * (exp(0.86 / Vt) - 1) = 0.53 - 0.03 = 0.5 (the maximum power point).
    EXPECT_NEAR(c[0].points[43].y, 0.5, 1e-6);
    const auto w = courbes_cellule(p, true);
    EXPECT_NEAR(w[0].points[43].y, 0.43, 1e-6);  // 0.86 V * 0.5 A
}

TEST(CourbesConf, BatterieParCourantEtTemperature) {
    PowerRecord p;  // Nickel-Cadmium curves
    const auto dc = courbes_batterie(p, false, true);
    ASSERT_EQ(dc.size(), 4u);
    EXPECT_EQ(dc[0].nom, "0.2C");
    EXPECT_EQ(dc[1].nom, "0.5C");
    ASSERT_EQ(dc[0].points.size(), 100u);
    // Discharge at 1C, 25 °C: l = 0, points 1 and 2 at depth 0.15 and 0.95,
    // 1.21 V and 1.2 V; depth 0.5 is on the line: 1.21 + 0.35 * (-0.01 / 0.8) = 1.205625.
    EXPECT_NEAR(dc[2].points[50].x, 50.0, 1e-12);
    EXPECT_NEAR(dc[2].points[50].y, 1.205625, 1e-6);
    // At 0.2C: l = log10(0.2) = -0.69897; x1 = (15 - 5 l) / 100 = 0.1849485,
    // x2 = (95 - 2 l) / 100 = 0.9639794, v1 = 1.21 - 0.01 l = 1.2169897,
    // v2 = 1.2069897; depth 0.5: v1 + (0.5 - x1) * (v2 - v1) / (x2 - x1) = 1.2129456.
    EXPECT_NEAR(dc[0].points[50].y, 1.2129456, 1e-6);

    const auto ct = courbes_batterie(p, true, false);
    ASSERT_EQ(ct.size(), 5u);
    EXPECT_EQ(ct[0].nom, "-50°C");
    EXPECT_EQ(ct[3].nom, "25°C");
    ASSERT_EQ(ct[3].points.size(), 101u);
    // Charge at 1C, 25 °C: points 1 and 2 at 0.15 and 0.65, 1.4 V and 1.41 V;
    // state 0.4: 1.4 + 0.25 * 0.01 / 0.5 = 1.405.
    EXPECT_NEAR(ct[3].points[40].y, 1.405, 1e-6);
    // At -25 °C (dT = -50): x1 = (15 - 5) / 100 = 0.1, x2 = (65 - 25) / 100 = 0.4,
    // v1 = 1.4 + 0.05 = 1.45, v2 = 1.41 + 0.05 = 1.46; state 0.2: 1.45 + 0.1 * 0.01 / 0.3 = 1.4533333.
    EXPECT_NEAR(ct[1].points[20].y, 1.4533333, 1e-6);
    // State 0: the parabola's v0 = 1.3 whatever the temperature.
    EXPECT_NEAR(ct[0].points[0].y, 1.3, 1e-6);
}

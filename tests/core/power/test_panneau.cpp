// Target of the external panels and their servo.
#include <gtest/gtest.h>

#include "core/power/flux.h"
#include "core/power/panel_drive.h"
#include "core/power/panel_target.h"
#include "outils_power.h"

namespace kestrel {
namespace {

using essai::pose_nadir;
using essai::pose_soleil;

TEST(PanelTarget, ClosedFormInEachLightingCaseAndTheRefinedZeroOfTheSlope) {
    // Rows: eclipse, albedo, Sun azimuth (elevation 30 deg), expected target.
    // Sunlit without albedo it faces the Sun: atan(sin 30 / (cos 30 * cos 0)) =
    // 30 deg. In eclipse with albedo it follows the Earth, k = 0: atan(nad_z /
    // nad_sxy) = -60 deg, the panel looks at nadir; without albedo there is no
    // target. With the Sun on the azimuth 0 side the closed form gives
    // atan(0.5 / (0.866 * cos(-pi))) = -30 deg, whose front faces away: it flips
    // when the rear would see more, subtracting sign(-30 deg) * pi: 150 deg.
    // A negative albedo keeps the previous target.
    const double cas[][4] = {{FAUX, 0, PI, 30 * DEG_RAD}, {VRAI, 300, PI, -60 * DEG_RAD}, {VRAI, 0, PI, PAS_DE_CIBLE},
                             {FAUX, 0, 0, -30 * DEG_RAD + PI}, {FAUX, -1, PI, 0.42}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c[3]);
        Etat e = essai::etat_soleil_zenith(1360.0);
        PowerRecord& p = e.pwr;
        pose_nadir(p, -60 * DEG_RAD, PI);  // the Earth at -60 deg
        p.eclipse = static_cast<int16_t>(c[0]);
        p.flux_alb = c[1];
        p.pan_target = 0.42;
        p.pan_angle = 0.3;
        pose_soleil(p, 30 * DEG_RAD, c[2]);
        panel_target_update(e);
        EXPECT_NEAR(p.pan_target, c[3], 1e-12);
        // With no target the panel stays where it is.
        panel_drive_update(e, 60);
        EXPECT_TRUE(c[3] != PAS_DE_CIBLE || p.pan_angle == 0.3) << p.pan_angle;
    }
    // The refined target falls back on the closed form without albedo...
    Etat e = essai::etat_soleil_zenith(1360.0);
    pose_soleil(e.pwr, 30 * DEG_RAD, PI);
    EXPECT_NEAR(panel_target_refined(e), 30 * DEG_RAD, 1e-12);
    // Earth at -40 deg: near the optimum it stands 59 deg off the panel, on
    // the parabola of the cell law, where the closed form is no longer exact.
    pose_nadir(e.pwr, -40 * DEG_RAD, PI);
    e.pwr.flux_alb = 300;
    const double a = panel_target_refined(e);
    EXPECT_NE(a, e.pwr.pan_target);  // the closed form, stored on the way
    EXPECT_FALSE(e.faute);
    // At the optimum the cell flux is flat: f(a +- h) no higher than f(a).
    for (double h : {1e-3, -1e-3}) EXPECT_LE(cell_flux(e, a + h, PI), cell_flux(e, a, PI) + 1e-6);
    // Between the Earth (-40 deg) and the Sun (30 deg).
    EXPECT_GT(a, -40 * DEG_RAD);
    EXPECT_LT(a, 30 * DEG_RAD);
}

// Servo (a new record: moving panels at angle 0, dead band 0.5 deg): 0 -> 10
// deg, delay 150 s, steps of 60 s, 0.1 deg/s.
TEST(PanelDrive, DelayWholeStepsFixedPanelsTheDeadBandAndTheShortWayRound) {
    Etat e;
    PowerRecord& p = e.pwr;
    p.pan_delay = 150;
    p.pan_speed = 0.1f;
    p.pan_wait = -1;
    p.pan_target = 10 * DEG_RAD;
    // wait 150 -> 90 -> 30 -> -30: n = 0, 0, 0 (clamped), then 30 s at 0.1 deg/s;
    // then n = 60 - (-30) = 90 -> 60 s: +6 deg; then the last degree.
    const double attendu[6] = {0, 0, 0, 3, 9, 10};
    const int attente[6] = {150, 90, 30, -30, -1, -1};
    for (int k = 0; k < 6; ++k) {
        panel_drive_update(e, 60);
        EXPECT_NEAR(p.pan_angle, attendu[k] * DEG_RAD, 1e-6) << "step " << k;
        EXPECT_EQ(p.pan_wait, attente[k]) << "step " << k;
    }
    EXPECT_EQ(p.pan_moving, FAUX);
    EXPECT_EQ(p.pan_angle, p.pan_target);
    // No delay from here on, 1 deg/s. Fixed panels do not move; then a target
    // inside the 0.5 deg band starts nothing.
    p.pan_delay = 0;
    p.pan_speed = 1.0f;
    p.pan_angle = 0;
    p.pan_target = 0.2;
    p.pan_fixed = VRAI;
    panel_drive_update(e, 60);
    EXPECT_EQ(p.pan_angle, 0.0);
    p.pan_fixed = FAUX;
    p.pan_target = 0.3 * DEG_RAD;
    panel_drive_update(e, 60);
    EXPECT_EQ(p.pan_angle, 0.0);
    p.pan_angle = 3.0;
    p.pan_target = -3.0;
    // delta = -6 is beyond pi: sense +1, 60 deg in 60 s (1.047 rad, below the
    // enlarged |delta| 12.28), 3 + 1.047 = 4.047 then minus 2 pi.
    panel_drive_update(e, 60);
    EXPECT_NEAR(p.pan_angle, 3.0 + 60 * DEG_RAD - 2 * PI, 1e-12);
    EXPECT_EQ(p.pan_moving, VRAI);
}

}  // namespace
}  // namespace kestrel

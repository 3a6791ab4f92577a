// Whole runs: a day in each layout on the new-project orbit, the spin angle,
// the reset and the check for non-finite values.
#include <gtest/gtest.h>

#include <cmath>

#include "core/power/environnement.h"
#include "core/power/power.h"
#include "core/shell/parcours.h"
#include "outils_power.h"

namespace kestrel {
namespace {

TEST(SpinAngle, OneCorrectionOnly) {
    Etat e;
    e.pointage.att_lacet = 10;
    e.pointage.vitesse_spin = 1.0;  // turn per minute
    const double j0 = e.session.j_debut;
    EXPECT_NEAR(angle_spin(e, j0 + 1.5 / 1440), 190.0, 1e-6);   // 550 - 360
    EXPECT_NEAR(angle_spin(e, j0 + 2.5 / 1440), 550.0, 1e-6);   // 910 - 360, left outside
    e.pointage.vitesse_spin = 0;
    e.pointage.att_lacet = -10;
    EXPECT_EQ(angle_spin(e, j0 + 1), 350.0);
    e.pointage.att_lacet = 360;
    EXPECT_EQ(angle_spin(e, j0), 0.0);
}

TEST(PowerStateInit, ResetsOnlyWhatItNames) {
    Etat e;
    PowerRecord& p = e.pwr;
    p.gst_charge_init = 80;
    p.pan_angle_init = 30;
    p.node_t[1] = 123.0;
    p.node_t[20] = 456.0;
    p.p_heat = 7.0;
    p.pan_target = 0.5;
    power_state_init(e);
    EXPECT_DOUBLE_EQ(p.bat_soc, 0.8);
    EXPECT_DOUBLE_EQ(p.bat_i, 10 * 1e-6);
    EXPECT_EQ(p.pan_wait, -1);
    EXPECT_EQ(p.pan_moving, FAUX);
    EXPECT_DOUBLE_EQ(p.pan_angle, 30 * DEG_RAD);
    EXPECT_DOUBLE_EQ(p.node_t[0], 25 + 273.15);
    EXPECT_DOUBLE_EQ(p.node_t[8], 25 + 273.15);
    EXPECT_EQ(p.node_t[1], 123.0);   // no temperature in this layout
    EXPECT_EQ(p.node_t[20], 456.0);  // not a node of this layout
    EXPECT_EQ(p.p_heat, 7.0);
    EXPECT_EQ(p.pan_target, 0.5);

    essai::pose_faces(p, 2);
    p.fac_t_init = {10, 20, 30};
    p.int_t_init = 40;
    power_state_init(e);
    EXPECT_DOUBLE_EQ(p.node_t[20], 10 + 273.15);
    EXPECT_DOUBLE_EQ(p.node_t[36], 20 + 273.15);
    EXPECT_DOUBLE_EQ(p.node_t[37], 30 + 273.15);
    EXPECT_DOUBLE_EQ(p.node_t[38], 40 + 273.15);
}

TEST(PowerStep, ConfigurationTests) {
    PowerRecord p;
    EXPECT_EQ(configuration(p), ConfigPower::panneaux_externes);
    p.opt_panel_ext = FAUX;
    p.opt_faces = 2;
    EXPECT_EQ(configuration(p), ConfigPower::cylindre);
    p.opt_panel_ext = 1;  // neither true nor false: the faces
    EXPECT_EQ(configuration(p), ConfigPower::faces);
    p.opt_panel_ext = FAUX;
    p.opt_faces = 1;
    EXPECT_EQ(configuration(p), ConfigPower::faces);
}

struct Bilan {
    long pas = 0, eclipses = 0;
    double soc_min = 2, soc_max = -1, pg_max = 0;
    bool fini = true;
};

// A day at 30 s steps from the new-project period's start.
Bilan journee(Etat& e) {
    Bilan b;
    e.session.pas_sim = 30;
    power_state_init(e);
    e.pwr.t_charge = 0;
    e.pwr.t_discharge = 0;
    parcours_dates(e.session.j_debut, e.session.j_debut + 1, 30, [&](double j) {
        e.session.j_courant = j;
        power_step(e);
        if (!power_etat_fini(e, j) || e.faute) {
            b.fini = false;
            return false;
        }
        ++b.pas;
        if (e.pwr.eclipse == VRAI) ++b.eclipses;
        b.soc_min = std::min(b.soc_min, e.pwr.bat_soc);
        b.soc_max = std::max(b.soc_max, e.pwr.bat_soc);
        b.pg_max = std::max(b.pg_max, e.pwr.gen_power);
        return true;
    });
    return b;
}

// The new-project orbit is circular (7174 km) in the equator near the
// equinox: the Sun lies in the orbit plane and the sharp cone hides it over
// 2 rho of the 2 pi of a turn, rho = asin(6378.137 / 7174) = 1.09554: 0.34864.
TEST(PowerStep, ADayInEachLayoutStaysFiniteWithEclipsesAtTheExpectedFraction) {
    for (int cas = 0; cas < 4; ++cas) {
        Etat e;
        essai::pose_cellules(e.pwr);
        if (cas > 0) essai::pose_faces(e.pwr, cas - 1);
        const Bilan b = journee(e);
        SCOPED_TRACE(cas);
        ASSERT_TRUE(b.fini) << texte_erreur(e.faute);
        EXPECT_EQ(b.pas, 2881);
        EXPECT_NEAR(static_cast<double>(b.eclipses) / b.pas, 0.34864, 0.01);
        EXPECT_GE(b.soc_min, 0.0);
        EXPECT_LE(b.soc_max, 1.0);
        EXPECT_GT(b.pg_max, 10.0);
        if (cas == 1 || cas == 2) {
            EXPECT_EQ(e.pwr.t_bat, 20.0);
        }
    }
}

TEST(PowerStep, NonFiniteValueIsNamed) {
    Etat e;
    EXPECT_TRUE(power_etat_fini(e, 18000.0));
    e.pwr.node_t[12] = std::nan("");
    EXPECT_FALSE(power_etat_fini(e, 18000.25));
    EXPECT_EQ(e.faute.code, CodeErreur::valeur_non_finie);
    EXPECT_EQ(e.faute.detail, "node_t[12]");
    EXPECT_EQ(e.faute.date, 18000.25);
    Etat f;
    f.pwr.bat_soc = INFINITY;
    EXPECT_FALSE(power_etat_fini(f, 1.0));
    EXPECT_EQ(f.faute.detail, "bat_soc");
}

}  // namespace
}  // namespace kestrel

// Whole runs: a day in each layout on the new-project orbit, the spin angle,
// the reset and the check for non-finite values.
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "core/power/environnement.h"
#include "core/power/ligne_power.h"
#include "core/power/power_step.h"
#include "core/power/thermique.h"
#include "core/shell/parcours.h"
#include "outils_power.h"

namespace kestrel {
namespace {

TEST(SpinAngle, OneCorrectionOnly) {
    // att_lacet, turns per minute, minutes after j_debut, expected angle
    const double cas[][4] = {{10, 1.0, 1.5, 190.0},  // 550 - 360
                             {10, 1.0, 2.5, 550.0},  // 910 - 360, left outside
                             {-10, 0, 1440, 350.0}, {360, 0, 0, 0.0}};
    for (const auto& c : cas) {
        Etat e;
        e.pointage.att_lacet = c[0];
        e.pointage.vitesse_spin = c[1];
        EXPECT_NEAR(angle_spin(e, e.session.j_debut + c[2] / 1440), c[3], 1e-6) << c[0] << " " << c[2];
    }
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
    // Node 1 has no temperature in this layout, 20 is not one of its nodes.
    essai::verifie({{"soc", p.bat_soc, 0.8, 1e-15}, {"i", p.bat_i, 10 * 1e-6, 1e-20}, {"wait", p.pan_wait, -1, 0},
                    {"moving", p.pan_moving, FAUX, 0}, {"angle", p.pan_angle, 30 * DEG_RAD, 1e-15},
                    {"heat", p.p_heat, 7.0, 0}, {"target", p.pan_target, 0.5, 0}, {"T0", p.node_t[0], 298.15, 1e-12},
                    {"T8", p.node_t[NOEUDS_PANNEAUX.interne], 298.15, 1e-12}, {"T1", p.node_t[1], 123.0, 0},
                    {"T20", p.node_t[20], 456.0, 0}});
    // fac_t_init = {10, 20, 30} °C on walls, top, bottom; int_t_init 40 °C, on
    // the layout's nodes only: the cylinder's 36 strips then 36, 37, 38; six
    // faces 0..5 then 8, 9, 10, and nodes 6, 7 and from 11 on left alone
    p.fac_t_init = {10, 20, 30};
    p.int_t_init = 40;
    for (auto [faces, murs, haut] : {std::tuple{2, 36, 36}, {1, 6, 8}}) {
        essai::pose_faces(p, faces);
        p.node_t.fill(-1.0);
        power_state_init(e);
        for (int i = 0; i < murs; ++i) EXPECT_NEAR(p.node_t[i], 283.15, 1e-12) << i;
        essai::verifie({{"top", p.node_t[haut], 293.15, 1e-12}, {"bottom", p.node_t[haut + 1], 303.15, 1e-12},
                        {"internal", p.node_t[haut + 2], 313.15, 1e-12}});
    }
    for (int i : {6, 7, 11, 38}) EXPECT_EQ(p.node_t[i], -1.0) << i;
}

TEST(PowerStep, ConfigurationTests) {
    const auto config = [](int16_t externes, int16_t faces) {
        PowerRecord p;
        p.opt_panel_ext = externes;
        p.opt_faces = faces;
        return configuration(p);
    };
    EXPECT_EQ(configuration(PowerRecord{}), ConfigPower::panneaux_externes);
    EXPECT_EQ(config(FAUX, 2), ConfigPower::cylindre);
    EXPECT_EQ(config(1, 2), ConfigPower::faces);  // neither true nor false: the faces
    EXPECT_EQ(config(FAUX, 1), ConfigPower::faces);
}

// The new-project orbit is circular (7174 km) in the equator near the
// equinox: the Sun lies in the orbit plane and the sharp cone hides it over
// 2 rho of the 2 pi of a turn, rho = asin(6378.137 / 7174) = 1.09554: 0.34864.
// One day at 30 s steps from the period's start in each layout.
TEST(PowerStep, ADayInEachLayoutStaysFiniteWithEclipsesAtTheExpectedFraction) {
    for (int cas = 0; cas < 4; ++cas) {
        SCOPED_TRACE(cas);
        Etat e;
        essai::pose_cellules(e.pwr);
        if (cas > 0) essai::pose_faces(e.pwr, cas - 1);
        e.session.pas_sim = 30;
        power_state_init(e);
        long pas = 0, eclipses = 0;
        bool soc_borne = true;
        double pg_max = 0;
        parcours_dates(e.session.j_debut, e.session.j_debut + 1, 30, [&](double j) {
            e.session.j_courant = j;
            power_step(e);
            LignePower ligne;
            if (e.faute || !ligne_power_finie(e, j, ligne)) return false;
            ++pas;
            eclipses += e.pwr.eclipse == VRAI;
            soc_borne = soc_borne && e.pwr.bat_soc >= 0 && e.pwr.bat_soc <= 1;
            pg_max = std::max(pg_max, e.pwr.gen_power);
            return true;
        });
        ASSERT_FALSE(e.faute) << texte_erreur(e.faute);
        EXPECT_EQ(pas, 2881);
        EXPECT_NEAR(static_cast<double>(eclipses) / pas, 0.34864, 0.01);
        EXPECT_TRUE(soc_borne);
        EXPECT_GT(pg_max, 10.0);
        // Only the prisms leave the battery at its fixed 20 °C.
        EXPECT_EQ(e.pwr.t_bat == 20.0, cas == 1 || cas == 2) << e.pwr.t_bat;
    }
}

TEST(PowerStep, NonFiniteValueIsNamed) {
    // the row's columns: date, 21 scalars, then node_t_0..38 from column 22,
    // pan_power_0..35 from 61, cell_eff_0..35 from 97
    const struct {
        const char* nom;
        std::size_t colonne;
        void (*casse)(PowerRecord&);
    } cas[] = {
        {"bat_soc", 8, [](PowerRecord& p) { p.bat_soc = INFINITY; }},
        {"node_t_12", 22 + 12, [](PowerRecord& p) { p.node_t[12] = std::nan(""); }},
        {"pan_power_35", 61 + 35, [](PowerRecord& p) { p.pan_power[35] = -INFINITY; }},
        {"cell_eff_0", 97, [](PowerRecord& p) { p.cell_eff[0] = NAN; }},
        {"t_discharge", 21, nullptr},
    };
    for (const auto& c : cas) {
        EXPECT_EQ(nom_colonne_power(c.colonne), c.nom);
        if (!c.casse) continue;
        Etat e;
        LignePower v;
        EXPECT_TRUE(ligne_power_finie(e, 18000.0, v));
        EXPECT_EQ(v[0], 18000.0);
        c.casse(e.pwr);
        EXPECT_FALSE(ligne_power_finie(e, 18000.25, v));
        EXPECT_EQ(std::tuple(e.faute.code, e.faute.detail, e.faute.date),
                  std::tuple(CodeErreur::valeur_non_finie, std::string(c.nom), 18000.25));
    }
}

}  // namespace
}  // namespace kestrel

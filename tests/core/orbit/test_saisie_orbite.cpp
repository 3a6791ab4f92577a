// The orbit window's arithmetic without the window: the axis and mean motion
// linked both ways, apogee, perigee and period, the boxes' silent ranges and
// the inertial pointing shown in the x, z, y order.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/attitude/attitude_init.h"
#include "core/etat/etat.h"
#include "core/orbit/elements_orbite.h"
#include "core/project/saisie_orbite.h"

using namespace kestrel;

TEST(ElementsOrbite, AxeEtMoyenMouvementDansLesDeuxSens) {
    // 15 rev/day: n = 2 pi 15 / 86400 = 1.0908e-3 rad/s, a = cbrt(mu / n^2) = 6945.04 km.
    const double n = 2.0 * M_PI * 15.0 / 86400.0;
    EXPECT_NEAR(demi_depuis_moy_mvt(15.0), std::cbrt(398601.3 / (n * n)), 1e-6);
    EXPECT_NEAR(demi_depuis_moy_mvt(15.0), 6945.04, 0.01);
    EXPECT_NEAR(moy_mvt_depuis_demi(6945.038329945795), 15.0, 1e-9);
    // 42164 km, the geostationary radius: one turn a sidereal day, 1.0027 rev/day.
    EXPECT_NEAR(moy_mvt_depuis_demi(42164.0), 86400.0 / 86164.1, 1e-4);
}

TEST(ElementsOrbite, ApogeePerigeeEtPeriode) {
    Orbite o;  // a = 7174 km
    // circular: both (7174 - 6378.137) = 795.863 km
    EXPECT_NEAR(altitude_apogee(o), 795.863, 1e-9);
    EXPECT_EQ(altitude_apogee(o), altitude_perigee(o));
    o.orb_excentricite = 0.1;  // 1.1 * 7174 = 7891.4, 0.9 * 7174 = 6456.6
    EXPECT_NEAR(altitude_apogee(o), 1513.263, 1e-9);
    EXPECT_NEAR(altitude_perigee(o), 78.463, 1e-9);

    // 1/15 day = 96 min; 1/0.5 = 2 days; 1/0.4 = 2.5 days; 1/0.1 = 10 days.
    const struct { double n; const char* texte; } cas[] = {
        {15.0, "01:36:00"}, {0.5, "2 j 00:00:00"}, {0.4, "2 j 12:00:00"}, {0.1, "10 j 00:00:00"}, {1.0, "1 j 00:00:00"}};
    for (const auto& c : cas) {
        o.orb_moy_mvt = c.n;
        EXPECT_EQ(texte_periode(o), c.texte) << c.n;
    }
}

TEST(SaisieOrbite, BornesSilencieusesEtChampsLies) {
    // box, entry, field value after it
    const struct { std::size_t i; double x; double attendu; } cas[] = {
        {ascension, 400, 360},      {ascension, -5, 0},        {inclinaison, -200, -180},
        {excentricite, 1.5, 1},     {argument, 123.25, 123.25}, {anomalie, 361, 360},
        {jour, 400, 366},           {an, 2005.7, 2005},        {an, -3, 0},
        {an, 12345, 9999},          {moy_mvt, 30, 18},         {demi, 1000, 3200}};
    for (const auto& c : cas) {
        Orbite o;
        saisit_orbite(o, c.i, c.x);
        EXPECT_EQ(valeur_orbite(o, c.i), c.attendu) << cases_orbite[c.i].nom << " " << c.x;
    }

    // Each of the two linked boxes sets the other; the other fields stay.
    Orbite o;
    saisit_orbite(o, moy_mvt, 15.0);
    EXPECT_NEAR(o.orb_demi, 6945.04, 0.01);
    const double axe = o.orb_demi;
    saisit_orbite(o, demi, 7174.0);
    EXPECT_NEAR(o.orb_moy_mvt, 14.287, 0.001);  // (6945.04 / 7174)^1.5 * 15 = 0.95249 * 15
    saisit_orbite(o, demi, axe);
    EXPECT_NEAR(o.orb_moy_mvt, 15.0, 1e-9);
    EXPECT_EQ(o.orb_an, 2001);
    EXPECT_EQ(o.orb_jour, 80.55001);
}

TEST(SaisiePointage, AnglesOrbitauxInertielsEtSpin) {
    Etat e;
    const struct { std::size_t i; double x; double attendu; } cas[] = {
        {attx, 200, 180}, {atty, -95, -90}, {attz, -10, 0}, {attz, 45.5, 45.5}, {vspin, 150, 100}};
    for (const auto& c : cas) {
        saisit_pointage(e, c.i, c.x);
        EXPECT_NEAR(valeur_pointage(e, c.i), c.attendu, 1e-9) << cases_pointage[c.i].nom;
    }
    EXPECT_EQ(e.pointage.att_roulis, 180.0);
    EXPECT_EQ(e.pointage.vitesse_spin, 100.0);
    saisit_pointage(e, inerx, -400);
    EXPECT_NEAR(valeur_pointage(e, inerx), -360.0, 1e-9);
    EXPECT_NE(e.pointage.att_roulis, 180.0);  // the orbital angles follow an inertial entry

    // Default orbit (i = om = e = w = 0), epoch anomaly 0: u = 0, so the
    // inertial-to-orbital turn is the axis cycle T (rows (0 1 0), (0 0 1),
    // (1 0 0)). A yaw g alone gives R = R3(g) T: R(0,1) = cos g, R(0,2) =
    // sin g, R(1,2) = cos g, R(0,0) = R(2,2) = 0, hence b1 = -g and
    // b0 = b2 = 90 deg (atan2 with a zero x). Shown x = b0, y = b2, z = b1.
    Etat f;
    saisit_pointage(f, inerx, 0.0);
    saisit_pointage(f, inerz, 30.0);
    EXPECT_NEAR(f.pointage.att_inertiel[2], 30.0 * M_PI / 180.0, 1e-12);
    EXPECT_NEAR(f.pointage.att_roulis, 90.0, 1e-6);
    EXPECT_NEAR(f.pointage.att_tangage, 90.0, 1e-6);
    EXPECT_NEAR(f.pointage.att_lacet, -30.0, 1e-6);
}

TEST(SaisiePointage, PointageSoleilEchoueSansRienChanger) {
    // The direction beside the Sun vector is never filled: the call fails,
    // the angles and yd stay, and no fault is left for the next run.
    Etat e;
    e.pointage.att_roulis = 12.0;
    e.att.yd = {1, 2, 3, 4, 5, 6};
    EXPECT_EQ(saisit_pointage_soleil(e).code, CodeErreur::faute_calcul);
    EXPECT_EQ(e.pointage.att_roulis, 12.0);
    EXPECT_EQ(e.att.yd, (Vec6{1, 2, 3, 4, 5, 6}));
    EXPECT_FALSE(e.faute);
}

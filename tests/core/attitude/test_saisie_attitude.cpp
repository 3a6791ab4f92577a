// Entries of the attitude settings boxes, the external mass and the three
// check boxes, with the expected figures worked by hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/attitude/saisie_attitude.h"

using namespace kestrel;

namespace {

void saisit(AttitudeRecord& a, const char* nom, double v) {
    const std::size_t i = case_attitude(nom);
    ASSERT_LT(i, nb_cases_attitude) << nom;
    saisit_attitude(a, i, v);
}

std::string texte(const AttitudeRecord& a, const char* nom) { return texte_case(a, case_attitude(nom)); }

}  // namespace

TEST(SaisieAttitude, LeCentreDeMasseResteDansLeCorps) {
    // Body 0.45 m: cm within ±0.225. A new dimension of 100 is held to 90,
    // which lets cm reach ±45; going back to 0.45 brings cm back to 0.225.
    AttitudeRecord a;
    saisit(a, "cmx", 5);
    EXPECT_EQ(a.cm[0], 0.225);
    saisit(a, "cmy", -5);
    EXPECT_EQ(a.cm[1], -0.225);
    saisit(a, "dimens1", 100);
    EXPECT_EQ(a.dim[0], 90.0);
    EXPECT_EQ(a.cm[0], 0.225);  // inside the new limits: kept
    saisit(a, "cmx", 50);
    EXPECT_EQ(a.cm[0], 45.0);
    // Face table: +x at -cm + dim/2 = -45 + 45 = 0, -x at -45 - 45 = -90.
    EXPECT_EQ(a.face_c[0][0], 0.0);
    EXPECT_EQ(a.face_c[3][0], -90.0);
    saisit(a, "dimens1", 0.45);
    EXPECT_EQ(a.cm[0], 0.225);
    // -cm + dim/2 = -0.225 + 0.225 on +x; the y faces see cm y = -0.225.
    EXPECT_EQ(a.face_c[0][0], 0.0);
    EXPECT_EQ(a.face_c[1][1], 0.45);
}

TEST(SaisieAttitude, VitesseDesRouesEnDegres) {
    // 90 deg/s stored as 90 × 3.14159265358979 / 180 = 1.570796326794895 rad/s,
    // shown back as 90.
    AttitudeRecord a;
    saisit(a, "txt_OM2", 90);
    EXPECT_DOUBLE_EQ(a.OM_init[1], 1.570796326794895);
    EXPECT_EQ(texte(a, "txt_OM2"), "90");
    saisit(a, "txt_OM3", -45);
    EXPECT_DOUBLE_EQ(a.OM_init[2], -0.7853981633974475);
}

TEST(SaisieAttitude, ProduitDInertieSymetriqueEtTotauxSuivis) {
    AttitudeRecord a;
    saisit(a, "I_xz", 0.3);
    EXPECT_EQ(a.I_corps(0, 2), 0.3);
    EXPECT_EQ(a.I_corps(2, 0), 0.3);
    EXPECT_EQ(a.I(2, 0), 0.3);  // bilan_masses followed: cm 0, the product as entered
    saisit(a, "I_yz", -0.2);
    EXPECT_EQ(a.I_corps(1, 2), -0.2);
    EXPECT_EQ(a.I_corps(2, 1), -0.2);
    // Negative mass accepted down to -100; the total follows.
    saisit(a, "Masse", -150);
    EXPECT_EQ(a.Masse, -100.0);
    EXPECT_EQ(a.Mt, -100.0);
    // A coefficient has no follow-up and keeps its own range [0, 10].
    a.Mt = 7;
    saisit(a, "cdz_neg", 12);
    EXPECT_EQ(a.cd[5], 10.0);
    EXPECT_EQ(a.Mt, 7.0);
}

TEST(SaisieAttitude, TexteDesCases) {
    AttitudeRecord a;
    a.dip_res = {-0.0, 0.225, 1.7320508075688772};
    EXPECT_EQ(texte(a, "dip_x"), "0");  // no "-0"
    EXPECT_EQ(texte(a, "dip_y"), "0.225");
    EXPECT_EQ(texte(a, "dip_z"), "1.73205080756888");  // 15 significant digits
    EXPECT_EQ(case_attitude("inconnue"), nb_cases_attitude);
}

TEST(MasseExterne, UnSeulAxeALaFois) {
    // 2 kg at 3 m on -Y: Mt = 50 + 2; I(0,0) = 2.188 + 2·3²·2 = 38.188 (the
    // other axes are the mass balance test's).
    AttitudeRecord a;
    a.mext = {1, 0, 0};
    a.dext = {4, 0, 0};
    place_masse_externe(a, 3, {2, 3});
    EXPECT_EQ(a.mext, (Vec3{0, 2, 0}));
    EXPECT_EQ(a.dext, (Vec3{0, -3, 0}));
    EXPECT_DOUBLE_EQ(a.Mt, 52.0);
    EXPECT_DOUBLE_EQ(a.I(0, 0), 38.188);

    // Moved to +Z: the mass and the distance go along, y is cleared.
    place_masse_externe(a, 4, masse_externe(a, 3));
    EXPECT_EQ(a.mext, (Vec3{0, 0, 2}));
    EXPECT_EQ(a.dext, (Vec3{0, 0, 3}));
    EXPECT_EQ(masses_externes_visibles(a), (std::array<bool, 6>{false, false, false, false, true, false}));

    // The boxes' entries are held to [0, 100] kg and [0, 500] m.
    saisit_masse_externe(a, 4, 150);
    saisit_distance_externe(a, 4, -5);
    EXPECT_EQ(a.mext[2], 100.0);
    EXPECT_EQ(a.dext[2], 0.0);
    saisit_distance_externe(a, 5, 600);
    EXPECT_EQ(a.dext, (Vec3{0, 0, -500}));
}

TEST(MasseExterne, PositionLueDansLEnregistrement) {
    struct Cas {
        Vec3 mext, dext;
        int position;
    };
    const Cas cas[] = {
        {{0, 0, 0}, {0, 0, 0}, 0},   // none: +X
        {{0, 0, 1}, {0, 0, -1}, 5},  // -Z
        {{0, 4, 0}, {0, 0, 0}, 2},   // a mass at no distance: the + side
        {{0, 0, 0}, {0, -2, 0}, 3},  // a distance alone still tells the axis
    };
    for (const Cas& c : cas) {
        AttitudeRecord a;
        a.mext = c.mext;
        a.dext = c.dext;
        EXPECT_EQ(position_masse_externe(a), c.position);
    }
    EXPECT_EQ(position_du_texte("-Y"), 3);
    EXPECT_EQ(position_du_texte("+Z"), 4);
    EXPECT_EQ(position_du_texte("Y"), -1);
}

TEST(Coches, PresenceEtEffacement) {
    AttitudeRecord a;  // defaults: residual dipole √3 on each axis, no wheel, no damper
    EXPECT_TRUE(dipole_residuel_present(a));
    EXPECT_FALSE(roues_presentes(a));
    EXPECT_FALSE(amortisseurs_presents(a));

    a.dip_act = {1, 2, 3};
    retire_dipole_residuel(a);
    EXPECT_EQ(a.dip_res, (Vec3{}));
    EXPECT_EQ(a.dip_act, (Vec3{1, 2, 3}));  // an actuator, not the residual dipole

    a.OM_init = {0, 0, 0.1};  // a speed alone counts as a wheel
    EXPECT_TRUE(roues_presentes(a));
    a.JR = {0.5, 0, 0};
    retire_roues(a);
    EXPECT_FALSE(roues_presentes(a));

    // A damper of 1 kg at 0.5 m on x: Mt = 50 + 2·1; I(1,1) = 2.347 + 2·0.5²·1.
    a.k = {0, 3, 0};
    EXPECT_TRUE(amortisseurs_presents(a));
    a.md = {1, 0, 0};
    a.ld = {0.5, 0, 0};
    a.c = {0, 0, 2};
    saisit(a, "txt_md1", 1);
    EXPECT_DOUBLE_EQ(a.Mt, 52.0);
    EXPECT_DOUBLE_EQ(a.I(1, 1), 2.847);
    retire_amortisseurs(a);
    EXPECT_FALSE(amortisseurs_presents(a));
    EXPECT_DOUBLE_EQ(a.Mt, 50.0);
    EXPECT_DOUBLE_EQ(a.I(1, 1), 2.347);
}

// Start of a run, the face list and the Sun pointing button.
#include <gtest/gtest.h>

#include <cmath>

#include "core/attitude/attitude_init.h"
#include "core/attitude/pointage_soleil.h"
#include "core/etat.h"

namespace kestrel {
namespace {

TEST(AttitudeInit, ZerosPartout) {
    Etat e;
    e.att.omd[2] = 5.0;  // never written by the initialisation
    e.att.z = {1, 2, 3};
    e.att.dip_tot = {};
    e.att.dip_cmd = {1, 1, 1};
    attitude_init(e);
    const Vec6 zero6{};
    const Vec3 zero3{};
    EXPECT_EQ(e.att.omega, zero6);
    EXPECT_EQ(e.att.yi, zero6);
    EXPECT_EQ(e.att.yd, zero6);
    EXPECT_EQ(e.att.om, zero3);
    EXPECT_EQ(e.att.z, zero3);
    EXPECT_EQ(e.att.zd, zero3);
    EXPECT_EQ(e.att.zdd, zero3);
    EXPECT_EQ(e.att.dip_cmd, (std::array<int16_t, 3>{}));
    EXPECT_EQ(e.att.dip_tot, e.att.dip_res);
    EXPECT_EQ(e.att.omd[2], 5.0);
    EXPECT_EQ(e.att.etat_att, 3);
}

TEST(AttitudeInit, TauxDeYdDansLOrdreRoulisTangageLacet) {
    // yd stores the pitch at 2; the Euler sequence sees (0, 0.5, 0):
    // rate 0 = wx + wz tan 0.5, rate 1 = wy, rate 2 = wz / cos 0.5
    Etat e;
    e.att.omega_init = {0.1, 0.2, 0.3, 0, 0, 0};
    e.att.yd_init = {0, 0, 0.5, 0, 0, 0};
    e.att.yi_init = {0, 0.5, 0, 0, 0, 0};
    attitude_init(e);
    EXPECT_NEAR(e.att.yd[3], 0.1 + 0.3 * 0.5463024898437905, 1e-15);
    EXPECT_NEAR(e.att.yd[4], 0.2, 1e-15);
    EXPECT_NEAR(e.att.yd[5], 0.3 / 0.8775825618903728, 1e-15);
    EXPECT_DOUBLE_EQ(e.att.yd[2], 0.5);  // angles stay where they were
    // yi has no reordering: the same figures
    EXPECT_NEAR(e.att.yi[3], 0.1 + 0.3 * 0.5463024898437905, 1e-15);
    EXPECT_NEAR(e.att.yi[5], 0.3 / 0.8775825618903728, 1e-15);
}

TEST(AttitudeInit, RouesEtDoubleEcritureDeOmd) {
    Etat e;
    e.att.omega_init = {0.1, 0.2, 0.3, 4, 5, 6};
    e.att.OM_init = {10, 20, 30};
    attitude_init(e);
    EXPECT_EQ(e.att.OM, e.att.OM_init);
    EXPECT_DOUBLE_EQ(e.att.om[0], 9.9);
    EXPECT_DOUBLE_EQ(e.att.om[1], 19.8);
    EXPECT_DOUBLE_EQ(e.att.om[2], 29.7);
    EXPECT_EQ(e.att.omd[0], -4.0);
    EXPECT_EQ(e.att.omd[1], -6.0);  // -omega(5) over -omega(4)
    EXPECT_EQ(e.att.omd[2], 0.0);
}

TEST(DecodePointage, TextesDeLaListe) {
    int16_t m = 0;
    decode_pointage("+X", m);
    EXPECT_EQ(m, 1);
    decode_pointage("+Y", m);
    EXPECT_EQ(m, 2);
    decode_pointage("+Z", m);
    EXPECT_EQ(m, 3);
    decode_pointage("-X", m);
    EXPECT_EQ(m, 4);
    decode_pointage("-Z", m);
    EXPECT_EQ(m, 5);  // never 6
    m = 3;
    decode_pointage("-Y", m);  // matches nothing: the last value stays
    EXPECT_EQ(m, 3);
}

TEST(QuatRefresh, AnglesNulsQuaternionUnite) {
    Etat e;
    e.att.yd = {};
    quat_refresh(e);
    EXPECT_EQ(e.att.quat, (std::array<double, 4>{1, 0, 0, 0}));
    // 180 read as degrees about roll: cos 90 = 0, sin 90 = 1
    e.att.yd = {180, 0, 0, 0, 0, 0};
    quat_refresh(e);
    EXPECT_NEAR(e.att.quat[0], 0, 1e-14);
    EXPECT_NEAR(e.att.quat[1], 1, 1e-14);
}

TEST(PointageSoleil, FauteDeCalculRenvoyeeSansPlantage) {
    Etat e;
    e.att.yd = {1, 2, 3, 4, 5, 6};
    const double j = epoque_orbite(e.orbite);
    Erreur err = pointage_soleil(e, j);
    EXPECT_EQ(err.code, CodeErreur::faute_calcul);
    EXPECT_EQ(err.detail, "pointage_soleil");
    EXPECT_EQ(err.date, j);
    EXPECT_EQ(e.att.yd, Vec6{});
    EXPECT_GT(std::fabs(e.orb.soleil_pos[0]) + std::fabs(e.orb.soleil_pos[1]), 1e8);  // Sun placed
}

}  // namespace
}  // namespace kestrel

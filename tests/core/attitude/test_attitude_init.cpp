// Start of a run, the face list and the Sun pointing button.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "core/attitude/attitude_init.h"
#include "core/attitude/pointage_soleil.h"
#include "core/etat/etat.h"

namespace kestrel {
namespace {

using testing::DoubleEq;
using testing::DoubleNear;
using testing::Pointwise;

TEST(AttitudeInit, ZerosPartout) {
    Etat e;
    e.att.omd[2] = 5.0;  // never written by the initialisation
    e.att.z = {1, 2, 3};
    e.att.dip_tot = {};
    e.att.dip_cmd = {1, 1, 1};
    attitude_init(e);
    for (const Vec6* v : {&e.att.omega, &e.att.yi, &e.att.yd}) EXPECT_EQ(*v, Vec6{});
    for (const Vec3* v : {&e.att.om, &e.att.z, &e.att.zd, &e.att.zdd}) EXPECT_EQ(*v, Vec3{});
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
    // yi has no reordering: the same figures
    const Vec3 taux{0.1 + 0.3 * 0.5463024898437905, 0.2, 0.3 / 0.8775825618903728};
    for (const Vec6* y : {&e.att.yd, &e.att.yi})
        EXPECT_THAT((Vec3{(*y)[3], (*y)[4], (*y)[5]}), Pointwise(DoubleNear(1e-15), taux));
    EXPECT_DOUBLE_EQ(e.att.yd[2], 0.5);  // angles stay where they were
}

TEST(AttitudeInit, RouesEtDoubleEcritureDeOmd) {
    Etat e;
    e.att.omega_init = {0.1, 0.2, 0.3, 4, 5, 6};
    e.att.OM_init = {10, 20, 30};
    attitude_init(e);
    EXPECT_EQ(e.att.OM, e.att.OM_init);
    EXPECT_THAT(e.att.om, Pointwise(DoubleEq(), Vec3{9.9, 19.8, 29.7}));
    EXPECT_EQ(e.att.omd, (Vec3{-4.0, -6.0, 0.0}));  // omd(1): -omega(5) over -omega(4)
}

TEST(DecodePointage, TextesDeLaListe) {
    int16_t m = 0;
    // -Z is 5, never 6
    for (auto [t, n] : {std::pair{"+X", 1}, {"+Y", 2}, {"+Z", 3}, {"-X", 4}, {"-Z", 5}}) {
        decode_pointage(t, m);
        EXPECT_EQ(m, n) << t;
    }
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

// Totals of mass and inertia, and the face centres, worked by hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/attitude/bilan_masses.h"

using namespace kestrel;
using testing::DoubleEq;
using testing::Pointwise;

namespace {
Vec3 diagonale(const AttitudeRecord& a) { return {a.I(0, 0), a.I(1, 1), a.I(2, 2)}; }
}  // namespace

TEST(BilanMasses, SansAjoutLesTotauxSontLeCorps) {
    AttitudeRecord a;
    a.Masse = 50;
    a.I_corps(0, 1) = 0.3;
    a.Mt = 0;
    a.I = Mat3{};
    bilan_masses(a);
    EXPECT_EQ(a.Mt, 50.0);
    EXPECT_EQ(diagonale(a), (Vec3{2.188, 2.347, 2.541}));
    EXPECT_EQ(a.I(0, 1), 0.3);
    EXPECT_EQ(a.I(1, 0), 0.3);  // the product entered once, copied to its symmetric place
    EXPECT_EQ(a.I(0, 2), 0.0);
    EXPECT_EQ(a.I(2, 1), 0.0);
}

TEST(BilanMasses, MassesExternesEtAmortisseurs) {
    // 1 kg at 2 m on +x: Mt + 1, and 2·2²·1 = 8 on I(1,1) and I(2,2).
    AttitudeRecord a;
    a.mext = {1, 0, 0};
    a.dext = {2, 0, 0};
    bilan_masses(a);
    EXPECT_DOUBLE_EQ(a.Mt, 51.0);
    EXPECT_THAT(diagonale(a), Pointwise(DoubleEq(), Vec3{2.188, 2.347 + 8, 2.541 + 8}));
    // A damper of 0.5 kg at 0.1 m on z: Mt + 2·0.5, and 2·0.1²·0.5 = 0.01
    // on the two other axes.
    AttitudeRecord b;
    b.md = {0, 0, 0.5};
    b.ld = {0, 0, 0.1};
    bilan_masses(b);
    EXPECT_DOUBLE_EQ(b.Mt, 51.0);
    EXPECT_THAT(diagonale(b), Pointwise(DoubleEq(), Vec3{2.188 + 0.01, 2.347 + 0.01, 2.541}));
}

TEST(BilanMasses, CentreDeMasseDecale) {
    // cm (0.1, 0.2, 0), 1 kg on y at no distance: A = 2·1 + 50 = 52.
    // I(0,0) = 52·0.04 + 2.188 = 4.268; I(1,1) = 52·0.01 + 2.347 = 2.867;
    // I(2,2) = 52·0.05 + 2.541 = 5.141; I(0,1) = 0.02·50 + 2·1·0.02 = 1.04.
    AttitudeRecord a;
    a.cm = {0.1, 0.2, 0};
    a.mext = {0, 1, 0};
    bilan_masses(a);
    EXPECT_DOUBLE_EQ(a.Mt, 51.0);
    EXPECT_THAT(diagonale(a), Pointwise(DoubleEq(), Vec3{4.268, 2.867, 5.141}));
    EXPECT_DOUBLE_EQ(a.I(0, 1), 1.04);
    EXPECT_DOUBLE_EQ(a.I(1, 0), 1.04);
    EXPECT_EQ(a.I(0, 2), 0.0);
    EXPECT_EQ(a.cm_total, a.cm);
    EXPECT_DOUBLE_EQ(a.face_c[0][0], 0.225 - 0.1);  // faces follow
}

TEST(BilanMasses, CentresDesFaces) {
    AttitudeRecord a;
    a.dim = {1, 2, 3};
    a.cm = {0.1, 0, 0};
    faces_recalcul(a);
    const std::array<Vec3, 6> attendu{{{0.4, 0, 0}, {-0.1, 1, 0}, {-0.1, 0, 1.5},
                                       {-0.6, 0, 0}, {-0.1, -1, 0}, {-0.1, 0, -1.5}}};
    for (int k = 0; k < 6; ++k) EXPECT_THAT(a.face_c[k], Pointwise(DoubleEq(), attendu[k])) << "face " << k;
    // Widening x by 0.4 moves the two x faces by 0.2 each.
    a.dim[0] = 1.4;
    faces_recalcul(a);
    EXPECT_DOUBLE_EQ(a.face_c[0][0], 0.6);
    EXPECT_DOUBLE_EQ(a.face_c[3][0], -0.8);
}

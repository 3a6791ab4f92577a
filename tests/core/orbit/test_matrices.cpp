// Vectors, matrices in their memory order, the frame turns (with the yaw used
// twice on the way into the body frame), Euler helpers and the linear solver.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/etat/etat.h"
#include "core/math/lineaire.h"
#include "core/orbit/matrices.h"

using namespace kestrel;

// The run-state forms of the turns, picked out of their overloads.
void (*const vers_corps_etat)(const Etat&, const Vec3&, Vec3&) = inertiel_vers_corps;
void (*const depuis_corps_etat)(const Etat&, const Vec3&, Vec3&) = corps_vers_inertiel;
void (*const vers_orbital_u_etat)(const Etat&, Vec3&) = vers_orbital_u;
using testing::DoubleNear, testing::Each, testing::Pointwise;

constexpr double PRECIS = 1e-12;

static void attend_vec(const Vec3& v, const Vec3& w, double tol = PRECIS) {
    for (int k = 0; k < 3; ++k) EXPECT_NEAR(v[k], w[k], tol) << "component " << k;
}
// f(a..., r) with its output r returned.
template <class F, class... A>
static Vec3 res(F f, const A&... a) { Vec3 r; f(a..., r); return r; }
// A x = b with n = size of b, x starting at x0; the return code checked against `code`.
static std::vector<double> resout(const std::vector<double>& A, const std::vector<double>& b, int code, double x0 = 0.0) {
    std::vector<double> x(b.size(), x0);
    EXPECT_EQ(resout_lineaire(static_cast<int>(b.size()), A.data(), b.data(), x.data()), code);
    return x;
}

TEST(Matrices, ProduitDansLOrdreMemoire) {
    // m[i + 3 j]: A = [[1,4,7],[2,5,8],[3,6,9]]; A^2 by hand:
    // row 0: 1+8+21, 4+20+42, 7+32+63 = 30, 66, 102
    // row 1: 2+10+24, 8+25+48, 14+40+72 = 36, 81, 126
    // row 2: 3+12+27, 12+30+54, 21+48+81 = 42, 96, 150
    Mat3 A, C;
    for (int k = 0; k < 9; ++k) A.m[k] = k + 1;
    C.m.fill(99.0);  // cleared before summing
    mat_produit(A, A, C);
    const std::array<double, 9> attendu{30, 36, 42, 66, 81, 96, 102, 126, 150};
    EXPECT_EQ(C.m, attendu);
    // M v with the same A, v = (1, 0, -1): (1 - 7, 2 - 8, 3 - 9)
    Vec3 r;
    mat_vecteur(A, Vec3{1, 0, -1}, r);
    attend_vec(r, {-6, -6, -6}, 0.0);
    mat_produit(A, A, A);  // result over an input
    EXPECT_EQ(A.m, attendu);
    attend_vec(res(vec_vectoriel, Vec3{1, 2, 3}, Vec3{4, 5, 6}), {-3, 6, -3}, 0.0);  // (2*6-3*5, 3*4-1*6, 1*5-2*4)
    EXPECT_EQ(vec_norme(Vec3{2, 3, 6}), 7.0);
}

TEST(Reperes, CorpsPlanEtLocal) {
    const Vec3 v{1, 2, 3};
    attend_vec(res(vers_corps, 90.0, 0.0, 0.0, v), {2, -1, 3});  // yaw 90: X = y, Y = -x, Z = z
    attend_vec(res(vers_corps, 0.0, 90.0, 0.0, v), {-3, 2, 1});  // pitch 90: X = -z, Z = x
    attend_vec(res(vers_corps, 0.0, 0.0, 90.0, v), {1, 3, -2});  // roll 90: Y = z, Z = -y
    const Vec3 w{0.3, -1.2, 2.5};
    attend_vec(res(depuis_corps, 30.0, -20.0, 75.0, res(vers_corps, 30.0, -20.0, 75.0, w)), w);

    // Epoch 2000-01-01: correction = 50 * 365.25 * 12.81161661111 / 365250
    // = 0.05 * 12.81161661111 = 0.6405808305555 deg. A node given as 90 + that
    // is 90 in 1950: with i = 0, (1, 0, 0) -> (cos 90, -sin 90, 0) = (0, -1, 0).
    const Orbite o{.orb_an = 2000, .orb_jour = 1.0};
    attend_vec(res(vers_plan, o, 90.6405808305555, 0.0, Vec3{1, 0, 0}), {0.0, -1.0, 0.0});
    // A node of 0 goes negative and gets +360: the plane turns by -0.64 deg
    const double c = 0.6405808305555 * DEG_RAD;
    attend_vec(res(vers_plan, o, 0.0, 0.0, Vec3{1, 0, 0}), {std::cos(c), std::sin(c), 0.0});
    attend_vec(res(depuis_plan, o, 40.0, 63.0, res(vers_plan, o, 40.0, 63.0, Vec3{1, -2, 5})), {1, -2, 5});

    // satellite on +y of the plane frame: u = pi/2, along track is -x
    const Vec3 p{0, 7000, 0};
    attend_vec(res(plan_vers_local, p, v), {-1, 3, 2});
    attend_vec(res(local_vers_plan, p, res(plan_vers_local, p, v)), v);
}

TEST(Reperes, InertielEtCorpsLacetCompteDeuxFois) {
    // Epoch 1950-01-01: the 1950 node correction is 0, so with i = om = 0 the
    // plane frame is the inertial frame. Satellite on +x: u = 0, and form A is
    // (along track, normal, radial) = (y, z, x).
    Etat e;
    e.orbite = {.orb_an = 1950, .orb_jour = 1.0};
    e.orb.sat_pos = Vec3{7000.0, 0.0, 0.0};
    attend_vec(res(vers_corps_etat, e, Vec3{1, 2, 3}), {2, 3, 1});  // (y, z, x) with no pointing
    attend_vec(res(depuis_corps_etat, e, Vec3{2, 3, 1}), {1, 2, 3});
    e.pointage.phi = 90.0;  // roll: no effect in this direction
    attend_vec(res(vers_corps_etat, e, Vec3{1, 2, 3}), {2, 3, 1});
    // but undone on the way back: body (2, 3, 1) -> local (2, -1, 3) -> inertial (3, 2, -1)
    attend_vec(res(depuis_corps_etat, e, Vec3{2, 3, 1}), {3, 2, -1});
    // yaw 90 is also applied as roll 90: local (2, 3, 1) -> yaw -> (3, -2, 1)
    // -> roll -> (3, 1, 2)
    e.pointage.phi = 0.0;
    e.pointage.psi = 90.0;
    attend_vec(res(vers_corps_etat, e, Vec3{1, 2, 3}), {3, 1, 2});
}

TEST(Reperes, OrbitalSansCorrectionEtArgumentDeLatitude) {
    // i = 90, om = 0: rows (1,0,0), (0,0,1), (0,-1,0), even with a 2001 epoch
    Etat e;
    e.orbite.orb_inclinaison = 90.0;
    auto sur_place = [](auto f, const auto& o) { Vec3 v{1, 2, 3}; f(o, v); return v; };
    attend_vec(sur_place(vers_orbital_i, e.orbite), {1, 3, -2});
    // form B with u = 90 deg (perigee argument 90, anomaly 0, e = 0):
    // rows (0,0,1), (0,1,0), (-1,0,0)
    e.orbite.orb_argument = 90.0;
    e.orb.anomalie_moy = 0.0;
    attend_vec(sur_place(vers_orbital_u_etat, e), {3, 2, -1});
    // anomalie_moy = 90 taken once more as degrees: m = pi/2, E = m (e = 0),
    // nu = 2 atan(tan(pi/4)) = pi/2; perigee argument 10 deg
    e.orbite.orb_argument = 10.0;
    e.orb.anomalie_moy = 90.0;
    EXPECT_NEAR(argument_latitude(e), 10.0 * DEG_RAD + DEMI_PI, PRECIS);
}

TEST(Euler, TauxAvecAnglesGardesSurCopieEtVersInertiel) {
    // a0 = 0.5, a1 = 0.25, w = (1, 2, 3):
    // q = sin .5 * 2 + cos .5 * 3 = 3.5915987628795...
    // y3 = 1 + q tan .25 = 1.9170857283687548; y4 = 2 cos .5 - 3 sin .5
    // = 0.3168885079681365; y5 = q / cos .25 = 3.706835295328804
    Vec6 y{0.5, 0.25, -0.7, 0, 0, 0};
    const Vec6 w{1, 2, 3, 0, 0, 0};
    euler_taux(w, y);
    attend_vec({y[3], y[4], y[5]}, {1.9170857283687548, 0.3168885079681365, 3.706835295328804});
    // an angle that the guard moves stays as it is in the state
    Vec6 z{PI + 5e-13, 0.0, 0.0, 0, 0, 0};
    euler_taux(w, z);
    EXPECT_EQ(z[0], PI + 5e-13);

    // i = om = 0, u = 0, a = 0: A = I, T1 = I, T2 = transpose of rows
    // (0,0,1), (1,0,0), (0,1,0) = rows (0,1,0), (0,0,1), (1,0,0).
    // R(0,2) = 0 -> b1 = 0; b0 = atan2_v(1, 0) = pi/2; b2 = atan2_v(1, 0) = pi/2
    Etat e;
    e.orb.anomalie_moy = 0.0;
    Vec3 b, c;
    euler_vers_inertiel(e, Vec3{0, 0, 0}, b, c);
    attend_vec(b, {DEMI_PI, 0.0, DEMI_PI});
    attend_vec(c, {DEMI_PI + PI, PI, DEMI_PI + PI});

    // a = (0.1, 0.2, 0.3): R = A T2 moves the columns of A: R(i,0) = A(i,2),
    // R(i,1) = A(i,0), R(i,2) = A(i,1), with A(0,1) = c1 s2, A(1,1) = s0 s1 s2
    // + c0 c2, A(2,1) = c0 s1 s2 - s0 c2, A(0,0) = c1 c2, A(0,2) = -s1.
    const double s0 = std::sin(0.1), c0 = std::cos(0.1), s1 = std::sin(0.2), c1 = std::cos(0.2);
    const double s2 = std::sin(0.3), c2 = std::cos(0.3);
    euler_vers_inertiel(e, Vec3{0.1, 0.2, 0.3}, b, c);
    EXPECT_NEAR(b[1], -std::asin(c1 * s2), PRECIS);
    // x = 0.0584 - 0.0954 < 0 and y > 0: + pi
    EXPECT_NEAR(b[0], std::atan((s0 * s1 * s2 + c0 * c2) / (c0 * s1 * s2 - s0 * c2)) + PI, PRECIS);
    EXPECT_NEAR(b[2], std::atan(c1 * c2 / -s1) + PI, PRECIS);  // x < 0, y >= 0: + pi
    EXPECT_EQ(c[1], PI - b[1]);
}

TEST(ResoutLineaire, SystemesConnusGrandeTailleEtSinguliers) {
    // [[2,1,1],[1,3,2],[1,0,0]] x = (4,5,6): x0 = 6, x1 + x2 = -8,
    // 3 x1 + 2 x2 = -1 -> x = (6, 15, -23)
    const std::vector<double> A{2, 1, 1, 1, 3, 0, 1, 2, 0}, b{4, 5, 6};  // first index fastest
    EXPECT_THAT(resout(A, b, 0), Pointwise(DoubleNear(PRECIS), {6.0, 15.0, -23.0}));
    EXPECT_EQ(A[0], 2.0);  // inputs untouched
    EXPECT_EQ(b[2], 6.0);

    // zeros on the diagonal force the row exchanges:
    // x1 = 1, x0 = 2, 2 x3 = 3, 3 x2 = 4
    std::vector<double> P(16, 0.0);
    P[0 + 4 * 1] = P[1 + 4 * 0] = 1;
    P[2 + 4 * 3] = 2;
    P[3 + 4 * 2] = 3;
    EXPECT_THAT(resout(P, {1, 2, 3, 4}, 0), Pointwise(DoubleNear(PRECIS), {2.0, 1.0, 4.0 / 3.0, 1.5}));

    // n = 20 (past the stack buffers): 4 on the diagonal, 1 next to it;
    // with x = all ones, b is the row sums: 5 at both ends, 6 inside.
    const int n = 20;
    std::vector<double> G(n * n, 0.0), bg(n, 6.0);
    for (int i = 0; i < n; ++i) {
        G[i + n * i] = 4;
        if (i > 0) G[i + n * (i - 1)] = 1;
        if (i < n - 1) G[i + n * (i + 1)] = 1;
    }
    bg.front() = bg.back() = 5;
    EXPECT_THAT(resout(G, bg, 0), Each(DoubleNear(1.0, PRECIS)));

    // singular: second row twice the first, then all zero; x left as it was
    EXPECT_THAT(resout({1, 2, 2, 4}, {1, 2}, -1, 42.0), Each(42.0));
    EXPECT_THAT(resout(std::vector<double>(9, 0.0), {1, 1, 1}, -1, 7.0), Each(7.0));
}

// The integrator step on bodies whose behaviour is known without it: a free
// rigid body, a body with one nutation damper, dampers left out of the system,
// a singular system, and the fold of -pi.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <tuple>
#include <utility>

#include "core/attitude/att_run.h"
#include "core/attitude/atmosphere.h"
#include "core/attitude/attitude_init.h"
#include "core/attitude/attitude_step.h"
#include "core/etat/etat.h"
#include "tables_essai.h"

namespace kestrel {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

// No external torque: orbit 1e6 km away (gravity gradient ~1e-12 of the
// inertia, no air above 2500 km), no dipole, every face a perfect mirror
// (push along its own lever), no jets, no wheels, no dampers.
Etat corps_libre(const Vec3& w) {
    Etat e;
    e.session.dossier_depart = KESTREL_BIN_DIR;
    e.orbite.orb_demi = 1e6;
    e.att.dip_res = {};
    e.att.cr.fill(1.0);
    e.att.cd.fill(0.0);
    e.att.Mt = 50;
    e.att.I = Mat3{{2.0, 0, 0, 0, 3.0, 0, 0, 0, 4.0}};
    e.att.omega_init = {w[0], w[1], w[2], 0, 0, 0};
    attitude_init(e);
    return e;
}

void avance(Etat& e, double dt, int n) {
    double j = e.session.j_debut;
    for (int i = 0; i < n; ++i) {
        orbite_a_date(e, j);
        attitude_step(e, dt, j, tables());
        j += dt / 86400;
    }
}

// |H| and the kinetic energy of the diagonal body
double moment(const Etat& e) {
    const auto& a = e.att;
    return std::hypot(a.I(0, 0) * a.omega[0], a.I(1, 1) * a.omega[1], a.I(2, 2) * a.omega[2]);
}
double energie(const Etat& e) {
    const auto& a = e.att;
    return 0.5 * (a.I(0, 0) * a.omega[0] * a.omega[0] + a.I(1, 1) * a.omega[1] * a.omega[1] +
                  a.I(2, 2) * a.omega[2] * a.omega[2]);
}

TEST(CorpsLibre, MomentCinetiqueGardeAuPremierOrdre) {
    // dH/dt = -w x H is normal to H; an explicit Euler step adds dt² |w x H|²
    // to |H|², so over N steps |H| drifts up by at most N dt² |w|² / 2 relative,
    // with |w| <= |H| / Imin = 0.363 / 2: 1000 x 0.01 x 0.033 / 2 = 0.17; and
    // the drift is first order in dt: halving dt over the same time halves it.
    const Vec3 w{0.1, 0.1, 0.01};
    Etat a = corps_libre(w);
    const double h0 = moment(a);
    avance(a, 0.1, 1000);
    const double d1 = moment(a) / h0 - 1;
    EXPECT_GT(d1, 0.0);
    EXPECT_LT(d1, 0.17);

    Etat b = corps_libre(w);
    avance(b, 0.05, 2000);
    const double d2 = moment(b) / h0 - 1;
    EXPECT_NEAR(d1 / d2, 2.0, 0.2);
    // and the body did tumble: the rates moved
    EXPECT_GT(std::fabs(a.att.omega[0] - 0.1), 1e-3);
}

TEST(CorpsLibre, EquationsDEulerSurUnPas) {
    // first step from w = (0.1, 0.2, 0.3), I = diag(2, 3, 4):
    // wx' = (3 - 4) 0.2 0.3 / 2 = -0.03, wy' = (4 - 2) 0.3 0.1 / 3 = 0.02,
    // wz' = (2 - 3) 0.1 0.2 / 4 = -0.005
    Etat e = corps_libre({0.1, 0.2, 0.3});
    avance(e, 1.0, 1);
    EXPECT_THAT(e.att.omega, Pointwise(DoubleNear(1e-12), Vec6{0.1 - 0.03, 0.2 + 0.02, 0.3 - 0.005, -0.03, 0.02, -0.005}));
    // wheels at rest follow the body: om = -omega, omd(1) = -omega(5)
    EXPECT_NEAR(e.att.om[1], -(0.2 + 0.02), 1e-12);
    EXPECT_NEAR(e.att.omd[1], 0.005, 1e-12);
}

TEST(Amortisseurs, UnAmortisseurActifDissipeLEnergie) {
    // spin 0.5 rad/s about the major axis z with a wobble of 0.1 rad/s on x.
    // Body nutation rate 0.5 sqrt((4 - 2)(4 - 3) / (2 x 3)) = 0.289 rad/s; damper 0
    // (1 kg sliding along z, 0.5 m out on x) tuned to it: k = 1 x 0.289² = 0.0833.
    // Kinetic energy 0.5106 J can fall to H² / 2 Iz = 0.5055 J; the same body
    // without the damper only gains energy through the explicit rule.
    auto lance = [](double md) {
        Etat e = corps_libre({0.1, 0.02, 0.5});
        e.att.md = {md, 0, 0};
        e.att.ld = {0.5, 0, 0};
        e.att.c = {0.3, 0, 0};
        e.att.k = {0.0833, 0, 0};
        e.att.Mt = 50 + 2 * md;
        avance(e, 0.01, 20000);
        return e;
    };
    const double t0 = energie(corps_libre({0.1, 0.02, 0.5}));
    EXPECT_NEAR(t0, 0.5106, 1e-12);
    Etat libre = lance(0.0);
    Etat amorti = lance(1.0);
    EXPECT_GT(energie(libre), t0);
    EXPECT_LT(energie(amorti), t0 - 0.003);
    EXPECT_GT(energie(amorti), 0.5055 - 1e-3);
    EXPECT_LT(std::fabs(amorti.att.omega[0]), 0.01);  // the wobble is gone
    EXPECT_EQ(std::pair(amorti.att.z[1], amorti.att.z[2]), std::pair(0.0, 0.0));  // inactive dampers are left out
}

TEST(Amortisseurs, ChaqueAmortisseurSeulSurSesLigneEtColonne) {
    // Body at rest, damper i alone (m = 1 kg, lever l = 0.5 m, k = 2 N/m) held
    // out at a = 0.1 m, Mt = 52 kg. With no rates only the spring a k stands in
    // the free terms, and the reduced system couples the damper with one axis:
    //   I' w' - m l zdd = 0,  -m l w' + m (1 - m / Mt) zdd = -a k
    //   zdd = -a k / (m (1 - m / Mt) - m² l² / I'),  w' = m l zdd / I'
    // damper 0 (slides on z at x = l) turns about y, I' = Iyy + m a² = 3.01;
    // damper 1 (on x at y = l) about z, I' = Izz + m a² - m² a / Mt = 4.0080769;
    // damper 2 (on y at z = l) about x, I' = Ixx + m a² - m² a² / Mt = 2.0098077.
    // One step of 1 s: zd = zdd, z = a + zd + zdd / 2 = a + 1.5 zdd.
    const double m = 1, l = 0.5, a = 0.1, k = 2, Mt = 52;
    const int axe[3] = {1, 2, 0};
    const double Ip[3] = {3 + m * a * a, 4 + m * a * a - m * m * a / Mt, 2 + m * a * a - m * m * a * a / Mt};
    for (int i = 0; i < 3; ++i) {
        Etat e = corps_libre({0, 0, 0});
        e.att.Mt = Mt;
        e.att.md[i] = m;
        e.att.ld[i] = l;
        e.att.k[i] = k;
        e.att.z[i] = a;
        avance(e, 1.0, 1);
        const double zdd = -a * k / (m * (1 - m / Mt) - m * m * l * l / Ip[i]);
        for (int j = 0; j < 3; ++j) {
            EXPECT_NEAR(e.att.zdd[j], j == i ? zdd : 0.0, 1e-9) << i << " " << j;
            EXPECT_NEAR(e.att.omega[3 + j], j == axe[i] ? m * l * zdd / Ip[i] : 0.0, 1e-9) << i << " " << j;
        }
        EXPECT_NEAR(e.att.z[i], a + 1.5 * zdd, 1e-9) << i;
    }
}

TEST(Amortisseurs, SansMasseLeSystemeReste3x3) {
    // springs and viscosity set but masses 0 or exactly 1e-21: nothing moves
    Etat e = corps_libre({0.05, 0.02, 0.5});
    e.att.md = {0, 1e-21, 0};
    e.att.ld = {0.2, 0.2, 0.2};
    e.att.c = {2, 2, 2};
    e.att.k = {5, 5, 5};
    avance(e, 0.1, 200);
    for (const Vec3* v : {&e.att.z, &e.att.zd, &e.att.zdd}) EXPECT_EQ(*v, Vec3{});
}

TEST(Singulier, PasSansEffet) {
    // zero inertia: the 3x3 system is singular, nothing moves, the orbit state
    // stays at the date of the step
    Etat e = corps_libre({0.1, 0.2, 0.3});
    e.att.I = Mat3{};
    const double j = e.session.j_debut;
    orb_position(e, j);
    const Vec3 p = e.orb.sat_pos;
    const Vec6 w = e.att.omega, yd = e.att.yd;
    EXPECT_FALSE(attitude_step(e, 10.0, j, tables()));
    EXPECT_EQ(e.orb.sat_pos, p);
    EXPECT_EQ(e.att.omega, w);
    EXPECT_EQ(e.att.yd, yd);
    // the run's step then knows the orbit is still at j
    double date_orbite = std::nan("");
    pas_run(e, 10.0, j, date_orbite, tables());
    EXPECT_EQ(date_orbite, j);
    // noted with the date of the first such step, never as a fault
    EXPECT_TRUE(e.alertes.systeme_singulier);
    EXPECT_EQ(e.alertes.date_singulier, j);
    EXPECT_FALSE(e.faute);
    attitude_step(e, 10.0, j + 1, tables());
    EXPECT_EQ(e.alertes.date_singulier, j);
}

TEST(Singulier, LeRunContinueSansMessage) {
    // a whole run on a singular body: every step is skipped, every record
    // written, the run ends with no fault (|w| = 0.374 rad/s: 1.87 rad a 5 s step)
    Etat e = corps_libre({0.1, 0.2, 0.3});
    e.att.I = Mat3{};
    e.session.j_fin = e.session.j_debut + 17.0 / 86400;
    e.session.pas_sim = 5;
    ParametresRun p;
    p.fichier = (std::filesystem::temp_directory_path() / ("kestrel_singulier_" + std::to_string(getpid()))).string();
    const BilanRun b = att_run(e, p);
    std::filesystem::remove(p.fichier);
    EXPECT_FALSE(e.faute) << texte_erreur(e.faute);
    // steps at 0, 5, 10 and 15 s, each with its record, and the initial one
    EXPECT_EQ(std::tuple(b.pas, b.enregistrements), std::tuple(4L, 5L));
    EXPECT_EQ(std::tuple(e.alertes.systeme_singulier, e.alertes.date_singulier),
              std::tuple(true, e.session.j_debut));
}

// The orbit a run step leaves is the orbit at the next date to the bit, the
// same as a fresh propagation there: the next step can take it as it is.
TEST(PasRun, OrbiteLaisseeIdentiqueALaDateSuivante) {
    Etat e = corps_libre({0.1, 0.2, 0.3});
    e.orbite.orb_demi = 7000;  // low enough for the air and the field to act
    double date_orbite = std::nan("");
    double j = e.session.j_debut;
    for (int k = 0; k < 3; ++k, j += 10.0 / 86400) {
        pas_run(e, 10.0, j, date_orbite, tables());
        EXPECT_EQ(date_orbite, 10.0 / 86400 + j);
        Etat f = e;
        orbite_a_date(f, date_orbite);
        const SortiesOrbite &a = e.orb, &b = f.orb;
        EXPECT_EQ(std::tuple(a.sat_pos, a.sat_vit, a.soleil_pos, a.vec_nadir, a.vec_soleil),
                  std::tuple(b.sat_pos, b.sat_vit, b.soleil_pos, b.vec_nadir, b.vec_soleil));
        EXPECT_EQ(std::tuple(a.eclipse, a.anomalie_moy, a.sat_lon, a.sat_lat, a.sat_alt),
                  std::tuple(b.eclipse, b.anomalie_moy, b.sat_lon, b.sat_lat, b.sat_alt));
    }
    EXPECT_FALSE(e.faute);
}

TEST(Reduction, MoinsPiRameneAPlusPiPourYi) {
    // yi(0) = -pi at rest: the first fold makes it +pi, the nearest quarter
    // turn to the previous -pi is -pi again, and the second fold gives +pi
    Etat e = corps_libre({0, 0, 0});
    e.att.yi_init = {-PI, 0, 0, 0, 0, 0};
    attitude_init(e);
    avance(e, 1.0, 1);
    EXPECT_EQ(e.att.yi[0], PI);
}

TEST(Reduction, RechercheAuQuartDeTour) {
    // free spin about x from yi = 0, one step of 1 s: yi(0) = wx dt. At
    // 0.7 rad the nearest of the nine shifts to the previous 0 is 0.7 itself
    // (0.7 - pi/2 is 0.87 away); at 1 rad it is 1 - pi/2 = -0.5707963
    // (0.57 away): the angle snaps by a quarter turn
    for (auto [wx, attendu] : {std::pair{0.7, 0.7}, std::pair{1.0, 1.0 - DEMI_PI}}) {
        Etat e = corps_libre({wx, 0, 0});
        avance(e, 1.0, 1);
        EXPECT_NEAR(e.att.yi[0], attendu, 1e-12) << wx;
    }
}

TEST(Reduction, UnTourParSigneEtModulo) {
    // sign kept, magnitude mod 2 pi (2 pi = 6.28318530717958)
    // -pi: inertial angles fold it to +pi, local-orbital ones keep it;
    // 4 > pi: 4 - 6.28318530717958 = -2.28318530717958;
    // -(pi + 0.5) < -pi: + 2 pi gives 2.64159265358979
    struct Cas { double (*f)(double); double x, attendu, tol; };
    const Cas cas[] = {{reduit_tour, -PI, -PI, 0}, {reduit_tour, DEUX_PI + 1.0, 1.0, 0},
                       {reduit_tour, -(DEUX_PI + 1.0), -1.0, 0}, {reduit_inertiel, -PI, PI, 0},
                       {reduit_orbital, -PI, -PI, 0}, {reduit_orbital, PI, PI, 0},
                       {reduit_inertiel, 4.0, -2.28318530717958, 1e-14}, {reduit_orbital, 4.0, -2.28318530717958, 1e-14},
                       {reduit_orbital, -(PI + 0.5), 2.64159265358979, 1e-14},
                       {reduit_inertiel, -(PI + 0.5), 2.64159265358979, 1e-14}};
    for (const Cas& c : cas) EXPECT_NEAR(c.f(c.x), c.attendu, c.tol) << &c - cas;
}

TEST(ChoixTangage, TroisTestsEnChaine) {
    // yd(4) dt = 1, yd(2) = -1: the first prediction 0 takes s1 (pitch 0,
    // distances 0 / 0.9 / 5.38); the second test predicts from that pitch,
    // 1 + 0 = 1, and takes s2 (pitch 0.9, distance 0.1 against 1); the third,
    // 1.9 against 0.9 - 2 pi, takes nothing
    Vec6 yd{9, 9, -1, 0, 0.5, 0};
    const Vec3 s1{0.1, 0.0, 0.3}, s2{0.4, 0.9, 0.6};
    choix_tangage(yd, s1, s2, 2.0);
    EXPECT_EQ(yd, (Vec6{0.4, 0.6, 0.9, 0, 0.5, 0}));  // roll, yaw, pitch; rates untouched
}

TEST(ChoixTangage, DeuxiemeSolutionUnTourPlusBas) {
    // prediction -3: s1 pitch 0 (3), s2 pitch 3 (6), s3 pitch 3 - 2 pi =
    // -3.28318530717958 (0.283): s3 taken, its pitch not yet folded
    Vec6 yd{0, 0, -3, 0, 0, 0};
    choix_tangage(yd, Vec3{1, 0, 2}, Vec3{-1, 3, -2}, 1.0);
    EXPECT_EQ(std::pair(yd[0], yd[1]), std::pair(-1.0, -2.0));
    EXPECT_NEAR(yd[2], -3.28318530717958, 1e-14);
    // a tie goes to the earlier test: s1 and s2 both 1 away, then s1's own
    // prediction (0 + 0) keeps s1 nearest
    Vec6 ze{0, 0, 0, 0, 0, 0};
    choix_tangage(ze, Vec3{1, -1, 1}, Vec3{2, 1, 2}, 1.0);
    EXPECT_EQ(std::pair(ze[0], ze[2]), std::pair(1.0, -1.0));
}

TEST(TauxDifferences, SautDePlusDe300Degres) {
    // plain difference: (0.1 - (-0.1)) / 0.5 = 0.4.
    // 3.1 after -3.1: 6.2 rad > 5.2359877 and the signs differ, q := -3.1 + 2 pi
    // = 3.18318530717958, rate (3.1 - 3.18318530717958) / 2 = -0.04159265358979.
    // 5.2 rad (298 deg) is no jump: 5.2 / 1.
    // over 300 deg with the same sign (not reachable after the fold, but the
    // guard wants both): no correction, (-0.1 - (-5.5)) / 1 = 5.4
    struct Cas { double y, q, dt, attendu, tol; };
    for (const Cas& c : {Cas{0.1, -0.1, 0.5, 0.4, 1e-15}, {3.1, -3.1, 2.0, -0.04159265358979, 1e-13},
                         {-3.1, 3.1, 2.0, 0.04159265358979, 1e-13}, {2.6, -2.6, 1.0, 5.2, 1e-15},
                         {-0.1, -5.5, 1.0, 5.4, 1e-14}})
        EXPECT_NEAR(taux_differences(c.y, c.q, c.dt), c.attendu, c.tol) << c.y << " after " << c.q;
}

}  // namespace
}  // namespace kestrel

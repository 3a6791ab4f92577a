// Sun series, sidereal angle, Earth-fixed frame and the geodetic ground point.
#include <gtest/gtest.h>

#include <cmath>

#include "core/etat.h"
#include "core/orbit/orb_projection.h"
#include "core/shell/types.h"

using namespace kestrel;

namespace {
constexpr double UA = 149596000.0;
constexpr double A_T = 6378.137, E2 = 0.0066943799901413165;
double norme(const Vec3& v) { return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]); }
}  // namespace

TEST(Soleil, DistanceSurUneAnnee) {
    // R = 1.00014 - 0.01675 cos g - 0.00014 cos 2g AU: 0.98325 at g = 0,
    // 1.01675 at g = pi; g turns once in 365.26 days.
    double rmin = 10, rmax = 0;
    for (double j = 18262.0; j < 18262.0 + 366.0; j += 0.1) {
        const double r = norme(soleil_vecteur(j)) / UA;
        rmin = std::min(rmin, r);
        rmax = std::max(rmax, r);
    }
    EXPECT_NEAR(rmin, 1.00014 - 0.01675 - 0.00014, 1e-7);
    EXPECT_NEAR(rmax, 1.00014 + 0.01675 - 0.00014, 1e-7);
}

TEST(Soleil, EquinoxesEtSolstice) {
    // 2000: March equinox 20 March 07:35 UT (j = 18341.316), September
    // equinox 22 September 17:27 (j = 18527.727), June solstice 21 June 01:48
    // (j = 18434.075). z changes sign at the equinoxes (the turn back to 1950
    // is about the pole and leaves z alone) and peaks near sin 23.439 deg.
    auto z = [](double j) { return soleil_vecteur(j)[2]; };
    // the crossings, found by halving, within an hour of the event
    auto passage = [&](double g, double d) {
        for (int k = 0; k < 60; ++k) {
            const double m = 0.5 * (g + d);
            if ((z(m) > 0) == (z(g) > 0)) g = m; else d = m;
        }
        return g;
    };
    EXPECT_NEAR(passage(18339.3, 18343.3), 18341.316, 0.04);
    EXPECT_NEAR(passage(18525.7, 18529.7), 18527.727, 0.04);
    const Vec3 s = soleil_vecteur(18434.075);
    EXPECT_NEAR(s[2] / norme(s), 0.39777249434045, 2e-4);
}

TEST(TempsSideral, TauxEtIntervalle) {
    // one day later: d grows by 1 and the fraction is the same, so the angle
    // grows by 0.017202179573701 rad modulo 2 pi (6.30038 rad per day in all)
    for (double j : {0.0, 11689.25, 18628.4, 20000.9}) {
        const double t0 = temps_sideral(j), t1 = temps_sideral(j + 1.0);
        EXPECT_NEAR(std::remainder(t1 - t0 - 0.017202179573701, DEUX_PI), 0.0, 1e-9) << j;
    }
    // half a day: the fraction term adds pi
    EXPECT_NEAR(std::remainder(temps_sideral(18628.5) - temps_sideral(18628.0) -
                                   (0.5 * 0.017202179573701 + PI), DEUX_PI),
                0.0, 1e-9);
    for (double j = -5000.0; j < 30000.0; j += 7.3117) {
        const double t = temps_sideral(j);
        EXPECT_GE(t, 0.0);
        EXPECT_LE(t, DEUX_PI);
    }
}

TEST(RepereTerrestre, AllerRetour) {
    const Vec3 v{6500.25, -3210.5, 1234.75};
    for (double j : {0.0, 25000.123}) {
        Vec3 t, r;
        vers_terrestre(j, v, t);
        EXPECT_EQ(t[2], v[2]);                   // turn about the pole
        EXPECT_NEAR(norme(t), norme(v), 1e-9);
        vers_inertiel(j, t, r);
        EXPECT_NEAR(r[0], v[0], 1e-9);
        EXPECT_NEAR(r[1], v[1], 1e-9);
        EXPECT_NEAR(r[2], v[2], 0.0);
    }
}

TEST(Geodesique, PolesEtEquateur) {
    double lon = 99, lat = 99, alt = 99;
    // on the axis: X = 0 with Y not > 0 gives -pi/2; alt from the polar radius
    ASSERT_TRUE(cart_vers_geodesique(Vec3{0, 0, 7000}, lon, lat, alt));
    EXPECT_EQ(lon, -DEMI_PI);
    EXPECT_EQ(lat, DEMI_PI);
    EXPECT_EQ(alt, 7000.0 - 6356.752);
    cart_vers_geodesique(Vec3{0, 0, -7000}, lon, lat, alt);
    EXPECT_EQ(lat, -DEMI_PI);
    EXPECT_EQ(alt, 7000.0 - 6356.752);
    // centre of the Earth: neither latitude nor altitude written
    lat = 5;
    alt = 6;
    cart_vers_geodesique(Vec3{0, 0, 0}, lon, lat, alt);
    EXPECT_EQ(lat, 5.0);
    EXPECT_EQ(alt, 6.0);

    // equator: lat exactly 0, alt from the equatorial radius
    cart_vers_geodesique(Vec3{7000, 0, 0}, lon, lat, alt);
    EXPECT_EQ(lon, 0.0);
    EXPECT_EQ(lat, 0.0);
    EXPECT_EQ(alt, 7000.0 - 6378.137);
    cart_vers_geodesique(Vec3{-7000, 0, 0}, lon, lat, alt);
    EXPECT_EQ(lon, PI);
    cart_vers_geodesique(Vec3{0, 7000, 0}, lon, lat, alt);
    EXPECT_EQ(lon, DEMI_PI);
    cart_vers_geodesique(Vec3{-5000, -5000, 0}, lon, lat, alt);
    EXPECT_NEAR(lon, -3.0 * M_PI / 4.0, 1e-14);  // atan(1) - pi
}

TEST(Geodesique, PointConnuSurLEllipsoide) {
    // From lat 45 deg, lon 30 deg, h 700 km by the definition of geodetic
    // coordinates: N = a / sqrt(1 - e2 sin^2 lat), rho = (N + h) cos lat,
    // Z = (N (1 - e2) + h) sin lat.
    for (double latd : {45.0, -62.5, 5.0}) {
        const double la = latd * M_PI / 180.0, lo = 30.0 * M_PI / 180.0, h = 700.0;
        const double N = A_T / std::sqrt(1.0 - E2 * std::sin(la) * std::sin(la));
        const Vec3 P{(N + h) * std::cos(la) * std::cos(lo), (N + h) * std::cos(la) * std::sin(lo),
                     (N * (1.0 - E2) + h) * std::sin(la)};
        double lon, lat, alt;
        ASSERT_TRUE(cart_vers_geodesique(P, lon, lat, alt));
        EXPECT_NEAR(lon, lo, 1e-14);
        EXPECT_NEAR(lat, la, 1e-9) << latd;
        EXPECT_NEAR(alt, h, 1e-5) << latd;
    }
}

TEST(Geodesique, BoucleBorneeEtFauteSignalee) {
    double lon, lat, alt;
    EXPECT_FALSE(cart_vers_geodesique(Vec3{std::nan(""), 1000, 1000}, lon, lat, alt));

    Etat e;
    sous_point(e, 18630.0, Vec3{std::nan(""), 1000, 1000}, lon, lat, alt);
    EXPECT_EQ(e.faute.code, CodeErreur::non_convergence);
    EXPECT_EQ(e.faute.date, 18630.0);
}

TEST(SousPoint, TerrestrePuisGeodesique) {
    // an equatorial point stays on the equator whatever the date; the altitude
    // is the radius less 6378.137 and the longitude is the inertial one less
    // the sidereal angle, brought into (-pi, pi].
    Etat e;
    const double j = 18628.55001;
    double lon, lat, alt;
    sous_point(e, j, Vec3{0.0, 7174.0, 0.0}, lon, lat, alt);
    EXPECT_FALSE(e.faute);
    EXPECT_EQ(lat, 0.0);
    EXPECT_NEAR(alt, 7174.0 - 6378.137, 1e-9);
    EXPECT_NEAR(std::remainder(lon - (DEMI_PI - temps_sideral(j)), DEUX_PI), 0.0, 1e-12);
}

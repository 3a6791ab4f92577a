// Sun series, sidereal angle, Earth-fixed frame and the geodetic ground point.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

#include "core/etat/etat.h"
#include "core/orbit/orb_projection.h"

using namespace kestrel;
using testing::AllOf, testing::DoubleNear, testing::FieldsAre, testing::Ge, testing::Le, testing::Pointwise;

constexpr double UA = 149596000.0;
constexpr double A_T = 6378.137, E2 = 0.0066943799901413165;
static double norme(const Vec3& v) { return std::hypot(v[0], v[1], v[2]); }

// cart_vers_geodesique with outputs pre-set to 99, so a field left unwritten shows.
struct Geo { double lon = 99, lat = 99, alt = 99; bool ok = false; };
static Geo geo(const Vec3& P) { Geo g; g.ok = cart_vers_geodesique(P, g.lon, g.lat, g.alt); return g; }
static auto lla(const Geo& g) { return std::tuple(g.lon, g.lat, g.alt); }

TEST(Soleil, DistanceEquinoxesEtSolstice) {
    // R = 1.00014 - 0.01675 cos g - 0.00014 cos 2g AU: 0.98325 at g = 0,
    // 1.01675 at g = pi; g turns once in 365.26 days.
    std::vector<double> r;
    for (double j = 18262.0; j < 18262.0 + 366.0; j += 0.1) r.push_back(norme(soleil_vecteur(j)) / UA);
    EXPECT_NEAR(*std::min_element(r.begin(), r.end()), 1.00014 - 0.01675 - 0.00014, 1e-7);
    EXPECT_NEAR(*std::max_element(r.begin(), r.end()), 1.00014 + 0.01675 - 0.00014, 1e-7);

    // 2000: March equinox 20 March 07:35 UT (j = 18341.316), September
    // equinox 22 September 17:27 (j = 18527.727), June solstice 21 June 01:48
    // (j = 18434.075). z changes sign at the equinoxes (the turn back to 1950
    // is about the pole and leaves z alone) and peaks near sin 23.439 deg.
    // The crossings, found by halving, within an hour of the event.
    auto passage = [](double g, double d) {
        for (int k = 0; k < 60; ++k) {
            const double m = 0.5 * (g + d);
            ((soleil_vecteur(m)[2] > 0) == (soleil_vecteur(g)[2] > 0) ? g : d) = m;
        }
        return g;
    };
    EXPECT_NEAR(passage(18339.3, 18343.3), 18341.316, 0.04);
    EXPECT_NEAR(passage(18525.7, 18529.7), 18527.727, 0.04);
    const Vec3 s = soleil_vecteur(18434.075);
    EXPECT_NEAR(s[2] / norme(s), 0.39777249434045, 2e-4);
}

TEST(TempsSideral, TauxIntervalleEtRepereTerrestre) {
    // one day later: d grows by 1 and the fraction is the same, so the angle
    // grows by 0.017202179573701 rad modulo 2 pi (6.30038 rad per day in all)
    auto pas = [](double j, double dj) { return std::remainder(temps_sideral(j + dj) - temps_sideral(j), DEUX_PI); };
    for (double j : {0.0, 11689.25, 18628.4, 20000.9})
        EXPECT_NEAR(std::remainder(pas(j, 1.0) - 0.017202179573701, DEUX_PI), 0.0, 1e-9) << j;
    // half a day: the fraction term adds pi
    EXPECT_NEAR(std::remainder(pas(18628.0, 0.5) - (0.5 * 0.017202179573701 + PI), DEUX_PI), 0.0, 1e-9);
    for (double j = -5000.0; j < 30000.0; j += 7.3117) EXPECT_THAT(temps_sideral(j), AllOf(Ge(0.0), Le(DEUX_PI))) << j;
    // Earth-fixed and back: a turn about the pole
    const Vec3 v{6500.25, -3210.5, 1234.75};
    for (double j : {0.0, 25000.123}) {
        Vec3 t, r;
        vers_terrestre(j, v, t);
        EXPECT_EQ(t[2], v[2]);
        EXPECT_NEAR(norme(t), norme(v), 1e-9);
        vers_inertiel(j, t, r);
        EXPECT_THAT(r, Pointwise(DoubleNear(1e-9), v));
        EXPECT_EQ(r[2], v[2]);
    }
}

TEST(Geodesique, PolesEquateurEtPointConnu) {
    // on the axis: X = 0 with Y not > 0 gives -pi/2; alt from the polar radius
    const Geo n = geo({0, 0, 7000}), s = geo({0, 0, -7000}), eq = geo({7000, 0, 0});
    ASSERT_TRUE(n.ok);
    EXPECT_EQ(lla(n), std::tuple(-DEMI_PI, DEMI_PI, 7000.0 - 6356.752));
    EXPECT_EQ(std::tuple(s.lat, s.alt), std::tuple(-DEMI_PI, 7000.0 - 6356.752));
    // centre of the Earth: neither latitude nor altitude written
    const Geo c = geo({0, 0, 0});
    EXPECT_EQ(std::tuple(c.lat, c.alt), std::tuple(99.0, 99.0));
    // equator: lat exactly 0, alt from the equatorial radius
    EXPECT_EQ(lla(eq), std::tuple(0.0, 0.0, 7000.0 - 6378.137));
    EXPECT_EQ(geo({-7000, 0, 0}).lon, PI);
    EXPECT_EQ(geo({0, 7000, 0}).lon, DEMI_PI);
    EXPECT_NEAR(geo({-5000, -5000, 0}).lon, -3.0 * M_PI / 4.0, 1e-14);  // atan(1) - pi

    // From lat 45 deg, lon 30 deg, h 700 km by the definition of geodetic
    // coordinates: N = a / sqrt(1 - e2 sin^2 lat), rho = (N + h) cos lat,
    // Z = (N (1 - e2) + h) sin lat.
    for (double latd : {45.0, -62.5, 5.0}) {
        SCOPED_TRACE(latd);
        const double la = latd * M_PI / 180.0, lo = 30.0 * M_PI / 180.0, h = 700.0;
        const double N = A_T / std::sqrt(1.0 - E2 * std::sin(la) * std::sin(la));
        const Geo g = geo({(N + h) * std::cos(la) * std::cos(lo), (N + h) * std::cos(la) * std::sin(lo),
                           (N * (1.0 - E2) + h) * std::sin(la)});
        EXPECT_TRUE(g.ok);
        EXPECT_THAT(lla(g), FieldsAre(DoubleNear(lo, 1e-14), DoubleNear(la, 1e-9), DoubleNear(h, 1e-5)));
    }
}

TEST(SousPoint, TerrestrePuisGeodesiqueEtFauteSignalee) {
    // an equatorial point stays on the equator whatever the date; the altitude
    // is the radius less 6378.137 and the longitude is the inertial one less
    // the sidereal angle, brought into (-pi, pi].
    Etat e;
    const double j = 18628.55001;
    double lon, lat, alt;
    sous_point(e, j, Vec3{0.0, 7174.0, 0.0}, lon, lat, alt);
    EXPECT_FALSE(e.faute);
    EXPECT_THAT(std::tuple(lat, alt), FieldsAre(0.0, DoubleNear(7174.0 - 6378.137, 1e-9)));
    EXPECT_NEAR(std::remainder(lon - (DEMI_PI - temps_sideral(j)), DEUX_PI), 0.0, 1e-12);

    // a NaN never converges: the loop's cap ends it and the fault is reported
    EXPECT_FALSE(geo({std::nan(""), 1000, 1000}).ok);
    sous_point(e, 18630.0, Vec3{std::nan(""), 1000, 1000}, lon, lat, alt);
    EXPECT_EQ(std::tuple(e.faute.code, e.faute.date), std::tuple(CodeErreur::non_convergence, 18630.0));
}

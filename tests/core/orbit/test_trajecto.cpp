// Keplerian propagation: epoch handling, the substitutions for circular
// equatorial orbits, repeatability, the shadow cone and the reported faults.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "core/etat/etat.h"
#include "core/orbit/orb_trajecto.h"

using namespace kestrel;

constexpr double MU = 398601.3;
static double norme(const Vec3& v) { return std::hypot(v[0], v[1], v[2]); }
// Period in days for the semi-major axis a: n = sqrt(mu / a) / a rad/s.
static double periode_j(double a) { return 2.0 * M_PI / (std::sqrt(MU / a) / a) / 86400.0; }

// Every output field, bit for bit (the record has padding that memcmp would read).
static std::vector<uint64_t> bits(const SortiesOrbite& s) {
    std::vector<uint64_t> v{static_cast<uint64_t>(s.eclipse)};
    for (const Vec3& x : {s.sat_pos, s.sat_vit, s.soleil_pos, s.vec_nadir, s.vec_soleil})
        for (double d : x) v.push_back(std::bit_cast<uint64_t>(d));
    for (double d : {s.anomalie_moy, s.sat_lon, s.sat_lat, s.sat_alt}) v.push_back(std::bit_cast<uint64_t>(d));
    return v;
}

static Etat etat(const Orbite& o) { Etat e; e.orbite = o; return e; }
static const SortiesOrbite& pos(Etat& e, double j) { orb_position(e, j); return e.orb; }
// Epoch day 1 of `an`, 90 deg of mean anomaly at the epoch.
static Etat etat_epoque(int an) { return etat({.orb_anomalie = 90.0, .orb_an = static_cast<int16_t>(an), .orb_jour = 1.0}); }

TEST(OrbPosition, EpoqueParAnneeEtTauxDuDemiGrandAxe) {
    // t0 by four-year blocks from 1900: 1950 -> 48*365.25 + 2*365 + 1 - 18263
    // = 0; 1951 -> 17532 + 3*365 + 1 - 18263 = 365; 1952 -> 52*365.25 - 18263
    // = 730. At j = t0 the mean anomaly is exactly the epoch's, 90 deg.
    const struct { int an; double t0; } cas[] = {{1950, 0.0}, {1951, 365.0}, {1952, 730.0}, {2001, 18628.0}};
    for (const auto& c : cas) {
        Etat e = etat_epoque(c.an);
        EXPECT_EQ(pos(e, c.t0).anomalie_moy, 90.0 * DEG_RAD) << c.an;
        EXPECT_GT(std::fabs(pos(e, c.t0 + 0.01).anomalie_moy - 90.0 * DEG_RAD), 0.1) << c.an;  // and not a day off
    }

    // one period 2 pi / n later the anomaly is back
    Etat e = etat_epoque(1950);
    const double p = periode_j(e.orbite.orb_demi);
    EXPECT_NEAR(pos(e, p).anomalie_moy, 90.0 * DEG_RAD, 1e-8);
    // a quarter period before the epoch: 90 - 90 = 0 deg, i.e. 0 or 2 pi
    const double m = pos(e, -p / 4.0).anomalie_moy;
    EXPECT_TRUE(m < 1e-8 || m > DEUX_PI - 1e-8) << m;
    // before the epoch the reduced anomaly is still in [0, 2 pi)
    EXPECT_TRUE(pos(e, -0.37).anomalie_moy >= 0.0 && e.orb.anomalie_moy < DEUX_PI) << e.orb.anomalie_moy;
}

TEST(OrbPosition, CirculaireEquatorialeFinie) {
    // default orbit: i = e = 0, a = 7174 km. With the substitutions e = 1e-07,
    // i = 5e-06 deg: r = a (1 - e cos E) within 1e-07 a, speed sqrt(mu / a)
    // = 7.453987656052437 km/s, prograde in the equator (h along +z).
    // (A NaN anywhere fails the bounds below.)
    Etat e;
    for (double j : {18628.0, 18628.3, 18700.77}) {
        SCOPED_TRACE(j);
        orb_position(e, j);
        ASSERT_FALSE(e.faute);
        const Vec3 &p = e.orb.sat_pos, &v = e.orb.sat_vit;
        EXPECT_NEAR(norme(p), 7174.0, 7174.0 * 1.1e-7);
        EXPECT_NEAR(norme(v), 7.453987656052437, 1e-5);
        EXPECT_NEAR(p[2], 0.0, 7174.0 * 5e-06 * DEG_RAD * 1.01);
        EXPECT_GT(p[0] * v[1] - p[1] * v[0], 0.0);
        EXPECT_NEAR(norme(e.orb.vec_nadir), 1.0, 1e-15);
        EXPECT_NEAR(norme(e.orb.vec_soleil), 1.0, 1e-15);
    }
    // the substitutions touch copies only
    EXPECT_EQ(e.orbite.orb_inclinaison, 0.0);
    EXPECT_EQ(e.orbite.orb_excentricite, 0.0);
}

TEST(OrbPosition, MemeDateMemesBits) {
    // Same date, same bits: after another date, after a change of the shown
    // mean motion (the rate comes from orb_demi), in a copy of the state.
    Etat e = etat({.orb_inclinaison = 98.2, .orb_ascension = 120.0, .orb_excentricite = 0.01, .orb_argument = 33.0});
    const SortiesOrbite premier = pos(e, 18640.125);
    orb_position(e, 18641.5);
    EXPECT_EQ(bits(premier), bits(pos(e, 18640.125)));
    e.orbite.orb_moy_mvt = 3.0;
    Etat copie = e;
    EXPECT_EQ(bits(premier), bits(pos(copie, 18640.125)));

    // Each element changed in a state that has already run must give what a
    // fresh state gives: nothing derived from the old elements may linger.
    const std::function<void(Orbite&)> changes[] = {
        [](Orbite& o) { o.orb_demi = 7400.0; },       [](Orbite& o) { o.orb_excentricite = 0.2; },
        [](Orbite& o) { o.orb_inclinaison = 0.0; },   [](Orbite& o) { o.orb_argument = -70.0; },
        [](Orbite& o) { o.orb_ascension = 0.0; },     [](Orbite& o) { o.orb_anomalie = 10.0; },
        [](Orbite& o) { o.orb_an = 1999; },           [](Orbite& o) { o.orb_jour = 3.25; }};
    for (std::size_t k = 0; k < std::size(changes); ++k) {
        Etat neuf = e;
        neuf.orb = SortiesOrbite{};
        changes[k](e.orbite);
        changes[k](neuf.orbite);
        EXPECT_EQ(bits(pos(neuf, 18640.125)), bits(pos(e, 18640.125))) << "change " << k;
    }
}

TEST(OrbPosition, ElliptiqueEtNoeudRameneA1950) {
    // a = 8000, e = 0.1: r = a (1 - e) = 7200 at m = 0 and a (1 + e) = 8800 at
    // m = 180 deg; vis-viva v^2 = mu (2/r - 1/a).
    Etat e = etat({.orb_inclinaison = 50.0, .orb_excentricite = 0.1, .orb_an = 1950, .orb_jour = 1.0, .orb_demi = 8000.0});
    for (auto [m, r] : {std::pair{0.0, 7200.0}, std::pair{180.0, 8800.0}}) {
        e.orbite.orb_anomalie = m;
        EXPECT_NEAR(norme(pos(e, 0.0).sat_pos), r, 1e-8) << m;
        EXPECT_NEAR(norme(e.orb.sat_vit), std::sqrt(MU * (2.0 / r - 1.0 / 8000.0)), 1e-10) << m;
    }

    // Epoch 2000-01-01: correction 0.05 * 12.81161661111 = 0.6405808305555 deg.
    // Polar circular orbit, perigee argument 0, anomaly 0: the satellite sits
    // on the node, at longitude (node - correction) in the 1950 frame.
    Etat n = etat({.orb_inclinaison = 90.0, .orb_ascension = 30.6405808305555, .orb_an = 2000, .orb_jour = 1.0});
    const Vec3& p = pos(n, 18262.0).sat_pos;
    EXPECT_NEAR(std::atan2(p[1], p[0]), 30.0 * DEG_RAD, 1e-9);
    EXPECT_EQ(ascension_1950(n.orbite, 0.0), 360.0 - 0.6405808305555);
}

TEST(OrbPosition, OmbreDuConeEtFautesSignaleesSansBoucler) {
    // Equatorial circular orbit at the 2001 March equinox (Sun within half a
    // degree of the equator): the satellite is in the shadow while the angle
    // between nadir and Sun is below asin(6428 / a), a fraction
    // asin(6428 / 7174) / pi = 0.353549 of the orbit.
    Etat e;
    const double p = periode_j(e.orbite.orb_demi);
    const int n = 20000;
    int ombre = 0;
    for (int k = 0; k < n; ++k) {
        EXPECT_TRUE(pos(e, 18628.0 + 79.55 + p * k / n).eclipse == VRAI || e.orb.eclipse == FAUX) << e.orb.eclipse;
        ombre += e.orb.eclipse == VRAI;
    }
    EXPECT_NEAR(static_cast<double>(ombre) / n, 0.353549, 0.001);

    // below the 6428 km shadow radius: fault with the date, eclipse defined
    Etat b = etat({.orb_demi = 6400.0});
    EXPECT_EQ(pos(b, 18650.25).eclipse, FAUX);
    EXPECT_EQ(std::tuple(b.faute.code, b.faute.date), std::tuple(CodeErreur::sous_rayon_ombre, 18650.25));

    // a NaN eccentricity never converges: the Newton cap ends it
    Etat f = etat({.orb_excentricite = std::nan("")});
    orb_position(f, 18650.5);
    EXPECT_EQ(std::tuple(f.faute.code, f.faute.detail, f.faute.date),
              std::tuple(CodeErreur::non_convergence, std::string("équation de Kepler"), 18650.5));
}

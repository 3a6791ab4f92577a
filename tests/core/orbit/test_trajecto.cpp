// Keplerian propagation: epoch handling, the substitutions for circular
// equatorial orbits, repeatability, the shadow cone and the reported faults.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>

#include "core/etat.h"
#include "core/orbit/orb_trajecto.h"
#include "core/shell/types.h"

using namespace kestrel;

namespace {
constexpr double MU = 398601.3;

bool fini(const Vec3& v) { return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]); }
double norme(const Vec3& v) { return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]); }

// Field by field, bit for bit (the record has padding that memcmp would read).
bool memes_bits(const SortiesOrbite& a, const SortiesOrbite& b) {
    auto v = [](const Vec3& x, const Vec3& y) { return std::memcmp(x.data(), y.data(), sizeof(Vec3)) == 0; };
    auto d = [](double x, double y) { return std::memcmp(&x, &y, sizeof(double)) == 0; };
    return v(a.sat_pos, b.sat_pos) && v(a.sat_vit, b.sat_vit) && v(a.soleil_pos, b.soleil_pos) &&
           v(a.vec_nadir, b.vec_nadir) && v(a.vec_soleil, b.vec_soleil) && a.eclipse == b.eclipse &&
           d(a.anomalie_moy, b.anomalie_moy) && d(a.sat_lon, b.sat_lon) && d(a.sat_lat, b.sat_lat) &&
           d(a.sat_alt, b.sat_alt);
}

// Epoch day 1 of `an`, 90 deg of mean anomaly at the epoch.
Etat etat_epoque(int an) {
    Etat e;
    e.orbite.orb_an = static_cast<int16_t>(an);
    e.orbite.orb_jour = 1.0;
    e.orbite.orb_anomalie = 90.0;
    return e;
}
}  // namespace

TEST(OrbPosition, DateDEpoqueParAnnee) {
    // t0 by four-year blocks from 1900: 1950 -> 48*365.25 + 2*365 + 1 - 18263
    // = 0; 1951 -> 17532 + 3*365 + 1 - 18263 = 365; 1952 -> 52*365.25 - 18263
    // = 730. At j = t0 the mean anomaly is exactly the epoch's, 90 deg.
    const struct {
        int an;
        double t0;
    } cas[] = {{1950, 0.0}, {1951, 365.0}, {1952, 730.0}, {2001, 18628.0}};
    for (const auto& c : cas) {
        Etat e = etat_epoque(c.an);
        orb_position(e, c.t0);
        EXPECT_EQ(e.orb.anomalie_moy, 90.0 * DEG_RAD) << c.an;
        orb_position(e, c.t0 + 0.01);  // and not a day off
        EXPECT_GT(std::fabs(e.orb.anomalie_moy - 90.0 * DEG_RAD), 0.1) << c.an;
    }
}

TEST(OrbPosition, AnomalieAvanceAuTauxDuDemiGrandAxe) {
    // n = sqrt(mu / a) / a rad/s; one period 2 pi / n later the anomaly is back.
    Etat e = etat_epoque(1950);
    const double a = e.orbite.orb_demi;
    const double n = std::sqrt(MU / a) / a;
    const double periode_j = 2.0 * M_PI / n / 86400.0;
    orb_position(e, periode_j);
    EXPECT_NEAR(e.orb.anomalie_moy, 90.0 * DEG_RAD, 1e-8);
    // a quarter period before the epoch: 90 - 90 = 0 deg, i.e. 0 or 2 pi
    orb_position(e, -periode_j / 4.0);
    const double m = e.orb.anomalie_moy;
    EXPECT_TRUE(m < 1e-8 || m > DEUX_PI - 1e-8) << m;

    // before the epoch the reduced anomaly is still in [0, 2 pi)
    orb_position(e, -0.37);
    EXPECT_GE(e.orb.anomalie_moy, 0.0);
    EXPECT_LT(e.orb.anomalie_moy, DEUX_PI);
}

TEST(OrbPosition, CirculaireEquatorialeFinie) {
    // default orbit: i = e = 0, a = 7174 km. With the substitutions e = 1e-07,
    // i = 5e-06 deg: r = a (1 - e cos E) within 1e-07 a, speed sqrt(mu / a)
    // = 7.453987656052437 km/s, prograde in the equator (h along +z).
    Etat e;
    for (double j : {18628.0, 18628.3, 18700.77}) {
        orb_position(e, j);
        ASSERT_FALSE(e.faute);
        ASSERT_TRUE(fini(e.orb.sat_pos));
        ASSERT_TRUE(fini(e.orb.sat_vit));
        EXPECT_NEAR(norme(e.orb.sat_pos), 7174.0, 7174.0 * 1.1e-7);
        EXPECT_NEAR(norme(e.orb.sat_vit), 7.453987656052437, 1e-5);
        EXPECT_NEAR(e.orb.sat_pos[2], 0.0, 7174.0 * 5e-06 * DEG_RAD * 1.01);
        const double hz = e.orb.sat_pos[0] * e.orb.sat_vit[1] - e.orb.sat_pos[1] * e.orb.sat_vit[0];
        EXPECT_GT(hz, 0.0);
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
    Etat e;
    e.orbite.orb_inclinaison = 98.2;
    e.orbite.orb_excentricite = 0.01;
    e.orbite.orb_argument = 33.0;
    e.orbite.orb_ascension = 120.0;
    orb_position(e, 18640.125);
    const SortiesOrbite premier = e.orb;
    orb_position(e, 18641.5);
    orb_position(e, 18640.125);
    EXPECT_TRUE(memes_bits(premier, e.orb));
    e.orbite.orb_moy_mvt = 3.0;
    Etat copie = e;
    orb_position(copie, 18640.125);
    EXPECT_TRUE(memes_bits(premier, copie.orb));

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
        orb_position(e, 18640.125);
        orb_position(neuf, 18640.125);
        EXPECT_TRUE(memes_bits(neuf.orb, e.orb)) << "change " << k;
    }
}

TEST(OrbPosition, ElliptiqueAuPerigeeEtALApogee) {
    // a = 8000, e = 0.1: r = a (1 - e) = 7200 at m = 0 and a (1 + e) = 8800 at
    // m = 180 deg; vis-viva v^2 = mu (2/r - 1/a).
    Etat e = etat_epoque(1950);
    e.orbite.orb_demi = 8000.0;
    e.orbite.orb_excentricite = 0.1;
    e.orbite.orb_inclinaison = 50.0;
    e.orbite.orb_anomalie = 0.0;
    orb_position(e, 0.0);
    EXPECT_NEAR(norme(e.orb.sat_pos), 7200.0, 1e-8);
    EXPECT_NEAR(norme(e.orb.sat_vit), std::sqrt(MU * (2.0 / 7200.0 - 1.0 / 8000.0)), 1e-10);
    e.orbite.orb_anomalie = 180.0;
    orb_position(e, 0.0);
    EXPECT_NEAR(norme(e.orb.sat_pos), 8800.0, 1e-8);
    EXPECT_NEAR(norme(e.orb.sat_vit), std::sqrt(MU * (2.0 / 8800.0 - 1.0 / 8000.0)), 1e-10);
}

TEST(OrbPosition, NoeudRameneA1950) {
    // Epoch 2000-01-01: correction 0.05 * 12.81161661111 = 0.6405808305555 deg.
    // Polar circular orbit, perigee argument 0, anomaly 0: the satellite sits
    // on the node, at longitude (node - correction) in the 1950 frame.
    Etat e = etat_epoque(2000);
    e.orbite.orb_anomalie = 0.0;
    e.orbite.orb_inclinaison = 90.0;
    e.orbite.orb_ascension = 30.6405808305555;
    orb_position(e, 18262.0);
    const Vec3& p = e.orb.sat_pos;
    EXPECT_NEAR(std::atan2(p[1], p[0]), 30.0 * DEG_RAD, 1e-9);
    EXPECT_EQ(ascension_1950(e.orbite, 0.0), 360.0 - 0.6405808305555);
}

TEST(OrbPosition, OmbreDuCone) {
    // Equatorial circular orbit at the 2001 March equinox (Sun within half a
    // degree of the equator): the satellite is in the shadow while the angle
    // between nadir and Sun is below asin(6428 / a), a fraction
    // asin(6428 / 7174) / pi = 0.353549 of the orbit.
    Etat e;
    const double a = e.orbite.orb_demi;
    const double periode_j = 2.0 * M_PI / (std::sqrt(MU / a) / a) / 86400.0;
    const int n = 20000;
    int ombre = 0;
    for (int k = 0; k < n; ++k) {
        orb_position(e, 18628.0 + 79.55 + periode_j * k / n);
        if (e.orb.eclipse == VRAI) ++ombre;
        else EXPECT_EQ(e.orb.eclipse, FAUX);
    }
    EXPECT_NEAR(static_cast<double>(ombre) / n, 0.353549, 0.001);

}

TEST(OrbPosition, FautesSignaleesSansBoucler) {
    // below the 6428 km shadow radius: fault with the date, eclipse defined
    Etat e;
    e.orbite.orb_demi = 6400.0;
    orb_position(e, 18650.25);
    EXPECT_EQ(e.faute.code, CodeErreur::sous_rayon_ombre);
    EXPECT_EQ(e.faute.date, 18650.25);
    EXPECT_EQ(e.orb.eclipse, FAUX);

    // a NaN eccentricity never converges: the Newton cap ends it
    Etat f;
    f.orbite.orb_excentricite = std::nan("");
    orb_position(f, 18650.5);
    EXPECT_EQ(f.faute.code, CodeErreur::non_convergence);
    EXPECT_EQ(f.faute.detail, "équation de Kepler");
    EXPECT_EQ(f.faute.date, 18650.5);
}

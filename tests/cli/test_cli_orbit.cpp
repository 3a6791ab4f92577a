// kestrel orbit on the built program: the header, the number of dates for a
// known period and step, the first row at the epoch, and refused arguments.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "cli/outils_cli.h"

#include "core/etat/etat.h"
#include "core/project/fichiers_binaires.h"

using namespace kestrel::test;

static const char* const ENTETE =
    "j,sat_x,sat_y,sat_z,vit_x,vit_y,vit_z,sun_x,sun_y,sun_z,eclipse,anomalie_moy,lon,lat,alt";

// Exit code, standard output by lines, standard error.
static std::tuple<int, std::vector<std::string>, std::string> lance_orbit(const std::string& arguments) {
    const Resultat r = lance("orbit " + arguments);
    return {r.code, lignes(r.out), r.err};
}
static double date(const std::string& ligne) { return std::stod(champs(ligne)[0]); }

TEST(CliOrbit, PeriodeParDefautUneOrbite) {
    // Default orbit: epoch 2001, day 80.55001 -> j = 18628 + 79.55001; the
    // period is 1 / 15 day = 5760 s, 48 steps of 120 s: 49 dates.
    const auto [code, l, err] = lance_orbit("");
    ASSERT_EQ(code, 0) << err;
    ASSERT_EQ(l.size(), 1u + 49u);
    EXPECT_EQ(l[0], ENTETE);
    for (size_t k = 1; k < l.size(); ++k) {
        const auto c = champs(l[k]);
        ASSERT_EQ(c.size(), 15u) << k;
        EXPECT_TRUE(c[10] == "-1" || c[10] == "0") << c[10];
    }
    EXPECT_EQ(date(l[1]), 18707.55001);
    EXPECT_EQ(date(l[2]), 18707.55001 + 120.0 / 86400.0);
}

TEST(CliOrbit, PeriodeEtPasDonnes) {
    const struct { const char* args; double debut; size_t dates; } cas[] = {
        // half a day every 600 s: 72 steps, 73 dates
        {"--start 20000 --end 20000.5 --step 600", 20000.0, 73},
        // calendar dates: 2001-03-21 is day 18628 + 31 + 28 + 20 = 18707;
        // one hour every 60 s: 61 dates
        {"--start 2001-03-21T00:00:00 --end 2001-03-21T01:00:00 --step 60", 18707.0, 61},
        // every fourth year is a leap year here, 2100 too: 1 January 2100 is 150
        // years of 365 days and 37 leap days (1952..2096) after 1950; then 31 + 28;
        // two minutes at the default 120 s: 2 dates
        {"--start 2100-02-29T00:00:00 --end 2100-02-29T00:02:00", 150.0 * 365 + 37 + 59, 2}};
    for (const auto& c : cas) {
        const auto [code, l, err] = lance_orbit(c.args);
        ASSERT_EQ(code, 0) << c.args << ": " << err;
        EXPECT_EQ(l.size(), 1u + c.dates) << c.args;
        EXPECT_EQ(date(l[1]), c.debut) << c.args;
    }
}

TEST(CliOrbit, ArgumentsRefuses) {
    for (const char* a : {"--start 2001-13-01T00:00:00", "--start hier", "--end 2001-02-30T25:00:00",
                          "--start 2001-02-29T00:00:00", "--start 2002-04-31T00:00:00", "--step -60"}) {
        const auto [code, l, err] = lance_orbit(a);
        EXPECT_EQ(code, 2) << a;
        EXPECT_TRUE(l.empty()) << a;
        EXPECT_FALSE(err.empty()) << a;
        EXPECT_EQ(err.find('\n'), err.size() - 1) << a << ": " << err;  // one line
    }
}

TEST(CliOrbit, FauteArreteLaMarcheLignesGardees) {
    // a = 7000 km, e = 0.1: perigee 6300 km, inside the 6428 km shadow radius.
    // Starting at the apogee (anomaly 180), the rows before the perigee are
    // written, then the run stops with the French message and exit 1.
    kestrel::Etat e;
    e.orbite = {.orb_excentricite = 0.1, .orb_anomalie = 180.0, .orb_demi = 7000.0};
    const auto chemin = dossier_test() / "basse.orb";
    ASSERT_FALSE(kestrel::sauve_orbite(e, chemin.string()));
    const auto [code, l, err] = lance_orbit("--orb \"" + chemin.string() + "\"");
    EXPECT_EQ(code, 1);
    EXPECT_NE(err.find("rayon d'ombre de 6428 km"), std::string::npos) << err;
    ASSERT_GT(l.size(), 2u);
    EXPECT_LT(l.size(), 1u + 49u);
    EXPECT_EQ(l[0], ENTETE);
    for (size_t k = 1; k < l.size(); ++k) EXPECT_EQ(champs(l[k]).size(), 15u) << k;
}

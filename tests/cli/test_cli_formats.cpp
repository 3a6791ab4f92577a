// kestrel orbit --format oem|czml on the built program: the OEM header and
// first data line, the CZML document read back as JSON.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <regex>
#include <string>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/outils_cli.h"

using namespace kestrel::test;

TEST(CliFormats, EnTeteEtPremiereLigneOem) {
    const Resultat r = lance("orbit --format oem --step 1200");
    ASSERT_EQ(r.code, 0) << r.err;
    const auto l = lignes(r.out);
    // Default orbit: epoch 2001 day 80.55001, 0.55001 day = 47520.864 s =
    // 13:12:00.864 on 21 March; one period (5760 s) at 1200 s steps: 5 dates,
    // the last 4800 s = 1 h 20 min later.
    const std::vector<std::string> entete = {
        "CCSDS_OEM_VERS = 2.0",
        "",  // creation date, checked below
        "ORIGINATOR = KESTREL",
        "",
        "META_START",
        "COMMENT Keplerian orbit computed by KESTREL. REF_FRAME EME1950: inertial frame of the mean",
        "COMMENT equator and equinox of 1950 (B1950), the frame of the program's orbit model; not EME2000.",
        "OBJECT_NAME = KESTREL",
        "OBJECT_ID = UNKNOWN",
        "CENTER_NAME = EARTH",
        "REF_FRAME = EME1950",
        "TIME_SYSTEM = UTC",
        "START_TIME = 2001-03-21T13:12:00.864",
        "STOP_TIME = 2001-03-21T14:32:00.864",
        "META_STOP",
        ""};
    ASSERT_EQ(l.size(), entete.size() + 5);
    for (std::size_t k = 0; k < entete.size(); ++k)
        if (k != 1) {
            EXPECT_EQ(l[k], entete[k]) << k;
        }
    EXPECT_TRUE(std::regex_match(l[1], std::regex(R"(CREATION_DATE = \d{4}-\d\d-\d\dT\d\d:\d\d:\d\d)"))) << l[1];

    // The data line carries the same state as the CSV row of that date.
    const auto csv = champs(lignes(lance("orbit --step 1200").out)[1]);
    std::vector<double> v;
    for (int k = 1; k <= 6; ++k) v.push_back(std::stod(csv[k]));
    EXPECT_EQ(l[entete.size()], fmt::format("2001-03-21T13:12:00.864 {:.6f} {:.6f} {:.6f} {:.9f} {:.9f} {:.9f}", v[0],
                                            v[1], v[2], v[3], v[4], v[5]));
    EXPECT_EQ(l.back().substr(0, 24), "2001-03-21T14:32:00.864 ");
}

TEST(CliFormats, DocumentCzml) {
    const fs::path tle = dossier_vide("czml") / "iss.tle";
    std::ofstream(tle) << "ISS (ZARYA)\n"
                          "1 25544U 98067A   08264.51782528 -.00002182  00000-0 -11606-4 0  2927\n"
                          "2 25544  51.6416 247.4627 0006703 130.5360 325.0288 15.72125391563537\n";
    const std::string args = "orbit --tle \"" + tle.string() + "\" --step 600";
    const Resultat r = lance(args + " --format czml");
    ASSERT_EQ(r.code, 0) << r.err;
    const nlohmann::json doc = nlohmann::json::parse(r.out);
    ASSERT_TRUE(doc.is_array());
    ASSERT_EQ(doc.size(), 2u);
    EXPECT_EQ(doc[0]["id"], "document");
    EXPECT_EQ(doc[0]["version"], "1.0");
    const auto& sat = doc[1];
    EXPECT_EQ(sat["name"], "ISS (ZARYA)");
    // Epoch 2008 day 264.51782528: 0.51782528 day = 44740.104 s = 12:25:40.104 on 20 September.
    EXPECT_EQ(sat["position"]["epoch"], "2008-09-20T12:25:40.104Z");
    EXPECT_EQ(sat["position"]["referenceFrame"], "FIXED");
    EXPECT_TRUE(sat.contains("path"));

    // As many samples (time, x, y, z) as the CSV has dates.
    const auto csv = lignes(lance(args).out);
    const auto& c = sat["position"]["cartesian"];
    ASSERT_EQ(c.size(), 4 * (csv.size() - 1));
    EXPECT_EQ(c[4].get<double>(), 600.0);
    // The first sample is the first date's position turned about the pole:
    // same length and height above the equator (m), and its longitude atan2(y, x)
    // is the ground point's.
    const auto premier = champs(csv[1]);
    const double x = std::stod(premier[1]), y = std::stod(premier[2]), z = std::stod(premier[3]);
    const double X = c[1], Y = c[2], Z = c[3];
    EXPECT_EQ(c[0].get<double>(), 0.0);
    EXPECT_NEAR(std::hypot(X, Y, Z), 1000.0 * std::hypot(x, y, z), 1e-6);
    EXPECT_NEAR(Z, 1000.0 * z, 1e-6);
    EXPECT_NEAR(std::atan2(Y, X), std::stod(premier[12]), 1e-12);
}

// --tle on the built program: the orbit of a real satellite from its two-line
// element set, on kestrel orbit and on a sub-command that runs a model.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "cli/outils_cli.h"

using namespace kestrel::test;

namespace {

const char* const ISS =
    "ISS (ZARYA)\n"
    "1 25544U 98067A   08264.51782528 -.00002182  00000-0 -11606-4 0  2927\n"
    "2 25544  51.6416 247.4627 0006703 130.5360 325.0288 15.72125391563537\n";

std::string ecrit_tle(const std::string& nom, const std::string& texte) {
    const fs::path p = dossier_vide("tle") / nom;
    std::ofstream(p) << texte;
    return p.string();
}

}  // namespace

TEST(CliTle, OrbiteDUnSatelliteReel) {
    const std::string tle = ecrit_tle("iss.tle", ISS);
    const Resultat r = lance("orbit --tle \"" + tle + "\" --step 600");
    ASSERT_EQ(r.code, 0) << r.err;
    const auto l = lignes(r.out);
    // Epoch 2008 day 264.51782528: 58 years and 14 leap days (1952..2004)
    // after 1950, 58 * 365 + 14 = 21184, + 263.51782528 = 21447.51782528.
    // One period 1 / 15.72125391 day = 5495.7 s: 600 s steps give 10 dates.
    ASSERT_EQ(l.size(), 1u + 10u);
    EXPECT_DOUBLE_EQ(std::stod(champs(l[1])[0]), 21447.51782528);
    // Height between perigee and apogee: a = 6730.97 km, e = 0.00067, over
    // an Earth of 6357 to 6378 km: 340 to 380 km.
    for (std::size_t k = 1; k < l.size(); ++k) {
        const double alt = std::stod(champs(l[k])[14]);
        EXPECT_TRUE(alt > 340 && alt < 380) << alt;
    }

    // A model run takes it too.
    const Resultat p = lance("power --tle \"" + tle + "\" --step 600");
    EXPECT_EQ(p.code, 0) << p.err;
}

TEST(CliTle, Refus) {
    // A wrong checksum: one French line naming line and column, exit 1.
    std::string faux = ISS;
    faux[faux.size() - 2] = '8';
    const Resultat r = lance("orbit --tle \"" + ecrit_tle("faux.tle", faux) + "\"");
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.out.empty());
    EXPECT_NE(r.err.find("Erreur de lecture du TLE, ligne 2, colonne 69 : somme de contrôle 8 au lieu de 7"),
              std::string::npos)
        << r.err;
}

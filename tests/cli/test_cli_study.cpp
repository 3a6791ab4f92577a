// kestrel study battery | generator on the built binary: summary lines, the
// CSV of samples or per-panel columns, the date test and the option checks.
#include <gtest/gtest.h>

#include <string>

#include "cli/outils_cli.h"

using namespace kestrel::test;

TEST(CliStudy, BatteryPrintsDodRechargeTimeThenOneRowPerTenSeconds) {
    // 10 min at 1C and 25 °C, recharge at 0.5C with k = 1: 601 / (0.99485631 * 3600)
    // = 0.1678 taken (DOD 16), put back in ceil(0.1678 * 7200) = 1209 s.
    const Resultat r = lance("study battery --tecl 10 --temp 25 --k 1 --vmax 2 --ich 0.5 --mode current --current 1");
    ASSERT_EQ(r.code, 0) << r.err;
    const auto l = lignes(r.out);
    ASSERT_GE(l.size(), 3u);
    EXPECT_EQ(l[0], "DOD %,16");
    EXPECT_EQ(l[1], "Temps de recharge,00:20:09");
    EXPECT_EQ(l[2], "t,phase,s,v,i");
    // Discharge rows t = 0..600 by 10, then recharge rows t = 610..1800.
    ASSERT_EQ(l.size(), 3u + 61u + 120u);
    EXPECT_EQ(champs(l[3])[0], "0");
    EXPECT_EQ(champs(l[3])[1], "D");
    EXPECT_EQ(champs(l[3])[4], "1");
    EXPECT_EQ(champs(l[63])[0], "600");
    EXPECT_EQ(champs(l[64])[0], "610");
    EXPECT_EQ(champs(l[64])[1], "C");
    EXPECT_EQ(champs(l.back())[0], "1800");
    for (std::size_t i = 3; i < l.size(); ++i) EXPECT_EQ(champs(l[i]).size(), 5u) << i;
}

TEST(CliStudy, BatteryOptionsOutsideTheirRangesAreRefused) {
    for (const char* args : {"--k 0", "--ich -1", "--temp -60", "--mode both", "--tecl abc"}) {
        const Resultat r = lance(std::string("study battery ") + args);
        EXPECT_EQ(r.code, 2) << args;
        EXPECT_TRUE(r.out.empty()) << args;
    }
    EXPECT_NE(lance("study battery --k 0").err.find("Valeur hors limite !!"), std::string::npos);
}

TEST(CliStudy, GeneratorColumnsByConfigurationWithUnitsAndASummary) {
    struct Cas {
        const char* projet;
        const char* vue;
        std::vector<std::string> entete;  // after "date (j),eclipse"
    };
    const Cas cas[] = {
        {"panneaux_externes", "temperature", {"Panneau 1 (°C)", "Maximum (°C)", "Minimum (°C)"}},
        {"quatre_faces", "power", {"Panneau 1 (W)", "Panneau 2 (W)", "Panneau 3 (W)", "Panneau 4 (W)"}},
        {"panneaux_externes", "flux",
         {"Incidence solaire (°)", "Incidence albédo (°)", "Flux solaire direct (W/m²)", "Flux albédo (W/m²)",
          "Flux solaire + albédo (W/m²)", "Flux cellules (W/m²)", "Orientation courante (°)",
          "Orientation optimale (°)"}},
    };
    for (const Cas& c : cas) {
        // One hour at 600 s from the example's own start: 7 rows.
        const Resultat r = lance(std::string("study generator --pwr \"" KESTREL_SOURCE_DIR "/examples/") + c.projet +
                                 ".pwr\" --view " + c.vue + " --start 18707.55001 --end 18707.591676666667 --step 600");
        ASSERT_EQ(r.code, 0) << c.projet << r.err;
        const auto l = lignes(r.out);
        ASSERT_EQ(l.size(), 8u) << c.projet;
        auto entete = champs(l[0]);
        ASSERT_GE(entete.size(), 2u);
        EXPECT_EQ(entete[0], "date (j)");
        EXPECT_EQ(entete[1], "eclipse");
        EXPECT_EQ(std::vector<std::string>(entete.begin() + 2, entete.end()), c.entete) << c.projet;
        EXPECT_NE(r.err.find("Simulation panneaux solaires : 7 pas"), std::string::npos) << r.err;
        EXPECT_NE(r.err.find(c.entete[0].substr(0, c.entete[0].find(" (")) + " : max "), std::string::npos) << r.err;
    }
    // The cylinder has 36 strips.
    const Resultat cyl = lance("study generator --pwr \"" KESTREL_SOURCE_DIR
                               "/examples/cylindre.pwr\" --view power --end 18707.56");
    ASSERT_EQ(cyl.code, 0) << cyl.err;
    EXPECT_EQ(champs(lignes(cyl.out)[0]).size(), 2u + 36u);
    EXPECT_EQ(champs(lignes(cyl.out)[0]).back(), "Panneau 36 (W)");
}

TEST(CliStudy, GeneratorRefusesAStartNotAfterTheCellsDate) {
    // "Date initiale cellules" of a new project: day 17897.
    const Resultat r = lance("study generator --start 17897 --end 17898");
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.err.find("Attention, la date initiale des panneaux (données thermiques) est postérieure à la "
                         "date courante"), std::string::npos) << r.err;
    EXPECT_TRUE(r.out.empty());
    EXPECT_EQ(lance("study generator --view angle").code, 2);
    EXPECT_EQ(lance("study").code, 2);
}

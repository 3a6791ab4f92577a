// kestrel study battery | generator on the built binary: the output's shape
// and the option checks (the figures are the core tests').
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
    ASSERT_EQ(l.size(), 3u + 61u + 120u);  // discharge t = 0..600, recharge t = 610..1800, by 10 s
    EXPECT_EQ(l[0], "DOD %,16");
    EXPECT_EQ(l[1], "Temps de recharge,00:20:09");
    EXPECT_EQ(l[2], "t,phase,s,v,i");
    // First row at t = 0 in discharge at 1C (its s and v are the core test's).
    const auto premier = champs(l[3]);
    ASSERT_EQ(premier.size(), 5u);
    EXPECT_EQ(premier[0] + premier[1] + premier[4], "0D1");
    EXPECT_EQ(champs(l[64])[1], "C");
    EXPECT_EQ(champs(l.back())[0], "1800");
    // a limit of the study's checks, a choice, a number that does not read
    for (const char* args : {"--k 0", "--mode both", "--tecl abc"}) {
        const Resultat refus = lance(std::string("study battery ") + args);
        EXPECT_EQ(refus.code, 2) << args;
        EXPECT_TRUE(refus.out.empty()) << args;
    }
}

TEST(CliStudy, GeneratorTableWithUnitsAndSummary) {
    // One hour at 600 s: 7 rows.
    const Resultat r = lance("study generator --pwr \"" KESTREL_SOURCE_DIR
                             "/examples/quatre_faces.pwr\" --view power --start 18707.55001 --end 18707.591676666667 "
                             "--step 600");
    ASSERT_EQ(r.code, 0) << r.err;
    const auto l = lignes(r.out);
    ASSERT_EQ(l.size(), 8u);
    EXPECT_EQ(l[0], "date (j),eclipse,Panneau 1 (W),Panneau 2 (W),Panneau 3 (W),Panneau 4 (W)");
    EXPECT_EQ(champs(l[7]).size(), 6u);
    EXPECT_NE(r.err.find("Simulation panneaux solaires : 7 pas\nPanneau 1 : max "), std::string::npos) << r.err;
}

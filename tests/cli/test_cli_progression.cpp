// The progress line, with a clock the test moves by hand: nothing in the first
// second, then one line per whole percent rewritten in place, a line break at
// the end only if something was shown, and nothing at all when inactive.
#include <gtest/gtest.h>

#include <sstream>

#include "cli/progression.h"

using kestrel::cli::Progression;

TEST(Progression, ApresUneSecondeParPourcentEntier) {
    double t = 0;
    std::ostringstream flux;
    {
        Progression p("power", true, [&] { return t; }, flux);
        p.pourcent(10);  // at 0 s: too early
        t = 0.99;
        p.pourcent(20);
        EXPECT_EQ(flux.str(), "");
        t = 1.0;
        p.pourcent(30.7);  // whole part only
        p.pourcent(30.9);  // same whole percent: no rewrite
        p.date(18000.5, 18000, 18001);  // half-way through the period: 50 %
        p.pourcent(250);   // capped
    }  // the end of the run ends the line
    EXPECT_EQ(flux.str(), "\rpower : 30 %\rpower : 50 %\rpower : 100 %\n");
}

TEST(Progression, CasComptesEtRienQuandInactiveOuCourte) {
    double t = 5;
    std::ostringstream cas, muet, court;
    Progression p("sweep", true, [&] { return t; }, cas);
    t = 7;
    p.compte(3, 6);
    p.termine();
    p.compte(4, 6);  // after the end: nothing more
    EXPECT_EQ(cas.str(), "\rsweep : 3 / 6 cas\n");

    // --quiet or not a terminal: never a byte, whatever the clock says
    Progression q("orbit", false, [&] { return t += 10; }, muet);
    q.pourcent(40);
    q.termine();
    EXPECT_EQ(muet.str(), "");
    // a run shorter than a second leaves no trace, not even the line break
    Progression r("attitude", true, [&] { return 0.0; }, court);
    r.pourcent(100);
    r.termine();
    EXPECT_EQ(court.str(), "");
}

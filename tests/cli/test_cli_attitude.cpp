// kestrel attitude on the built binary: the results file of a short run, and
// a missing data table named on stderr.
#include <gtest/gtest.h>

#include <string>

#include "cli/outils_cli.h"

using namespace kestrel::test;

TEST(CliAttitude, FichierDeResultatsDUnRunCourt) {
    // 60 s at the default 10 s step: steps at 0..60 s (7), every 2nd written (3)
    const fs::path out = dossier_vide("att") / "att.tmp";
    const Resultat s = lance("attitude --start 18000 --end 18000.000694444445 --every 2 --quiet --rates 1,0,0 "
                             "--pointing 0,10,0 --out \"" + out.string() + "\"");
    ASSERT_EQ(s.code, 0) << s.err;
    EXPECT_TRUE(s.err.empty()) << s.err;
    const auto l = lignes(lit_fichier(out));
    ASSERT_EQ(l.size(), 5u + 1u + 3u);
    EXPECT_EQ(l[0], "\"#BeginTime(JulianDays)\",18000\r");
    EXPECT_EQ(l[2], "\"#TimeStep(s)\",10\r");
    // initial record: 1 deg/s on x
    EXPECT_EQ(l[5].substr(0, l[5].find(',', 6) + 1), "18000,1,");
}

TEST(CliAttitude, TableAbsenteNommee) {
    // the binary copied alone into a folder without its data files
    const fs::path exe = dossier_vide("seul") / "kestrel";
    fs::copy_file(KESTREL_EXE, exe);
    const Resultat s = lance("attitude --quiet", exe.string());
    EXPECT_EQ(s.code, 1);
    EXPECT_NE(s.err.find("flux_solaire.txt"), std::string::npos) << s.err;
}

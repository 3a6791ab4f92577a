// kestrel attitude on the built binary: the results file of a short run, the
// option checks, and a missing data table named on stderr.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "cli/outils_cli.h"

namespace {

using namespace kestrel::test;

Resultat lance_att(const std::string& args, const std::string& exe = KESTREL_EXE) {
    return lance("attitude " + args, exe);
}

std::size_t compte_lignes(const fs::path& p) { return lignes(lit_fichier(p)).size(); }

TEST(CliAttitude, FichierDeResultatsDUnRunCourt) {
    // 60 s at the default 10 s step: steps at 0..60 s (7), every 2nd written (3)
    const fs::path out = dossier_test() / "att.tmp";
    fs::remove(out);
    Resultat s = lance_att("--start 18000 --end 18000.000694444445 --every 2 --quiet --rates 1,0,0 "
                                  "--pointing 0,10,0 --out \"" + out.string() + "\"");
    ASSERT_EQ(s.code, 0) << s.err;
    EXPECT_TRUE(s.err.empty()) << s.err;
    EXPECT_EQ(compte_lignes(out), 5u + 1u + 3u);
    std::ifstream f(out, std::ios::binary);
    std::string l;
    std::getline(f, l);
    EXPECT_EQ(l, "\"#BeginTime(JulianDays)\",18000\r");
    std::getline(f, l);
    std::getline(f, l);
    EXPECT_EQ(l, "\"#TimeStep(s)\",10\r");
    std::getline(f, l);
    std::getline(f, l);
    std::getline(f, l);
    // initial record: 1 deg/s on x
    EXPECT_EQ(l.substr(0, l.find(',', 6) + 1), "18000,1,");
}

TEST(CliAttitude, ArgumentsRefuses) {
    EXPECT_EQ(lance_att("--rates 1,2 --quiet").code, 2);
    EXPECT_EQ(lance_att("--every 0 --quiet").code, 2);
    EXPECT_EQ(lance_att("--pointing a,b,c --quiet").code, 2);
}

TEST(CliAttitude, TableAbsenteNommee) {
    // the binary copied alone into a folder without its data files
    const fs::path d = dossier_test() / "seul";
    fs::remove_all(d);
    fs::create_directories(d);
    fs::copy_file(KESTREL_EXE, d / "kestrel");
    Resultat s = lance_att("--quiet", (d / "kestrel").string());
    EXPECT_EQ(s.code, 1);
    EXPECT_NE(s.err.find("flux_solaire.txt"), std::string::npos) << s.err;
}

}  // namespace

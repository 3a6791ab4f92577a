// kestrel project new / show, run as a user would.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>

#include "cli/outils_cli.h"

namespace {

using namespace kestrel::test;

std::string octets(const fs::path& p) { return lit_fichier(p); }

struct Dossier {
    fs::path p = dossier_test() / "projet";
    Dossier() {
        fs::remove_all(p);
        fs::create_directories(p);
    }
    ~Dossier() { fs::remove_all(p); }
};

}  // namespace

TEST(CliProject, NouveauPuisListe) {
    Dossier d;
    const auto pwr = d.p / "n.pwr", att = d.p / "n.att", orb = d.p / "n.orb";
    const Resultat r =
        lance("project new --pwr " + pwr.string() + " --att " + att.string() + " --orb " + orb.string());
    ASSERT_EQ(r.code, 0);
    EXPECT_EQ(octets(pwr), octets(std::string(KESTREL_SOURCE_DIR) + "/tests/data/defaut.pwr"));
    EXPECT_EQ(fs::file_size(att), 820u);
    EXPECT_EQ(fs::file_size(orb), 128u);

    // 279 lines less the 46 comment lines leave 233 fields.
    const Resultat sp = lance("project show " + pwr.string());
    ASSERT_EQ(sp.code, 0);
    EXPECT_EQ(std::count(sp.out.begin(), sp.out.end(), '\n'), 233);
    EXPECT_NE(sp.out.find("cel_isc = 0.53\n"), std::string::npos);
    EXPECT_NE(sp.out.find("ch_pt(3,0) = 120\n"), std::string::npos);
    EXPECT_NE(sp.out.find("opt_panel_ext = -1\n"), std::string::npos);
    EXPECT_NE(sp.out.find("pas_sim = 120\n"), std::string::npos);

    // The face centre of +x on x, 0.225 as written, made 9.0 (0x4022000000000000)
    // in the file: the listing shows the file as stored, not a rebuilt table.
    {
        std::fstream f(att, std::ios::binary | std::ios::in | std::ios::out);
        f.seekp(556 + 6);
        f.write("\x22\x40", 2);
        f.seekp(556);
        f.write("\0\0\0\0\0\0", 6);
    }
    const Resultat sa = lance("project show " + att.string());
    ASSERT_EQ(sa.code, 0);
    // 820 bytes = 101 reals of 8 bytes and 6 words of 2.
    EXPECT_EQ(std::count(sa.out.begin(), sa.out.end(), '\n'), 107);
    EXPECT_NE(sa.out.find("Masse = 50\n"), std::string::npos);
    EXPECT_NE(sa.out.find("I_corps(2,2) = 2.541\n"), std::string::npos);
    EXPECT_NE(sa.out.find("face_c(0,0) = 9\n"), std::string::npos);

    const Resultat so = lance("project show " + orb.string());
    ASSERT_EQ(so.code, 0);
    EXPECT_NE(so.out.find("orb_an = 2001\n"), std::string::npos);
    EXPECT_NE(so.out.find("orb_jour = 80.55001\n"), std::string::npos);
}

TEST(CliProject, Refus) {
    Dossier d;
    EXPECT_EQ(lance("project new").code, 2);                                   // nothing to write
    EXPECT_EQ(lance("project show " + (d.p / "x.txt").string()).code, 2);      // unknown kind
    EXPECT_EQ(lance("project show " + (d.p / "absent.pwr").string()).code, 1);  // unreadable
    EXPECT_EQ(lance("project new --pwr " + (d.p / "non/x.pwr").string()).code, 1);
}

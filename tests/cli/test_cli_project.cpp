// kestrel project new / show, run as a user would.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>

#include "cli/outils_cli.h"

using namespace kestrel::test;

// `project show p`: exit code 0, then each line expected in the listing and its line count.
static void attend_liste(const fs::path& p, long n, std::initializer_list<const char*> attendues) {
    const Resultat r = lance("project show " + p.string());
    ASSERT_EQ(r.code, 0) << r.err;
    if (n >= 0) { EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), n); }
    for (const char* a : attendues) EXPECT_NE(r.out.find(std::string(a) + "\n"), std::string::npos) << a;
}

TEST(CliProject, NouveauPuisListe) {
    const fs::path d = dossier_vide("projet"), pwr = d / "n.pwr", att = d / "n.att", orb = d / "n.orb";
    ASSERT_EQ(lance("project new --pwr " + pwr.string() + " --att " + att.string() + " --orb " + orb.string()).code, 0);
    EXPECT_EQ(lit_fichier(pwr), lit_fichier(KESTREL_SOURCE_DIR "/tests/data/defaut.pwr"));
    EXPECT_EQ(fs::file_size(att), 820u);
    EXPECT_EQ(fs::file_size(orb), 128u);
    // 279 lines less the 46 comment lines leave 233 fields.
    attend_liste(pwr, 233, {"cel_isc = 0.53", "ch_pt(3,0) = 120", "opt_panel_ext = -1", "pas_sim = 120"});

    // The face centre of +x on x, 0.225 as written, made 9.0 (0x4022000000000000)
    // in the file: the listing shows the file as stored, not a rebuilt table.
    std::fstream(att, std::ios::binary | std::ios::in | std::ios::out).seekp(556).write("\0\0\0\0\0\0\x22\x40", 8);
    // 820 bytes = 101 reals of 8 bytes and 6 words of 2.
    attend_liste(att, 107, {"Masse = 50", "I_corps(2,2) = 2.541", "face_c(0,0) = 9"});
    attend_liste(orb, -1, {"orb_an = 2001", "orb_jour = 80.55001"});
}

TEST(CliProject, Refus) {
    const fs::path d = dossier_vide("projet");
    EXPECT_EQ(lance("project new").code, 2);                                   // nothing to write
    EXPECT_EQ(lance("project show " + (d / "x.txt").string()).code, 2);      // unknown kind
    EXPECT_EQ(lance("project show " + (d / "absent.pwr").string()).code, 1);  // unreadable
    EXPECT_EQ(lance("project new --pwr " + (d / "non/x.pwr").string()).code, 1);
}

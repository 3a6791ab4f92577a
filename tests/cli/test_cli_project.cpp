// kestrel project new / show, run as a user would.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

struct Resultat {
    int code = -1;
    std::string sortie;
};

Resultat lance(const std::string& arguments) {
    Resultat r;
    const std::string cmd = std::string(KESTREL_EXE) + " " + arguments + " 2>/dev/null";
    FILE* p = popen(cmd.c_str(), "r");
    if (!p) return r;
    std::array<char, 4096> tampon;
    std::size_t n;
    while ((n = fread(tampon.data(), 1, tampon.size(), p)) > 0) r.sortie.append(tampon.data(), n);
    const int s = pclose(p);
    r.code = WIFEXITED(s) ? WEXITSTATUS(s) : -1;
    return r;
}

std::string octets(const std::filesystem::path& p) {
    std::ifstream f(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

struct Dossier {
    std::filesystem::path p = std::filesystem::temp_directory_path() / "kestrel_cli_project";
    Dossier() {
        std::filesystem::remove_all(p);
        std::filesystem::create_directories(p);
    }
    ~Dossier() { std::filesystem::remove_all(p); }
};

}  // namespace

TEST(CliProject, NouveauPuisListe) {
    Dossier d;
    const auto pwr = d.p / "n.pwr", att = d.p / "n.att", orb = d.p / "n.orb";
    const Resultat r =
        lance("project new --pwr " + pwr.string() + " --att " + att.string() + " --orb " + orb.string());
    ASSERT_EQ(r.code, 0);
    EXPECT_EQ(octets(pwr), octets(std::string(KESTREL_SOURCE_DIR) + "/tests/data/defaut.pwr"));
    EXPECT_EQ(std::filesystem::file_size(att), 820u);
    EXPECT_EQ(std::filesystem::file_size(orb), 128u);

    // 279 lines less the 46 comment lines leave 233 fields.
    const Resultat sp = lance("project show " + pwr.string());
    ASSERT_EQ(sp.code, 0);
    EXPECT_EQ(std::count(sp.sortie.begin(), sp.sortie.end(), '\n'), 233);
    EXPECT_NE(sp.sortie.find("cel_isc = 0.53\n"), std::string::npos);
    EXPECT_NE(sp.sortie.find("ch_pt(3,0) = 120\n"), std::string::npos);
    EXPECT_NE(sp.sortie.find("opt_panel_ext = -1\n"), std::string::npos);
    EXPECT_NE(sp.sortie.find("pas_sim = 120\n"), std::string::npos);

    const Resultat sa = lance("project show " + att.string());
    ASSERT_EQ(sa.code, 0);
    // 820 bytes = 101 reals of 8 bytes and 6 words of 2.
    EXPECT_EQ(std::count(sa.sortie.begin(), sa.sortie.end(), '\n'), 107);
    EXPECT_NE(sa.sortie.find("Masse = 50\n"), std::string::npos);
    EXPECT_NE(sa.sortie.find("I_corps(2,2) = 2.541\n"), std::string::npos);

    const Resultat so = lance("project show " + orb.string());
    ASSERT_EQ(so.code, 0);
    EXPECT_NE(so.sortie.find("orb_an = 2001\n"), std::string::npos);
    EXPECT_NE(so.sortie.find("orb_jour = 80.55001\n"), std::string::npos);
}

TEST(CliProject, Refus) {
    Dossier d;
    EXPECT_EQ(lance("project new").code, 2);                                   // nothing to write
    EXPECT_EQ(lance("project show " + (d.p / "x.txt").string()).code, 2);      // unknown kind
    EXPECT_EQ(lance("project show " + (d.p / "absent.pwr").string()).code, 1);  // unreadable
    EXPECT_EQ(lance("project new --pwr " + (d.p / "non/x.pwr").string()).code, 1);
}

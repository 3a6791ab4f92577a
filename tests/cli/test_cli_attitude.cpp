// kestrel attitude on the built binary: the results file of a short run, the
// option checks, and a missing data table named on stderr.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>

namespace {

namespace fs = std::filesystem;

struct Sortie {
    int code = -1;
    std::string err;
};

Sortie lance(const std::string& exe, const std::string& args) {
    const fs::path err = fs::temp_directory_path() / "kestrel_cli_att_err.txt";
    std::string cmd = "\"" + exe + "\" attitude " + args + " > /dev/null 2> \"" + err.string() + "\"";
    int s = std::system(cmd.c_str());
    Sortie r;
    r.code = WIFEXITED(s) ? WEXITSTATUS(s) : -1;
    std::ifstream f(err);
    r.err.assign(std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>());
    return r;
}

std::size_t compte_lignes(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    std::size_t n = 0;
    for (std::string l; std::getline(f, l);) ++n;
    return n;
}

TEST(CliAttitude, FichierDeResultatsDUnRunCourt) {
    // 60 s at the default 10 s step: steps at 0..60 s (7), every 2nd written (3)
    const fs::path out = fs::temp_directory_path() / "kestrel_cli_att.tmp";
    fs::remove(out);
    Sortie s = lance(KESTREL_EXE, "--start 18000 --end 18000.000694444445 --every 2 --quiet --rates 1,0,0 "
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
    EXPECT_EQ(lance(KESTREL_EXE, "--rates 1,2 --quiet").code, 2);
    EXPECT_EQ(lance(KESTREL_EXE, "--every 0 --quiet").code, 2);
    EXPECT_EQ(lance(KESTREL_EXE, "--pointing a,b,c --quiet").code, 2);
}

TEST(CliAttitude, TableAbsenteNommee) {
    // the binary copied alone into a folder without its data files
    const fs::path d = fs::temp_directory_path() / "kestrel_cli_att_seul";
    fs::remove_all(d);
    fs::create_directories(d);
    fs::copy_file(KESTREL_EXE, d / "kestrel");
    Sortie s = lance((d / "kestrel").string(), "--quiet");
    EXPECT_EQ(s.code, 1);
    EXPECT_NE(s.err.find("flux_solaire.txt"), std::string::npos) << s.err;
}

}  // namespace

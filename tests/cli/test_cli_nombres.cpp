// Numbers in the CSV outputs: the shortest text that reads back as the
// double, and over whole runs the very values the earlier 17-digit form gave.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "cli/sortie.h"
#include "outils_cli.h"

using namespace kestrel::test;
using kestrel::cli::texte_nombre;

namespace {

// FNV-1a (64 bits) over the 8 little-endian bytes of each value, row after row.
struct Empreinte {
    uint64_t h = 0xcbf29ce484222325ULL;
    std::size_t n = 0;
    void ajoute(double x) {
        uint64_t b;
        std::memcpy(&b, &x, 8);
        for (int i = 0; i < 8; ++i, b >>= 8) h = (h ^ (b & 0xff)) * 0x100000001b3ULL;
        ++n;
    }
};

// Significant digits of a number's text: the digits of its mantissa, leading
// and trailing zeros left out ("0.0012" has 2, "1.5e-07" 2, "15300" 3, "-0" 1).
int chiffres(const std::string& t) {
    std::string m;
    for (char c : t) {
        if (c == 'e') break;
        if (c >= '0' && c <= '9' && !(m.empty() && c == '0')) m += c;
    }
    while (!m.empty() && m.back() == '0') m.pop_back();
    return m.empty() ? 1 : static_cast<int>(m.size());
}

// Reads every field after the header; each must be the shortest text of its
// value: one significant digit fewer no longer reads back as it.
Empreinte lit_csv(const std::string& texte, int& pas_le_plus_court) {
    Empreinte e;
    const auto ls = lignes(texte);
    for (std::size_t i = 1; i < ls.size(); ++i) {
        for (const std::string& f : champs(ls[i])) {
            char* fin = nullptr;
            const double x = std::strtod(f.c_str(), &fin);
            EXPECT_EQ(*fin, '\0') << f;
            e.ajoute(x);
            const int d = chiffres(f);
            if (d > 1) {
                char court[320];  // %g of a double never needs more
                std::snprintf(court, sizeof court, "%.*g", d - 1, x);
                if (std::strtod(court, nullptr) == x) ++pas_le_plus_court;
            }
            EXPECT_LE(d, 17) << f;
        }
    }
    return e;
}

}  // namespace

TEST(Nombres, TexteLePlusCourt) {
    // Expected texts from the definition: the fewest significant digits that
    // read back, in fixed form unless the exponent form is shorter.
    const struct {
        double x;
        const char* texte;
    } cas[] = {
        {0.0, "0"},
        {-0.0, "-0"},
        {-7.0, "-7"},
        {9999.0, "9999"},
        {10000.0, "10000"},        // "1e+04" is as long: fixed wins the tie
        {15300.0, "15300"},
        {100000.0, "1e+05"},       // 5 characters against 6
        {123456789.0, "123456789"},
        {0.1, "0.1"},              // nearest double to 1/10, not 0.10000000000000001
        {-0.25, "-0.25"},
        {1e-7, "1e-07"},
        {0.001, "0.001"},
        {1.0 / 3.0, "0.3333333333333333"},  // 16 digits: the 17th is not needed
        {5e-324, "5e-324"},        // smallest subnormal
        {1.7976931348623157e308, "1.7976931348623157e+308"},
        {static_cast<double>(0.2f), "0.20000000298023224"},  // the float widened keeps its value
    };
    for (const auto& c : cas) EXPECT_EQ(texte_nombre(c.x), c.texte) << c.texte;
}

TEST(Nombres, SortieEcritDansLeFichierEnPlusieursBlocs) {
    const fs::path f = dossier_vide("nombres") / "n.csv";
    {
        kestrel::cli::Sortie s(f.string());
        ASSERT_TRUE(s.ok());
        s << "a,b\n";
        s.nombre(0.1) << ',';
        s.nombre(-0.0) << ',';
        s.entier(-42) << '\n';
        // a line of 5000 values, more than one buffer's worth, then more
        // lines than the buffer holds: written in several blocks, in order
        s.ligne(std::vector<double>(5000, 0.25)).ligne(std::vector<double>{1e-7, -3.0});
        for (int i = 0; i < 20000; ++i) s.nombre(1.5) << '\n';
        EXPECT_TRUE(s.ferme());
    }
    const std::string t = lit_fichier(f);
    EXPECT_EQ(t.back(), '\n');
    const auto ls = lignes(t);
    ASSERT_EQ(ls.size(), 2u + 2u + 20000u);
    EXPECT_EQ(ls[0] + ls[1], "a,b0.1,-0,-42");
    std::string quarts = "0.25";
    for (int i = 1; i < 5000; ++i) quarts += ",0.25";
    EXPECT_EQ(ls[2], quarts);
    EXPECT_EQ(ls[3], "1e-07,-3");
    for (std::size_t i = 4; i < ls.size(); ++i) ASSERT_EQ(ls[i], "1.5") << i;
}

// Reference: the same runs written before with 17 significant digits, every
// value read back and fingerprinted (values, rows and fingerprint noted then).
TEST(Nombres, RelusCommeLes17Chiffres) {
    const std::string ex = std::string(KESTREL_SOURCE_DIR) + "/examples/";
    const struct {
        std::string arguments;
        std::size_t valeurs;
        uint64_t empreinte;
    } runs[] = {
        // a day at 60 s: 1441 rows of 133 columns
        {"power --pwr " + ex + "quatre_faces.pwr", 191653, 0x283a201c03305d49ULL},
        // a day at 60 s: 1441 rows of 15 columns
        {"orbit --start 18707.5 --end 18708.5 --step 60", 21615, 0xc5f40e222ab09732ULL},
    };
    for (const auto& r : runs) {
        const Resultat res = lance(r.arguments);
        ASSERT_EQ(res.code, 0) << res.err;
        int pas_court = 0;
        const Empreinte e = lit_csv(res.out, pas_court);
        EXPECT_EQ(e.n, r.valeurs) << r.arguments;
        EXPECT_EQ(e.h, r.empreinte) << r.arguments << ": une valeur relue diffère";
        EXPECT_EQ(pas_court, 0) << r.arguments << ": un nombre s'écrit avec un chiffre de trop";
    }
}

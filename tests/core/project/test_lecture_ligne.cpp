// The token reader on its own: where a token starts and stops, what the
// 14 characters convert to, and what is refused.
#include <gtest/gtest.h>

#include "core/project/lecture_ligne.h"
#include "core/shell/types.h"
#include "outils_fichiers.h"

using namespace kestrel;
using essai::attend;

TEST(LectureLigne, JetonsVirgulesGuillemetsEtCommentaires) {
    // Line 1: two tokens split by a comma. Line 2: a comment with a comma,
    // consumed whole ("!" line: nothing stored). Line 3: a quoted token
    // holding a comma.
    LecteurLignes l("1,5\r\n! note, encore\r\n\"2,5\" x,7\r\n");
    float a = 0, b = 0, c = -1, e = 0, f = 0;
    ASSERT_TRUE(l.lecture_ligne(a) && l.lecture_ligne(b) && l.lecture_ligne(c));
    attend({{"a", a, 1.0f}, {"b", b, 5.0f}, {"c", c, -1.0f}});
    // "2,5" quoted: the comma is inside the token, and "2,5" is no number.
    EXPECT_FALSE(l.lecture_ligne(e));
    EXPECT_EQ(l.erreur().ligne, 3);
    EXPECT_EQ(l.erreur().detail, "2,5");
    EXPECT_FALSE(l.lecture_ligne(f));  // once failed, always failed
    EXPECT_EQ(l.erreur().ligne, 3);

    // Blanks then a value whose label starts past the 14 characters; then a
    // label too close to its value, which reaches the conversion.
    LecteurLignes q("\"2.5\" reste,7\n   \t8             libell\xc3\xa9\n 9   libell\xc3\xa9\n");
    int16_t g = 0;
    ASSERT_TRUE(q.lecture_ligne(e) && q.lecture_ligne(f) && q.lecture_ligne(g));
    attend({{"e", e, 2.5f}, {"f", f, 7.0f}, {"g", g, 8}});
    EXPECT_FALSE(q.lecture_ligne(g));
    EXPECT_EQ(q.erreur().ligne, 3);

    // "12345678901234" are the 14 kept; the 5 after them never reach the
    // conversion. The same text as a date is read whole and fails.
    LecteurLignes n("12345678901234 5\r\n12345678901234 5\r\n");
    double v = 0;
    ASSERT_TRUE(n.lecture_ligne(v));
    EXPECT_EQ(v, 12345678901234.0);
    EXPECT_FALSE(n.lecture_jeton_reel(v));
    EXPECT_EQ(n.erreur().ligne, 2);
}

TEST(LectureLigne, EntiersOctetsEtVerites) {
    // A real in an integer line rounds to nearest, ties to even: 2.5 -> 2,
    // 3.5 -> 4; -0.4 is not zero, so a true truth value.
    LecteurLignes l(" 2.5\n 3.5\n 3E2\n 0\n-0.4\n");
    int16_t a = 0, b = 0, v1 = 5, v2 = 5;
    int32_t c = 0;
    ASSERT_TRUE(l.lecture_ligne(a) && l.lecture_ligne(b) && l.lecture_ligne(c) && l.lecture_ligne_booleen(v1) &&
                l.lecture_ligne_booleen(v2));
    attend({{"a", a, 2}, {"b", b, 4}, {"c", c, 300}, {"v1", v1, FAUX}, {"v2", v2, VRAI}});

    // A byte held in a 16-bit field still stops at 255.
    int16_t oc = 7;
    LecteurLignes p(" 255\n 256\n");
    ASSERT_TRUE(p.lecture_ligne_octet(oc));
    EXPECT_EQ(oc, 255);
    EXPECT_FALSE(p.lecture_ligne_octet(oc));
    EXPECT_EQ(oc, 255);
}

TEST(LectureLigne, SyntaxeDesNombres) {
    const std::vector<std::pair<std::string, double>> bons{
        {".53", 0.53}, {"-.53", -0.53}, {"+4", 4.0}, {"1.2E-03", 0.0012}, {"3.8000E+26", 3.8e26},
        {"7.", 7.0},   {"1e5", 1e5},    {"  12  ", 12.0}};
    for (const auto& [t, v] : bons) {
        double x = 0;
        EXPECT_TRUE(lit_nombre(t, x)) << t;
        EXPECT_EQ(x, v) << t;
    }
    for (const std::string t : {"", " ", ".", "-", "1e", "1e+", "0x10", "inf", "nan", "1,5", "1 2", "--1", "e5"}) {
        double x = 42;
        EXPECT_FALSE(lit_nombre(t, x)) << t;
        EXPECT_EQ(x, 42) << t;
    }
    float f = 0;
    EXPECT_FALSE(lit_nombre("1E+39", f));  // beyond a float
    EXPECT_TRUE(lit_nombre("0.1", f));
    EXPECT_EQ(f, 0.1f);  // converted as a float, not through a double
}

// The token reader on its own: where a token starts and stops, what the
// 14 characters convert to, and what is refused.
#include <gtest/gtest.h>

#include "core/project/lecture_ligne.h"
#include "core/shell/types.h"

using namespace kestrel;

TEST(LectureLigne, JetonsVirgulesGuillemetsEtCommentaires) {
    // Line 1: two tokens split by a comma. Line 2: a comment with a comma,
    // consumed whole. Line 3: a quoted token holding a comma.
    LecteurLignes l("1,5\r\n! note, encore\r\n\"2,5\" x,7\r\n");
    float a = 0, b = 0, c = -1, e = 0, f = 0;
    ASSERT_TRUE(l.lecture_ligne(a));
    ASSERT_TRUE(l.lecture_ligne(b));
    EXPECT_EQ(a, 1.0f);
    EXPECT_EQ(b, 5.0f);
    ASSERT_TRUE(l.lecture_ligne(c));  // "!" line: nothing stored
    EXPECT_EQ(c, -1.0f);
    // "2,5" quoted: the comma is inside the token, and "2,5" is no number.
    EXPECT_FALSE(l.lecture_ligne(e));
    EXPECT_EQ(l.erreur().ligne, 3);
    EXPECT_EQ(l.erreur().detail, "2,5");
    EXPECT_FALSE(l.lecture_ligne(f));  // once failed, always failed
    EXPECT_EQ(l.erreur().ligne, 3);

    // Blanks then a value whose label starts past the 14 characters; then a
    // label too close to its value, which reaches the conversion.
    LecteurLignes q("\"2.5\" reste,7\n   \t8             libell\xc3\xa9\n 9   libell\xc3\xa9\n");
    ASSERT_TRUE(q.lecture_ligne(e));
    ASSERT_TRUE(q.lecture_ligne(f));
    EXPECT_EQ(e, 2.5f);
    EXPECT_EQ(f, 7.0f);
    int16_t g = 0;
    ASSERT_TRUE(q.lecture_ligne(g));
    EXPECT_EQ(g, 8);
    EXPECT_FALSE(q.lecture_ligne(g));
    EXPECT_EQ(q.erreur().ligne, 3);
}

TEST(LectureLigne, QuatorzeCaracteresSeulement) {
    // "12345678901234" are the 14 kept; the 5 after them never reach the
    // conversion. The same text as a date is read whole and fails.
    LecteurLignes l("12345678901234 5\r\n12345678901234 5\r\n");
    double v = 0;
    ASSERT_TRUE(l.lecture_ligne(v));
    EXPECT_EQ(v, 12345678901234.0);
    EXPECT_FALSE(l.lecture_jeton_reel(v));
    EXPECT_EQ(l.erreur().ligne, 2);
}

TEST(LectureLigne, EntiersOctetsEtVerites) {
    // A real in an integer line rounds to nearest, ties to even: 2.5 -> 2, 3.5 -> 4.
    LecteurLignes l(" 2.5\n 3.5\n 3E2\n 0\n-0.4\n");
    int16_t a = 0, b = 0, v1 = 5, v2 = 5;
    int32_t c = 0;
    ASSERT_TRUE(l.lecture_ligne(a));
    ASSERT_TRUE(l.lecture_ligne(b));
    ASSERT_TRUE(l.lecture_ligne(c));
    ASSERT_TRUE(l.lecture_ligne_booleen(v1));
    ASSERT_TRUE(l.lecture_ligne_booleen(v2));
    EXPECT_EQ(a, 2);
    EXPECT_EQ(b, 4);
    EXPECT_EQ(c, 300);
    EXPECT_EQ(v1, FAUX);
    EXPECT_EQ(v2, VRAI);  // -0.4 is not zero

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

// Input checks: what is refused, the exact French wording of each refusal and
// its icon, and the silent clamp.
#include <gtest/gtest.h>

#include "core/shell/validateurs.h"

using namespace kestrel;

TEST(VerifType, NombresAcceptes) {
    double d = -1;
    EXPECT_TRUE(verif_double("12.5", d).ok);
    EXPECT_EQ(d, 12.5);
    EXPECT_TRUE(verif_double(" -3,25 ", d).ok);  // French decimal comma, spaces around
    EXPECT_EQ(d, -3.25);
    EXPECT_TRUE(verif_double("1e-3", d).ok);
    EXPECT_EQ(d, 0.001);

    float f = 0;
    EXPECT_TRUE(verif_simple("0.53", f).ok);
    EXPECT_EQ(f, 0.53f);

    int32_t n = 0;
    EXPECT_TRUE(verif_entier("-42", n).ok);
    EXPECT_EQ(n, -42);
    EXPECT_TRUE(verif_entier("2147483647", n).ok);
    EXPECT_EQ(n, 2147483647);
    EXPECT_TRUE(verif_entier("-2147483648", n).ok);
    EXPECT_EQ(n, INT32_MIN);
}

TEST(VerifType, TexteRefuseValeurGardee) {
    double d = 7.0;
    for (const char* t : {"", "  ", "abc", "1.2.3", "12x", "inf", "nan", "0x10", "--1", "1e400"}) {
        const Verdict v = verif_double(t, d);
        EXPECT_FALSE(v.ok) << t;
        EXPECT_EQ(v.message, "Type de donnée non valide") << t;
        EXPECT_EQ(v.icone, Icone::critique) << t;
    }
    EXPECT_EQ(d, 7.0);

    float f = 1.0f;
    EXPECT_FALSE(verif_simple("1e39", f).ok);  // past the largest single (3.4e38)
    EXPECT_EQ(f, 1.0f);

    int32_t n = 3;
    for (const char* t : {"2.5", "1e3", "2147483648", "-2147483649", "+", "12 3"}) {
        const Verdict v = verif_entier(t, n);
        EXPECT_FALSE(v.ok) << t;
        EXPECT_EQ(v.message, "Type de donnée non valide") << t;
    }
    EXPECT_EQ(n, 3);
}

TEST(VerifBornes, LimitesInclusesOuExclues) {
    EXPECT_TRUE(verif_bornes(0.0, 0.0, 360.0, true, true).ok);
    EXPECT_TRUE(verif_bornes(360.0, 0.0, 360.0, true, true).ok);
    EXPECT_TRUE(verif_bornes(180.0, 0.0, 360.0, false, false).ok);

    // an exclusive upper limit refuses the value equal to it
    Verdict v = verif_bornes(360.0, 0.0, 360.0, true, false);
    EXPECT_FALSE(v.ok);
    EXPECT_EQ(v.message, "Valeur hors limite !! Saisissez une valeur : \n0 <= Valeur < 360");
    EXPECT_EQ(v.icone, Icone::avertissement);

    v = verif_bornes(0.0, 0.0, 1.5, false, true);
    EXPECT_FALSE(v.ok);
    EXPECT_EQ(v.message, "Valeur hors limite !! Saisissez une valeur : \n0 < Valeur <= 1.5");

    v = verif_bornes(-91.0, -90.0, 90.0, true, true);
    EXPECT_EQ(v.message, "Valeur hors limite !! Saisissez une valeur : \n-90 <= Valeur <= 90");
    v = verif_bornes(2.0, 0.0, 1.0, false, false);
    EXPECT_EQ(v.message, "Valeur hors limite !! Saisissez une valeur : \n0 < Valeur < 1");
}

TEST(VerifBornes, UneSeuleLimite) {
    EXPECT_TRUE(verif_max(10.0, 10.0, true).ok);
    Verdict v = verif_max(10.0, 10.0, false);
    EXPECT_EQ(v.message, "Valeur excessive !! Saisissez une valeur < 10");
    EXPECT_EQ(v.icone, Icone::avertissement);
    v = verif_max(11.0, 10.0, true);
    EXPECT_EQ(v.message, "Valeur excessive !! Saisissez une valeur <= 10");

    EXPECT_TRUE(verif_min(0.0, 0.0, true).ok);
    v = verif_min(0.0, 0.0, false);
    EXPECT_EQ(v.message, "Valeur insuffisante! Saisissez une valeur > 0");
    v = verif_min(-1.0, 0.25, true);
    EXPECT_EQ(v.message, "Valeur insuffisante! Saisissez une valeur >= 0.25");
}

TEST(VerifBornes, TexteDesLimites) {
    EXPECT_EQ(texte_limite(360.0), "360");
    EXPECT_EQ(texte_limite(-0.5), "-0.5");
    EXPECT_EQ(texte_limite(0.1), "0.1");  // shortest form that reads back
    EXPECT_EQ(texte_limite(1e-05), "1e-05");
}

TEST(Borne, CorrigeSansMessage) {
    EXPECT_EQ(borne(5.0, 0.0, 1.0), 1.0);
    EXPECT_EQ(borne(-5.0, 0.0, 1.0), 0.0);
    EXPECT_EQ(borne(0.25, 0.0, 1.0), 0.25);
    EXPECT_EQ(borne(1.0, 0.0, 1.0), 1.0);
}

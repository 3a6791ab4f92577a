// Input checks: what is refused, the exact French wording of each refusal and
// its icon, and the silent clamp.
#include <gtest/gtest.h>

#include <tuple>

#include "core/shell/validateurs.h"

using namespace kestrel;

TEST(VerifType, NombresAcceptes) {
    double d = -1;
    // French decimal comma, spaces around
    for (auto [t, v] : {std::pair{"12.5", 12.5}, {" -3,25 ", -3.25}, {"1e-3", 0.001}}) {
        EXPECT_TRUE(verif_double(t, d).ok) << t;
        EXPECT_EQ(d, v) << t;
    }
    float f = 0;
    EXPECT_TRUE(verif_simple("0.53", f).ok);
    EXPECT_EQ(f, 0.53f);
    int32_t n = 0;
    for (auto [t, v] : {std::pair{"-42", -42}, {"2147483647", INT32_MAX}, {"-2147483648", INT32_MIN}}) {
        EXPECT_TRUE(verif_entier(t, n).ok) << t;
        EXPECT_EQ(n, v) << t;
    }
}

TEST(VerifType, TexteRefuseValeurGardee) {
    auto refuse = [](const Verdict& v, const char* t) {
        EXPECT_FALSE(v.ok) << t;
        EXPECT_EQ(v.message, "Type de donnée non valide") << t;
        EXPECT_EQ(v.icone, Icone::critique) << t;
    };
    double d = 7.0;
    for (const char* t : {"", "  ", "abc", "1.2.3", "12x", "inf", "nan", "0x10", "--1", "1e400"})
        refuse(verif_double(t, d), t);
    float f = 1.0f;
    refuse(verif_simple("1e39", f), "1e39");  // past the largest single (3.4e38)
    int32_t n = 3;
    for (const char* t : {"2.5", "1e3", "2147483648", "-2147483649", "+", "12 3"}) refuse(verif_entier(t, n), t);
    EXPECT_EQ(std::tuple(d, f, n), std::tuple(7.0, 1.0f, 3));  // the values are kept
}

TEST(VerifBornes, LimitesEtMessages) {
    // an exclusive limit refuses the value equal to it; "" stands for accepted
    const std::string hors = "Valeur hors limite !! Saisissez une valeur : \n";
    const std::string exc = "Valeur excessive !! Saisissez une valeur ", ins = "Valeur insuffisante! Saisissez une valeur ";
    struct Cas { Verdict v; std::string message; };
    const Cas cas[] = {
        {verif_bornes(0.0, 0.0, 360.0, true, true), ""},
        {verif_bornes(360.0, 0.0, 360.0, true, true), ""},
        {verif_bornes(180.0, 0.0, 360.0, false, false), ""},
        {verif_bornes(360.0, 0.0, 360.0, true, false), hors + "0 <= Valeur < 360"},
        {verif_bornes(0.0, 0.0, 1.5, false, true), hors + "0 < Valeur <= 1.5"},
        {verif_bornes(-91.0, -90.0, 90.0, true, true), hors + "-90 <= Valeur <= 90"},
        {verif_bornes(2.0, 0.0, 1.0, false, false), hors + "0 < Valeur < 1"},
        {verif_max(10.0, 10.0, true), ""},
        {verif_max(10.0, 10.0, false), exc + "< 10"},
        {verif_max(11.0, 10.0, true), exc + "<= 10"},
        {verif_min(0.0, 0.0, true), ""},
        {verif_min(0.0, 0.0, false), ins + "> 0"},
        {verif_min(-1.0, 0.25, true), ins + ">= 0.25"},
    };
    for (const Cas& c : cas) {
        EXPECT_EQ(c.v.ok, c.message.empty()) << c.message;
        EXPECT_EQ(c.v.message, c.message);
        EXPECT_EQ(c.v.icone, c.message.empty() ? Icone::aucune : Icone::avertissement) << c.message;
    }
}

TEST(VerifBornes, TexteDesLimites) {
    // 0.1: the shortest form that reads back
    for (auto [x, t] : {std::pair{360.0, "360"}, {-0.5, "-0.5"}, {0.1, "0.1"}, {1e-05, "1e-05"}})
        EXPECT_EQ(texte_limite(x), t) << x;
}

TEST(Borne, CorrigeSansMessage) {
    for (auto [x, attendu] : {std::pair{5.0, 1.0}, {-5.0, 0.0}, {0.25, 0.25}, {1.0, 1.0}})
        EXPECT_EQ(borne(x, 0.0, 1.0), attendu) << x;
}

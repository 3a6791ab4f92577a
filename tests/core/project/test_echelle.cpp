// Scale rounding of the exploitation graphs and the texts of the rows.
#include <gtest/gtest.h>

#include "core/project/echelle.h"
#include "core/project/table_textes.h"
#include "core/shell/calendrier.h"

using namespace kestrel;

TEST(Echelle, ArronditLimite) {
    // "0.00e+00" text, mantissa m: m <= 2 -> 2, m <= 5 -> 5, else 10, same exponent.
    const struct {
        double x, attendu;
    } cas[] = {
        {3.2e4, 5e4},       // "3.20e+04"
        {2.0e4, 2e4},       // "2.00e+04": m = 2 stays
        {7e-2, 1e-1},       // "7.00e-02": 10 x 1e-2
        {5.0, 5.0},         // m = 5 stays
        {5.01, 10.0},       // "5.01e+00"
        {1.5, 2.0},
        {2.004, 2.0},       // "2.00e+00": the mantissa is read at two decimals
        {0.09996, 0.2},     // "1.00e-01"
        {-3.2e4, -5e4},     // magnitude rounded, sign kept
        {-1e-5, -2e-5},
        {0.0, 0.0},
    };
    for (const auto& c : cas) EXPECT_EQ(arrondit_limite(c.x), c.attendu) << c.x;
}

TEST(Echelle, SignesEtSymetrie) {
    const struct {
        double max, min, max_attendu, min_attendu;
    } cas[] = {
        {32000, 0, 50000, 0},    // all positive: the minimum stays 0
        {12, 0.5, 20, 0},        // a positive minimum goes to 0
        {0, -3, 5, -5},          // negative values only: symmetrical
        {8, -30, 50, -50},       // both signs: the larger magnitude for both
        {-4, -6, 10, -10},       // both negative: max to 0, then symmetrical
        {0, 0, 0, 0},
    };
    for (const auto& c : cas) {
        Echelle e{c.max, c.min};
        e.arrondit();
        EXPECT_EQ(e.max, c.max_attendu) << c.max << " " << c.min;
        EXPECT_EQ(e.min, c.min_attendu) << c.max << " " << c.min;
    }
    // The running limits start at 0 and only widen.
    Echelle e;
    for (double v : {3.0, -1.0, 2.0, 7.5}) e.ajoute(v);
    EXPECT_EQ(e.max, 7.5);
    EXPECT_EQ(e.min, -1.0);
}

TEST(TableTextes, DateDeLigne) {
    const double an2000 = 18262.0;  // 01/01/2000 00:00:00: 25 x 1461 - 18263
    const double huit_heures = an2000 + 1.0 / 3;
    EXPECT_EQ(date_ligne(an2000, 0, 60), "01/01/2000 00:00:00");
    EXPECT_EQ(date_ligne(an2000, 1439, 60), "01/01/2000 23:59:00");
    EXPECT_EQ(date_ligne(an2000, 1440, 60), "02/01/2000 00:00:00");
    EXPECT_EQ(date_ligne(huit_heures, 3, 120), "01/01/2000 08:06:00");
    // 18262.333... x 24 is 7.99999999997 hours: cut to whole seconds the date
    // alone reads a second early; the row's 0.1 s puts it back on 08:00:00.
    Date d;
    jour_vers_date(huit_heures, d);
    EXPECT_EQ(date_vers_texte(d), "01/01/2000 07:59:59");
    EXPECT_EQ(date_ligne(huit_heures, 0, 60), "01/01/2000 08:00:00");
}

TEST(TableTextes, CellulesEtValeurs) {
    TableTextes t(3);
    t.ajoute({"d0", "12.50", "-3.000E+00"}, false);
    t.ajoute({"d1", "", "+2"}, true);
    ASSERT_EQ(t.lignes(), 2u);
    EXPECT_TRUE(t.eclipse(1));
    EXPECT_EQ(t.valeur(0, 1), 12.5);
    EXPECT_EQ(t.valeur(0, 2), -3.0);
    EXPECT_EQ(t.valeur(1, 1), 0.0);
    EXPECT_EQ(t.valeur(1, 2), 2.0);
    const struct {
        const char* texte;
        double v;
    } cas[] = {{" 1.5e+01", 15}, {"abc", 0}, {"0.125 W", 0.125}, {"-0.0", 0}};
    for (const auto& c : cas) EXPECT_EQ(TableTextes::lit_valeur(c.texte), c.v) << c.texte;
    t.vide();
    EXPECT_EQ(t.lignes(), 0u);
}

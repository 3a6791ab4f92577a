// The generator study's texts: dates, the view's picture, empty cells, the
// scale read back from the texts, and the saved tab-separated text.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

#include "core/project/textes_generateur.h"

namespace kestrel {
namespace {

// Two rows of a hand-made result: one panel, temperatures 12.3456 and -4.0004,
// the second row in eclipse; flux view with a missing best angle.
ResultatGenerateur resultat() {
    ResultatGenerateur r;
    r.dates = {18707.55001, 18707.55001 + 600 / 86400.0};
    r.eclipses = {0, 1};
    r.temperature.titres = {"Panneau 1", "Maximum", "Minimum"};
    r.temperature.unites = {"°C", "°C", "°C"};
    r.temperature.valeurs = {12.3456, 12.3456, 12.3456, -4.0004, -4.0004, -4.0004};
    r.flux.titres = {"Flux cellules", "Orientation optimale"};
    r.flux.unites = {"W/m²", "°"};
    r.flux.valeurs = {1361.44, 90.91, 0.04, std::numeric_limits<double>::quiet_NaN()};
    return r;
}

TEST(GeneratorTexts, CellsThroughTheViewPictureAndTheSavedText) {
    const ResultatGenerateur r = resultat();
    const TableTextes t = textes_generateur(r, VueGenerateur::temperature, 600);
    ASSERT_EQ(t.lignes(), 2u);
    ASSERT_EQ(t.colonnes(), 4);
    // 18707.55001 = 21/03/2001 13:12:00.86; 600 s later 13:22:00.86.
    EXPECT_EQ(t.cellule(0, 0), "21/03/2001 13:12:00");
    EXPECT_EQ(t.cellule(1, 0), "21/03/2001 13:22:00");
    EXPECT_EQ(t.cellule(0, 1), "12.346");  // "0.000"
    EXPECT_EQ(t.cellule(1, 3), "-4.000");
    EXPECT_FALSE(t.eclipse(0));
    EXPECT_TRUE(t.eclipse(1));

    const TableTextes f = textes_generateur(r, VueGenerateur::flux, 600);
    EXPECT_EQ(f.cellule(0, 1), "1361.4");  // "0.0"
    EXPECT_EQ(f.cellule(1, 1), "0.0");
    EXPECT_EQ(f.cellule(1, 2), "");  // no best angle

    std::ostringstream out;
    ecrit_texte_generateur(out, r, VueGenerateur::temperature, t);
    EXPECT_EQ(out.str(),
              "Date\tPanneau 1 (°C)\tMaximum (°C)\tMinimum (°C)\n"
              "21/03/2001 13:12:00\t12.346\t12.346\t12.346\n"
              "21/03/2001 13:22:00\t-4.000\t-4.000\t-4.000\n");
}

TEST(GeneratorTexts, ScaleOfTheShownColumnsFromTheirTexts) {
    const ResultatGenerateur r = resultat();
    // 12.346 and -4.000: both signs, made symmetrical at 12.346, rounded up to 2e+01.
    const Echelle e = echelle_colonnes(textes_generateur(r, VueGenerateur::temperature, 600), 1, 6);
    EXPECT_DOUBLE_EQ(e.max, 20);
    EXPECT_DOUBLE_EQ(e.min, -20);
    // Flux columns 1..2: 1361.4 -> 2e+03 with the minimum at 0; the empty cell is no value.
    const Echelle f = echelle_colonnes(textes_generateur(r, VueGenerateur::flux, 600), 1, 6);
    EXPECT_DOUBLE_EQ(f.max, 2000);
    EXPECT_DOUBLE_EQ(f.min, 0);
    // Column 2 alone: 90.9 -> 1e+02.
    EXPECT_DOUBLE_EQ(echelle_colonnes(textes_generateur(r, VueGenerateur::flux, 600), 2, 1).max, 100);
}

}  // namespace
}  // namespace kestrel

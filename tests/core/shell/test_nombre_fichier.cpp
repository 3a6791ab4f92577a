// The project file's number form and the window pictures.
#include <gtest/gtest.h>

#include <limits>

#include "core/shell/format_image.h"
#include "core/shell/nombre_fichier.h"

using namespace kestrel;

TEST(NombreFichier, EntiersEtVerites) {
    EXPECT_EQ(texte_entier(0), " 0 ");
    EXPECT_EQ(texte_entier(17897), " 17897 ");
    EXPECT_EQ(texte_entier(-7), "-7 ");
    EXPECT_EQ(texte_booleen(-1), " 255 ");
    EXPECT_EQ(texte_booleen(1), " 255 ");  // never written as 1
    EXPECT_EQ(texte_booleen(0), " 0 ");
}

TEST(NombreFichier, ReelsSimplePrecision) {
    const std::vector<std::pair<float, std::string>> cas{
        {0.0f, " 0 "},
        {0.53f, " .53 "},                     // no digit before the point below 1
        {-0.53f, "-.53 "},
        {1.0f, " 1 "},
        {12.5f, " 12.5 "},
        {100.0f, " 100 "},
        {0.01f, " .01 "},                     // 0.01 itself stays in plain form
        {0.009f, " 9E-03 "},                  // below 0.01: exponent, two digits
        {0.00025f, " 2.5E-04 "},
        {-1.234567E-05f, "-1.234567E-05 "},   // 14 characters
        {1234567.0f, " 1234567 "},            // 7 integer digits fit
        {1e8f, " 1E+08 "},                    // 9 integer digits do not
        {12345678.0f, " 1.234568E+07 "},      // 7 digits kept though not exact
        {1.0f / 3.0f, " .3333333 "},          // needs 8 to be exact: 7 kept
        {0.1f, " .1 "},                       // 1 digit reads back to the same float
    };
    for (const auto& [v, t] : cas) EXPECT_EQ(texte_reel(v), t) << v;
    EXPECT_EQ(texte_reel(-1.234567E-05f).size(), 14u);
}

TEST(NombreFichier, ReelsDoublePrecision) {
    EXPECT_EQ(texte_reel(18707.55001), " 18707.55001 ");
    EXPECT_EQ(texte_reel(1.0 / 3.0), " .333333333333333 ");      // 15 digits
    EXPECT_EQ(texte_reel(123456789012345.0), " 123456789012345 ");
    EXPECT_EQ(texte_reel(1234567890123456.0), " 1.23456789012346E+15 ");
    EXPECT_EQ(texte_reel(-2.5e-300), "-2.5E-300 ");
    EXPECT_EQ(texte_reel(0.1), " .1 ");
    EXPECT_EQ(texte_reel(0.0), " 0 ");
}

TEST(NombreFichier, FluxSolaireCinqChiffres) {
    EXPECT_EQ(texte_flux_solaire(3.8e26), "3.8000E+26");
    EXPECT_EQ(texte_flux_solaire(3.81234567e26), "3.8123E+26");
    EXPECT_EQ(texte_flux_solaire(3.81235e26), "3.8124E+26");  // nearest: 3.81235000...1e26 is above the tie
    EXPECT_EQ(texte_flux_solaire(0.0), "0.0000E+00");
    EXPECT_EQ(texte_flux_solaire(1.23456e-5), "1.2346E-05");
}

TEST(FormatImage, ImagesDesFenetres) {
    EXPECT_EQ(format_image(3.14159, "0.00"), "3.14");
    EXPECT_EQ(format_image(-0.5, "0.00"), "-0.50");
    EXPECT_EQ(format_image(0.5, "#0.0000000000"), "0.5000000000");
    EXPECT_EQ(format_image(12.3456, "0.0"), "12.3");
    EXPECT_EQ(format_image(7, "0000"), "0007");
    EXPECT_EQ(format_image(7, "00"), "07");
    EXPECT_EQ(format_image(12345, "0.0E+00"), "1.2E+04");
    EXPECT_EQ(format_image(0.000123, "0.00e+00"), "1.23e-04");
    EXPECT_EQ(format_image(-3.8e26, "0.000E+00"), "-3.800E+26");
    EXPECT_EQ(format_image(1.0, "0.0E+00"), "1.0E+00");
    EXPECT_EQ(format_image(0.5, "#.00"), ".50");

    Date d;
    d.an = 2001;
    d.mois = 3;
    d.jour = 21;
    d.heure = 13;
    d.minute = 5;
    d.seconde = 9;
    EXPECT_EQ(format_date(d, "hh:mm:ss"), "13:05:09");
    EXPECT_EQ(format_date(d, "dd/mm/yyyy"), "21/03/2001");
    EXPECT_EQ(format_date(d, "dd/mm/yyyy hh:mm:ss"), "21/03/2001 13:05:09");
}

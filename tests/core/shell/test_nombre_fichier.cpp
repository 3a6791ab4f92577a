// The project file's number form and the window pictures.
#include <gtest/gtest.h>

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

TEST(NombreFichier, Reels) {
    // below 1 no digit before the point; 0.01 itself stays in plain form, below
    // it an exponent of two digits; -1.234567E-05 takes 14 characters; 7 integer
    // digits fit, 9 do not; 12345678 keeps 7 digits though not exact; 1/3 needs 8
    // to be exact and keeps 7; 0.1 needs 1 digit to read back to the same float
    const std::pair<float, const char*> simples[] = {
        {0.0f, " 0 "}, {1.0f, " 1 "}, {12.5f, " 12.5 "}, {100.0f, " 100 "}, {0.53f, " .53 "}, {-0.53f, "-.53 "},
        {0.01f, " .01 "}, {0.009f, " 9E-03 "}, {0.00025f, " 2.5E-04 "}, {-1.234567E-05f, "-1.234567E-05 "},
        {1234567.0f, " 1234567 "}, {1e8f, " 1E+08 "}, {12345678.0f, " 1.234568E+07 "},
        {1.0f / 3.0f, " .3333333 "}, {0.1f, " .1 "},
    };
    for (const auto& [v, t] : simples) EXPECT_EQ(texte_reel(v), t) << v;
    // doubles keep up to 15 digits
    const std::pair<double, const char*> doubles[] = {
        {18707.55001, " 18707.55001 "}, {1.0 / 3.0, " .333333333333333 "}, {123456789012345.0, " 123456789012345 "},
        {1234567890123456.0, " 1.23456789012346E+15 "}, {-2.5e-300, "-2.5E-300 "}, {0.1, " .1 "}, {0.0, " 0 "},
    };
    for (const auto& [v, t] : doubles) EXPECT_EQ(texte_reel(v), t) << v;
}

TEST(NombreFichier, FluxSolaireCinqChiffres) {
    // 3.81235e26 is stored as 3.81235000...1e26, above the tie: rounds up
    for (auto [v, t] : {std::pair{3.8e26, "3.8000E+26"}, {3.81234567e26, "3.8123E+26"}, {3.81235e26, "3.8124E+26"},
                        {0.0, "0.0000E+00"}, {1.23456e-5, "1.2346E-05"}})
        EXPECT_EQ(texte_flux_solaire(v), t) << v;
}

TEST(FormatImage, ImagesDesFenetres) {
    const std::tuple<double, const char*, const char*> cas[] = {
        {3.14159, "0.00", "3.14"}, {-0.5, "0.00", "-0.50"}, {0.5, "#0.0000000000", "0.5000000000"},
        {12.3456, "0.0", "12.3"}, {7, "0000", "0007"}, {7, "00", "07"}, {12345, "0.0E+00", "1.2E+04"},
        {0.000123, "0.00e+00", "1.23e-04"}, {-3.8e26, "0.000E+00", "-3.800E+26"}, {1.0, "0.0E+00", "1.0E+00"},
        {0.5, "#.00", ".50"},
    };
    for (const auto& [x, image, t] : cas) EXPECT_EQ(format_image(x, image), t) << image;
    const Date d{2001, 3, 0, 21, 13, 5, 9, 0};
    EXPECT_EQ(format_date(d, "hh:mm:ss"), "13:05:09");
    EXPECT_EQ(format_date(d, "dd/mm/yyyy"), "21/03/2001");
    EXPECT_EQ(format_date(d, "dd/mm/yyyy hh:mm:ss"), "21/03/2001 13:05:09");
}

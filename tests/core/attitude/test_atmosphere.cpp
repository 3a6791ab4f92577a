// Exospheric temperature and density: the flux table, its sine stand-in,
// the density brackets and the two temperature branches.
#include <gtest/gtest.h>

#include <cmath>

#include "core/attitude/atmosphere.h"
#include "core/shell/calendrier.h"

namespace kestrel {
namespace {

TablesAtmosphere tables_livrees() {
    TablesAtmosphere t;
    const Erreur e = charge_tables_atmosphere(KESTREL_BIN_DIR, t);
    EXPECT_FALSE(e) << e.detail;
    return t;
}

double jour(int an, int mois, int j) { return date_vers_jour(Date{int16_t(an), int16_t(mois), 0, int16_t(j)}); }

TEST(Atmosphere, TablesLivreesEtFichierAbsent) {
    const auto& t = tables_livrees();
    // first bytes "1991-01   229.41991-02   243.0", last record 78.5
    EXPECT_DOUBLE_EQ(t.flux[0], 229.4);
    EXPECT_DOUBLE_EQ(t.flux[1], 243.0);
    EXPECT_DOUBLE_EQ(t.flux[123], 178.1);  // 2001-04
    EXPECT_DOUBLE_EQ(t.flux[203], 78.5);   // 2007-12
    ASSERT_EQ(t.lignes.size(), 161u);
    EXPECT_DOUBLE_EQ(t.lignes.front().alt, 100);
    EXPECT_DOUBLE_EQ(t.lignes.front().d1000, 5.51e-07);
    EXPECT_DOUBLE_EQ(t.lignes.back().alt, 2500);
    // a missing file is named in the error
    TablesAtmosphere vide;
    const Erreur e = charge_tables_atmosphere("/nonexistent-kestrel-folder", vide);
    EXPECT_EQ(e.code, CodeErreur::fichier_donnees);
    EXPECT_NE(e.detail.find("flux_solaire.txt"), std::string::npos);
}

TEST(Atmosphere, FluxDuFichierJusqua2007PuisSinus) {
    const auto& t = tables_livrees();
    EXPECT_DOUBLE_EQ(flux_solaire(t, jour(1991, 1, 15)), 229.4);
    EXPECT_DOUBLE_EQ(flux_solaire(t, jour(2007, 12, 31) + 0.5), 78.5);
    // 2008-01-01 is day 58*365 + 14 leap days = 21184:
    // 135 + 65 sin(2 pi (21184 - 17712) / 36525) = 171.555
    EXPECT_DOUBLE_EQ(jour(2008, 1, 1), 21184.0);
    EXPECT_NEAR(flux_solaire(t, 21184.0), 171.555, 1e-3);
    // the sine's own origin and quarter periods (dates outside 1991-2007)
    for (auto [dj, f] : {std::pair{36525.0, 135.0}, {36525.0 / 4, 200.0}, {3 * 36525.0 / 4, 70.0}})
        EXPECT_NEAR(flux_solaire(t, 17712.0 + dj), f, 1e-9) << dj;
    // 17712 falls in 1998, where the table rules; a table-free copy shows the
    // sine branch itself: sin(0) = 0 -> F = 135
    EXPECT_DOUBLE_EQ(flux_solaire_sinus(17712.0), 135.0);
    // 17712 = 1998-01-01 (17532) + 180 days: June 1998, record (1998 - 1991) 12 + 6 = 90
    EXPECT_DOUBLE_EQ(flux_solaire(t, 17712.0), t.flux[89]);
}

TEST(Atmosphere, TemperatureProportionnelleA379Plus324F) {
    // same date, place and Sun: T - offset scales with A = 379 + 3.24 F
    TablesAtmosphere t1 = tables_livrees(), t2 = tables_livrees();
    t1.flux.fill(100.0);
    t2.flux.fill(200.0);
    const double j = jour(2001, 3, 21) + 0.3;
    const double a = temperature_exo(t1, j, 0.4, 0.2, 500) - 0.03, b = temperature_exo(t2, j, 0.4, 0.2, 500) - 0.03;
    EXPECT_NEAR(a / b, 703.0 / 1027.0, 1e-12);
    // day-night factor stays within (1 +- 0.3) x (1 + 0.3) of A
    EXPECT_GT(a, 0.7 * 703.0);
    EXPECT_LT(a, 1.69 * 703.0);
}

TEST(Atmosphere, DecalageGeomagnetiqueKpNul) {
    // Kp = 0: +0.02 K below 200 km, +0.03 K from 200 km
    const auto& t = tables_livrees();
    const double j = jour(2001, 6, 1);
    EXPECT_NEAR(temperature_exo(t, j, 1.0, -0.3, 200) - temperature_exo(t, j, 1.0, -0.3, 199.9), 0.01, 1e-9);
}

TEST(Atmosphere, DensiteAuxBornesDeLaTable) {
    const auto& t = tables_livrees();
    // below the table a fixed density, from its top none
    EXPECT_EQ(densite(t, 1000, 99.9), 3.43e-06);
    EXPECT_EQ(densite(t, 1000, 2500), 0.0);
    EXPECT_EQ(densite(t, 1000, 30000), 0.0);
    // line " 100 5.58E-07 5.51E-07 5.45E-07"
    EXPECT_DOUBLE_EQ(densite(t, 1000, 100), 5.51e-07);
    EXPECT_DOUBLE_EQ(densite(t, 500, 100), 5.58e-07);
    // line " 400 6.60E-14 3.69E-12 2.72E-11"
    EXPECT_DOUBLE_EQ(densite(t, 2000, 400), 2.72e-11);
    // half-way to " 102 ... 3.85E-07 ...": (5.51 + 3.85) / 2 e-07
    EXPECT_NEAR(densite(t, 1000, 101), 4.68e-07, 1e-20);
}

TEST(Atmosphere, DeuxBranchesDeTemperature) {
    TablesAtmosphere t;
    t.lignes = {{100, 1, 2, 4}, {200, 3, 6, 12}};
    // 150 km: 500 K -> 2, 1000 K -> 4, 2000 K -> 8; 1000 K is in the
    // 500/1000 K branch, which gives the 1000 K column
    for (auto [T, d] : {std::pair{500.0, 2.0}, {750.0, 3.0}, {1000.0, 4.0}, {1500.0, 6.0}, {2000.0, 8.0}})
        EXPECT_DOUBLE_EQ(densite(t, T, 150), d) << T;
    // past the last line the last bracket extrapolates: f = 2, 2 + 2 (6 - 2) = 10
    EXPECT_DOUBLE_EQ(densite(t, 1000, 300), 10.0);
}

}  // namespace
}  // namespace kestrel

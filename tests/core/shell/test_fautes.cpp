// The fault channel of a run: the first fault stays, later ones are its
// consequences; a row is checked column by column before it is written.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include "core/shell/erreur.h"
#include "core/shell/ligne_finie.h"

using namespace kestrel;

namespace {
const double NaN = std::numeric_limits<double>::quiet_NaN();
const double INF = std::numeric_limits<double>::infinity();
const double MAXI = std::numeric_limits<double>::max();
const double MINI = std::numeric_limits<double>::denorm_min();
}  // namespace

TEST(Faute, LaPremiereResteLesSuivantesSontIgnorees) {
    Erreur f;
    EXPECT_FALSE(f);
    signale_faute(f, CodeErreur::non_convergence, 18000.5, "équation de Kepler");
    signale_faute(f, CodeErreur::valeur_non_finie, 18001.0, "bat_v", INF);
    signale_faute(f, CodeErreur::sous_rayon_ombre, 18002.0, "");
    EXPECT_TRUE(f);
    EXPECT_EQ(std::tuple(f.code, f.date, f.detail, f.valeur),
              std::tuple(CodeErreur::non_convergence, 18000.5, std::string("équation de Kepler"), 0.0));
}

TEST(LigneFinie, PremiereValeurNonFinie) {
    const struct {
        std::vector<double> v;
        long attendu;
    } cas[] = {
        {{}, -1},
        {{0.0, -0.0, MAXI, -MAXI, MINI}, -1},  // the largest and the smallest doubles are finite
        {{NaN}, 0},
        {{1.0, INF, NaN}, 1},
        {{1.0, 2.0, -INF}, 2},
    };
    for (const auto& c : cas) EXPECT_EQ(premiere_non_finie(c.v), c.attendu) << c.v.size();
}

TEST(LigneFinie, NommeLaColonneEtLaDate) {
    const char* const noms[] = {"date", "bat_v", "bat_i"};
    const double bonne[] = {18000.25, 28.0, -1.5};
    const double mauvaise[] = {18000.25, INF, NaN};
    Erreur f;
    EXPECT_TRUE(ligne_finie(f, 18000.25, bonne, noms));
    EXPECT_FALSE(f);
    EXPECT_FALSE(ligne_finie(f, 18000.25, mauvaise, noms));
    EXPECT_EQ(std::tuple(f.code, f.detail, f.date, f.valeur),
              std::tuple(CodeErreur::valeur_non_finie, std::string("bat_v"), 18000.25, INF));
    // day 18000 since 1950: 49 years of 365 days and 12 leap days make 17897,
    // then 103 days into 1999 (31 + 28 + 31 + 13) is 14 April; .25 is 06:00
    EXPECT_EQ(texte_erreur(f), "Calcul interrompu : valeur non finie de bat_v (inf) à la date "
                               "14/04/1999 06:00:00 (jour 18000.250000)");
    // a later bad row leaves the first fault as it was
    const double autre[] = {18000.5, 1.0, NaN};
    EXPECT_FALSE(ligne_finie(f, 18000.5, autre, [](std::size_t i) { return "c" + std::to_string(i); }));
    EXPECT_EQ(std::tuple(f.detail, f.date), std::tuple(std::string("bat_v"), 18000.25));
}

TEST(LigneFinie, RotationTropRapideDitLeCalcul) {
    Erreur f;
    signale_faute(f, CodeErreur::rotation_trop_rapide, 18000.25, "omega", 0.25);
    f.pas = 10;
    // 0.25 rad/s x 10 s = 2.5 rad in a step
    EXPECT_NE(texte_erreur(f).find("tourne à 0.25 rad/s à la date 14/04/1999 06:00:00 (jour 18000.250000), soit "
                                   "2.5 rad en un pas de 10 s"),
              std::string::npos)
        << texte_erreur(f);
}

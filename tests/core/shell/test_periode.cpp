// The period check every run passes: which value is refused, with its origin.
#include <gtest/gtest.h>

#include <limits>

#include "core/shell/periode.h"

using namespace kestrel;

namespace {
const double NaN = std::numeric_limits<double>::quiet_NaN();
const double INF = std::numeric_limits<double>::infinity();
}  // namespace

TEST(VerifiePeriode, PremierRefusEtSonOrigine) {
    OriginesPeriode o;
    o.debut = "D";
    o.fin = "F";
    o.pas = "P";
    o.moy_mvt = "M";
    struct Cas { double debut, fin, pas, mm; CodeErreur code; const char* origine; double valeur; };
    for (const Cas& c : {
             Cas{18000, 18001, 60, 15, CodeErreur::aucune, "", 0},
             // the mean motion is checked first: the default end is derived from it
             Cas{NaN, 18001, 60, 0, CodeErreur::moyen_mouvement, "M", 0},
             Cas{18000, 18001, 60, -1, CodeErreur::moyen_mouvement, "M", -1},
             Cas{18000, 18001, 60, INF, CodeErreur::moyen_mouvement, "M", INF},
             Cas{NaN, 18001, 60, 15, CodeErreur::periode_non_finie, "D", NaN},
             Cas{18000, INF, 60, 15, CodeErreur::periode_non_finie, "F", INF},
             Cas{18000, 18001, NaN, 15, CodeErreur::periode_non_finie, "P", NaN},
             Cas{-18263, 18001, 60, 15, CodeErreur::date_hors_limites, "D", -18263},
             Cas{18000, 3000001, 60, 15, CodeErreur::date_hors_limites, "F", 3000001},
             Cas{18000, 18001, 0, 15, CodeErreur::pas_hors_limites, "P", 0},
             Cas{18000, 18001, 0.5, 15, CodeErreur::pas_hors_limites, "P", 0.5},
             Cas{18000, 18001, 60.5, 15, CodeErreur::pas_hors_limites, "P", 60.5},
             Cas{18000, 18001, 31622401, 15, CodeErreur::pas_hors_limites, "P", 31622401},
             Cas{18000, 17999, 60, 15, CodeErreur::fin_avant_debut, "F", 17999},
         }) {
        const Erreur e = verifie_periode(c.debut, c.fin, c.pas, c.mm, o);
        EXPECT_EQ(e.code, c.code) << c.debut << " " << c.fin << " " << c.pas << " " << c.mm;
        if (c.code == CodeErreur::aucune) continue;
        EXPECT_EQ(e.origine, c.origine);
        if (c.valeur == c.valeur) EXPECT_EQ(e.valeur, c.valeur);
        else EXPECT_NE(e.valeur, e.valeur);
    }
    // the bounds themselves pass: 1 s and 366 days of step, a zero-length period
    EXPECT_FALSE(verifie_periode(18000, 18000, 1, 15, o));
    EXPECT_FALSE(verifie_periode(-18262, 3000000, 31622400, 15, o));
}

TEST(VerifiePeriode, NombreDePasBorne) {
    OriginesPeriode o;
    // 1157 days at 1 s: 1157 x 86400 = 99 964 800 intervals, plus the first date
    EXPECT_EQ(nombre_de_pas(18000, 19157, 1), 99964801.0);
    EXPECT_FALSE(verifie_periode(18000, 19157, 1, 15, o));
    // 1158 days: 100 051 201 steps, over 1e8
    const Erreur e = verifie_periode(18000, 19158, 1, 15, o);
    EXPECT_EQ(e.code, CodeErreur::trop_de_pas);
    EXPECT_EQ(e.valeur, 100051201.0);
    // a period ending 0.05 s past a step still counts that step (0.1 s of slack)
    EXPECT_EQ(nombre_de_pas(0, 120.05 / 86400, 60), 3.0);
}

TEST(TexteErreur, NombresEtTextesLisibles) {
    for (auto [x, t] : {std::pair{2147483647.0, "2147483647"}, {1e308, "1e+308"}, {0.1, "0.1"},
                        {NaN, "nan"}, {-INF, "-inf"}, {1.0 / 3, "0.3333333333"}})
        EXPECT_EQ(nombre_lisible(x), t);
    EXPECT_EQ(texte_lisible("a\nb\x1b[31m\x7f"), "a\\x0ab\\x1b[31m\\x7f");
    EXPECT_EQ(texte_lisible(std::string(200, 'x'), 10), std::string(10, 'x') + "…");
}

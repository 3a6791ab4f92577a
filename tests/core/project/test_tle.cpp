// Two-line element sets: a real satellite read field by field, the checksums,
// the columns and the year rule, and refusals that leave the orbit as it was.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/orbit/orbite.h"
#include "core/project/tle.h"

using namespace kestrel;

namespace {

// The ISS on 20 September 2008, as a public catalogue gave it. Checksums by
// hand: line 1 digits sum to 107 ('-' counts 1), line 2 to 297: both end in 7.
const std::string NOM = "ISS (ZARYA)";
const std::string L1 = "1 25544U 98067A   08264.51782528 -.00002182  00000-0 -11606-4 0  2927";
const std::string L2 = "2 25544  51.6416 247.4627 0006703 130.5360 325.0288 15.72125391563537";

FauteTle lit(const std::string& texte, Orbite& o) {
    std::string nom;
    return lit_tle(texte, o, nom);
}

// Line l with the character at column c (from 1) replaced, checksum left as it is.
std::string change(std::string l, int c, char x) {
    l[c - 1] = x;
    return l;
}

// The checksum digit made right again for a changed line.
std::string resomme(std::string l) {
    int s = 0;
    for (int i = 0; i < 68; ++i) s += std::isdigit(l[i]) ? l[i] - '0' : l[i] == '-';
    l[68] = static_cast<char>('0' + s % 10);
    return l;
}

}  // namespace

TEST(Tle, SatelliteReelChampParChamp) {
    Orbite o;
    std::string nom;
    const FauteTle f = lit_tle(NOM + "\r\n" + L1 + "\r\n" + L2 + "\r\n", o, nom);
    ASSERT_FALSE(f) << texte_faute_tle(f);
    EXPECT_EQ(nom, NOM);
    EXPECT_EQ(std::string(o.nom.data(), 24), "ISS (ZARYA)             ");
    EXPECT_EQ(o.orb_an, 2008);                 // "08"
    EXPECT_EQ(o.orb_jour, 264.51782528);       // columns 21-32
    EXPECT_EQ(o.orb_inclinaison, 51.6416);     // 9-16
    EXPECT_EQ(o.orb_ascension, 247.4627);      // 18-25
    EXPECT_EQ(o.orb_excentricite, 0.0006703);  // 27-33, "0006703" with its point implied
    EXPECT_EQ(o.orb_argument, 130.536);        // 35-42
    EXPECT_EQ(o.orb_anomalie, 325.0288);       // 44-51
    EXPECT_EQ(o.orb_moy_mvt, 15.72125391);     // 53-63
    // a = cbrt(398601.3 / n^2), n = 2 pi 15.72125391 / 86400 rad/s: 6730.97 km
    EXPECT_NEAR(o.orb_demi, 6730.9655, 1e-3);

    // Without the name line: same elements, no name.
    Orbite p;
    EXPECT_FALSE(lit_tle(L1 + "\n" + L2, p, nom));
    EXPECT_EQ(nom, "");
    EXPECT_EQ(p.orb_moy_mvt, o.orb_moy_mvt);
}

TEST(Tle, RegleDesAnnees) {
    // 57-99: 19xx, 00-56: 20xx.
    const struct { const char* aa; int an; } cas[] = {{"56", 2056}, {"57", 1957}, {"00", 2000}, {"99", 1999}};
    for (const auto& c : cas) {
        std::string l1 = L1;
        l1.replace(18, 2, c.aa);
        Orbite o;
        const FauteTle f = lit(resomme(l1) + "\n" + L2, o);
        ASSERT_FALSE(f) << texte_faute_tle(f);
        EXPECT_EQ(o.orb_an, c.an) << c.aa;
    }
}

TEST(Tle, RefusNommantLigneEtColonne) {
    const Orbite avant;
    // text, line, column, start of the reason
    const struct { std::string texte; int ligne, colonne; const char* raison; } cas[] = {
        {L1 + "\n" + change(L2, 69, '8'), 2, 69, "somme de contrôle 8 au lieu de 7"},
        {change(L1, 30, '9') + "\n" + L2, 1, 69, "somme de contrôle 7 au lieu de"},
        {L1 + "\n" + resomme(change(L2, 12, 'x')), 2, 9, "inclinaison illisible"},
        // the node one column to the right runs over the blank before the eccentricity
        {L1 + "\n" + resomme("2 25544  51.6416  247.4627 006703 130.5360 325.0288 15.72125391563537"), 2, 26,
         "espace attendu, « 7 » trouvé"},
        {L1 + "\n" + L2.substr(0, 60), 2, 61, "ligne trop courte"},
        {L1, 0, 1, "1 lignes non vides"},
        {L2 + "\n" + L1, 1, 1, "la ligne devrait commencer par « 1 »"},
        {L1 + "\n" + resomme(change(L2, 7, '5')), 2, 3, "numéro de satellite 25545"},
        // 19.72 rev/day is beyond the window's 18
        {L1 + "\n" + resomme(change(L2, 54, '9')), 2, 53, "moyen mouvement 19.72125391 hors de [0.1, 18]"},
    };
    for (const auto& c : cas) {
        Orbite o;
        std::string nom = "inchangé";
        const FauteTle f = lit_tle(c.texte, o, nom);
        EXPECT_EQ(f.ligne, c.ligne) << c.raison;
        EXPECT_EQ(f.colonne, c.colonne) << c.raison;
        EXPECT_EQ(f.raison.rfind(c.raison, 0), 0u) << f.raison;
        EXPECT_EQ(o.orb_moy_mvt, avant.orb_moy_mvt);
        EXPECT_EQ(o.orb_an, avant.orb_an);
        EXPECT_EQ(nom, "inchangé");
    }
    FauteTle f{2, 69, "somme de contrôle 8 au lieu de 7"};
    EXPECT_EQ(texte_faute_tle(f), "Erreur de lecture du TLE, ligne 2, colonne 69 : somme de contrôle 8 au lieu de 7");
}

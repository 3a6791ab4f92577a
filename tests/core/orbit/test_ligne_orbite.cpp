// The orbit run's row: its columns in order, the eclipse as -1 or 0, and the
// first value that is not finite named with the row's date.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>

#include "core/orbit/ligne_orbite.h"

namespace kestrel {
namespace {

SortiesOrbite sorties() {
    SortiesOrbite o;
    o.sat_pos = {7000, 0, 1};
    o.sat_vit = {0, 7.5, 0.5};
    o.soleil_pos = {1.5e8, 2, 3};
    o.eclipse = VRAI;
    o.anomalie_moy = 0.25;
    o.sat_lon = -1;
    o.sat_lat = 0.5;
    o.sat_alt = 620;
    return o;
}

TEST(LigneOrbite, ColonnesDansLOrdre) {
    LigneOrbite v;
    Erreur f;
    ASSERT_TRUE(ligne_orbite_finie(f, 18000.5, sorties(), v));
    EXPECT_EQ(v, (LigneOrbite{18000.5, 7000, 0, 1, 0, 7.5, 0.5, 1.5e8, 2, 3, -1, 0.25, -1, 0.5, 620}));
    SortiesOrbite o = sorties();
    o.eclipse = FAUX;
    ligne_orbite(18000.5, o, v);
    EXPECT_EQ(v[10], 0.0);
}

TEST(LigneOrbite, PremiereColonneNonFinieNommee) {
    const struct {
        void (*casse)(SortiesOrbite&);
        const char* colonne;
    } cas[] = {
        {[](SortiesOrbite& o) { o.sat_pos[2] = NAN; }, "sat_z"},
        // both wrong: the first in column order is named
        {[](SortiesOrbite& o) { o.sat_alt = NAN, o.sat_vit[1] = -INFINITY; }, "vit_y"},
        {[](SortiesOrbite& o) { o.sat_alt = NAN; }, "alt"},
    };
    for (const auto& c : cas) {
        SortiesOrbite o = sorties();
        c.casse(o);
        Erreur f;
        LigneOrbite v;
        EXPECT_FALSE(ligne_orbite_finie(f, 18000.5, o, v));
        EXPECT_EQ(std::tuple(f.code, f.detail, f.date),
                  std::tuple(CodeErreur::valeur_non_finie, std::string(c.colonne), 18000.5));
    }
}

}  // namespace
}  // namespace kestrel

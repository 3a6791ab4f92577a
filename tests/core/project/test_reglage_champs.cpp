// Setting a project field by its listed name: every listed name is settable,
// type and box limits are checked, and boxes' own steps follow.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/project/liste_champs.h"
#include "core/project/reglage_champs.h"

using namespace kestrel;

TEST(ReglageChamps, NamesAreThoseOfTheListingsAndReadBack) {
    const std::vector<std::string> noms = noms_reglables();
    const Etat e0;
    // count: the three listings end to end
    EXPECT_EQ(noms.size(), champs_energie(e0.pwr, e0.session).size() + champs_attitude(e0.att).size() +
                               champs_orbite(e0.orbite).size());
    for (const char* n : {"cel_np", "bat_c", "md(0)", "orb_inclinaison", "I_corps(0,1)", "pas_sim", "p_demand(1)"})
        EXPECT_NE(std::find(noms.begin(), noms.end(), n), noms.end()) << n;
    // Each set value shows in the listing at its name.
    struct Cas { const char* nom; double v; const char* texte; };
    const Cas cas[] = {{"cel_np", 37, "37"}, {"bat_c", 12.5, "12.5"}, {"k(2)", 0.25, "0.25"},
                       {"orb_excentricite", 0.125, "0.125"}, {"pas_sim", 30, "30"}, {"bat_type", 1, "1"}};
    for (const Cas& c : cas) {
        Etat e;
        ASSERT_EQ(verifie_champ(e, c.nom, c.v), "") << c.nom;
        regle_champ(e, c.nom, c.v);
        std::vector<ChampTexte> l = champs_energie(e.pwr, e.session);
        for (const auto& x : {champs_attitude(e.att), champs_orbite(e.orbite)}) l.insert(l.end(), x.begin(), x.end());
        const auto it = std::find_if(l.begin(), l.end(), [&](const ChampTexte& t) { return t.nom == c.nom; });
        ASSERT_NE(it, l.end()) << c.nom;
        EXPECT_EQ(it->valeur, c.texte) << c.nom;
    }
}

TEST(ReglageChamps, RefusalsBeforeAnythingIsSet) {
    const Etat e;
    struct Cas { const char* nom; double v; const char* morceau; };
    const Cas cas[] = {
        {"cel_npp", 1, "champ inconnu"},
        {"bat_type", 0.5, "entier"},              // 16-bit whole number
        {"pas_sim", 3e9, "valeurs possibles"},    // past int32
        {"orb_inclinaison", 180.5, "limites"},    // box [-180, 180]
        {"orb_excentricite", -0.1, "limites"},    // box [0, 1]
        {"dim(0)", 91, "limites"},                // box [0, 90] m
        {"nom", 1, "texte"},
        {"bat_c", NAN, "non finie"},
    };
    for (const Cas& c : cas) EXPECT_NE(verifie_champ(e, c.nom, c.v).find(c.morceau), std::string::npos) << c.nom;
    // ends of a box's range are allowed
    EXPECT_EQ(verifie_champ(e, "orb_inclinaison", -180), "");
    EXPECT_EQ(verifie_champ(e, "orb_excentricite", 1), "");
}

TEST(ReglageChamps, BoxStepsFollow) {
    Etat e;
    // Mass totals follow a new body mass: Mt = Masse + external masses (none here).
    regle_champ(e, "Masse", 80);
    EXPECT_DOUBLE_EQ(e.att.Mt, 80);
    // The mean motion sets the semi-major axis: 15 rev/day is a 5760 s period,
    // a = (mu T^2 / 4 pi^2)^(1/3) = (398600.44 * 5760^2 / 39.478)^(1/3) = 6945 km
    regle_champ(e, "orb_moy_mvt", 15);
    EXPECT_NEAR(e.orbite.orb_demi, 6945, 2);
    // Wheel speed stored in rad/s although the box shows deg/s.
    regle_champ(e, "OM_init(1)", 0.5);
    EXPECT_NEAR(e.att.OM_init[1], 0.5, 1e-12);
}

// A power field with a settings box is checked and stored as if typed in it:
// the box's limits, those that follow another field, and its repairs.
TEST(ReglageChamps, PowerFieldsGoThroughTheirBox) {
    Etat e;
    e.pwr.inc_max = 75;
    e.pwr.ext_alpha_lim[2] = 0.5f;
    struct Cas { const char* nom; double v; bool accepte; };
    const Cas cas[] = {
        {"bat_c", -5, false},            // capacity box: not below 0
        {"bat_c", 0, true},
        {"cel_np", 150, false},          // strings in parallel: 0 to 100
        {"cel_np", 100, true},
        {"inc_div", 80, false},          // the derating angle stays under inc_max = 75
        {"inc_div", 75, true},
        {"ext_alpha0(2)", 0.6, false},   // a face's initial absorptivity under its limit 0.5
        {"ext_alpha0(2)", 0.5, true},
        {"ext_t99(3)", -1, false},       // face box (element k + 2): a time, not below 0
    };
    for (const Cas& c : cas) {
        const std::string r = verifie_champ(e, c.nom, c.v);
        EXPECT_EQ(r.empty(), c.accepte) << c.nom << " = " << c.v << " : " << r;
        if (!c.accepte) {
            EXPECT_EQ(r.rfind(c.nom, 0), 0u) << r;  // the message names the field
        }
    }
    // Isc typed under Imp is raised to Imp + 0.02, as the box does: 0.5 + 0.02.
    e.pwr.cel_imp = 0.5f;
    regle_champ(e, "cel_isc", 0.4);
    EXPECT_FLOAT_EQ(e.pwr.cel_isc, 0.52f);
    // a field of one element lands where the listing reads it
    regle_champ(e, "ext_t99(3)", 1234);
    EXPECT_EQ(e.pwr.ext_t99[3], 1234);
}

// Keyboard entries of the power settings: limits that follow another field,
// the repairs after a good entry, integers, the efficiency and the body list.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "core/project/saisie_energie.h"

using namespace kestrel;

namespace {
const std::string hors = "Valeur hors limite !! Saisissez une valeur : \n";
const std::string insuff = "Valeur insuffisante! Saisissez une valeur ";
}  // namespace

TEST(SaisieEnergie, BornesQuiSuiventUnAutreChamp) {
    PowerRecord p;  // inc_div 50, inc_max 75, tau0 100, tau50 15, alpha 0.75 / 0.77
    // champ, k, text, expected message ("" accepted)
    const std::tuple<const char*, int, const char*, std::string> cas[] = {
        {"cel_txt_tetad", 0, "75", ""},
        {"cel_txt_tetad", 0, "75.5", hors + "0 <= Valeur <= 75"},
        {"cel_txt_tetam", 0, "49", hors + "75 <= Valeur <= 90"},  // tetad is 75 now
        {"cel_txt_tetam", 0, "80", ""},
        {"bat_txt_tc50", 0, "100", hors + "0 <= Valeur < 100"},
        {"bat_txt_tc50", 0, "99", ""},
        {"bat_txt_tc0", 0, "99", insuff + "> 99"},
        {"bat_txt_tc0", 0, "99.5", ""},
        // initial absorptivity at most the limit; the limit not below it
        {"thex_txt_alpha0_av", 0, "0.78", hors + "0 <= Valeur <= 0.77"},
        {"thex_txt_alim_av", 0, "0.7", hors + "0.75 <= Valeur <= 1"},
        {"thbd_txt_alpha0", 2, "0.41", hors + "0 <= Valeur <= 0.4"},  // lower face: 0.16 / 0.4
        {"thex_txt_alim_face", 5, "0.29", hors + "0.3 <= Valeur <= 1"},  // face -Z: 0.3 / 0.5
        {"bat_txt_ns", 0, "256", "Valeur excessive !! Saisissez une valeur <= 255"},
        {"thex_txt_t99_av", 0, "2.5", "Type de donnée non valide"},
        {"gst_txt_ichmax", 0, "-0.1", insuff + ">= 0"},
    };
    for (const auto& [champ, k, texte, message] : cas) {
        const Verdict v = saisie_energie(p, champ, k, texte);
        EXPECT_EQ(v.ok, message.empty()) << champ << " " << texte;
        EXPECT_EQ(v.message, message) << champ << " " << texte;
    }
    EXPECT_EQ(p.inc_div, 75.0f);
    EXPECT_EQ(p.inc_max, 80.0f);
    EXPECT_EQ(p.bat_tau50, 99.0f);
    EXPECT_EQ(p.bat_tau0, 99.5f);
    EXPECT_EQ(p.ext_alpha0[0], 0.75f);  // refused entries changed nothing
    EXPECT_EQ(p.ext_t99[0], 20000);
    EXPECT_EQ(p.bat_ns, 10);
}

TEST(SaisieEnergie, ChampsIndexesEtTextes) {
    PowerRecord p;
    EXPECT_TRUE(saisie_energie(p, "thex_txt_masse_face", 3, "12.5").ok);  // face -Y is element 5
    EXPECT_TRUE(saisie_energie(p, "gst_txt_pdem", 1, "70").ok);           // eclipse
    EXPECT_TRUE(saisie_energie(p, "bat_txt_d2", 3, "1,25").ok);           // French decimal comma
    EXPECT_TRUE(saisie_energie(p, "bat_txt_np", 0, "3").ok);
    EXPECT_EQ(p.ext_mass[5], 12.5f);
    EXPECT_EQ(p.p_demand[1], 70.0f);
    EXPECT_EQ(p.p_demand[0], 50.0f);
    EXPECT_EQ(p.de_pt[2][3], 1.25f);
    EXPECT_EQ(p.bat_np, 3);
    EXPECT_TRUE(champ_entier("thbd_txt_t99"));
    EXPECT_TRUE(champ_entier("pan_txt_ext_lag"));
    EXPECT_FALSE(champ_entier("cel_txt_ns"));  // cell counts are floats
    // Shortest text of the float; capacities with two decimals.
    EXPECT_EQ(texte_energie(p, "cel_txt_isc"), "0.53");
    EXPECT_EQ(texte_energie(p, "cel_txt_dimp"), "0.00025");
    EXPECT_EQ(texte_energie(p, "bat_txt_c10"), "0.60");
    EXPECT_EQ(texte_energie(p, "bat_txt_c"), "10.00");
    EXPECT_EQ(texte_energie(p, "thex_txt_t99_face", 0), "20000");
    EXPECT_FALSE(saisie_energie(p, "pas_un_champ", 0, "1").ok);
}

TEST(SaisieEnergie, Reparations) {
    PowerRecord p;  // Isc 0.53, Imp 0.5, Voc 1.0, Vmp 0.86
    struct Cas {
        const char* champ;
        const char* texte;
        const float* champ_repare;
        float attendu;
    };
    const Cas cas[] = {
        {"cel_txt_isc", "0.4", &p.cel_isc, 0.52f},   // not above Imp 0.5: 0.5 + 0.02
        {"cel_txt_imp", "0.6", &p.cel_imp, 0.5f},    // not below Isc 0.52: 0.52 - 0.02
        {"cel_txt_vmp", "1.0", &p.cel_vmp, 0.98f},   // Voc 1.0 - 0.02
        {"cel_txt_voc", "0.9", &p.cel_voc, 1.0f},    // Vmp 0.98 + 0.02
    };
    for (const Cas& c : cas) {
        ASSERT_TRUE(saisie_energie(p, c.champ, 0, c.texte).ok) << c.champ;
        EXPECT_NEAR(*c.champ_repare, c.attendu, 1e-6) << c.champ;
    }
    // Isc 0.52, Imp 0.5: at end of life Isc * 0.9 = 0.468 is not above
    // Imp * 1 = 0.5, so Imp/Imp0 = 0.9 * 0.98 * 0.52 / 0.5 = 0.91728.
    ASSERT_TRUE(saisie_energie(p, "cel_txt_radisc", 0, "0.9").ok);
    EXPECT_NEAR(p.cel_radimp, 0.91728, 1e-6);
    // Imp/Imp0 = 1.0: 0.5 >= 0.468, so Isc/Isc0 = 1.0 * 1.02 * 0.5 / 0.52 = 0.980769.
    ASSERT_TRUE(saisie_energie(p, "cel_txt_radimp", 0, "1.0").ok);
    EXPECT_NEAR(p.cel_radisc, 0.980769, 1e-6);
    // Voc 1.0, Vmp 0.98: Voc/Voc0 = 0.5 makes 0.5 <= 0.98, Vmp/Vmp0 = 0.5 * 0.98 * 1 / 0.98 = 0.5.
    ASSERT_TRUE(saisie_energie(p, "cel_txt_radvoc", 0, "0.5").ok);
    EXPECT_NEAR(p.cel_radvmp, 0.5, 1e-6);
    // Vmp/Vmp0 = 1.0: 0.98 >= 0.5, Voc/Voc0 = 1.0 * 1.02 * 0.98 / 1.0 = 0.9996.
    ASSERT_TRUE(saisie_energie(p, "cel_txt_radvmp", 0, "1").ok);
    EXPECT_NEAR(p.cel_radvoc, 0.9996, 1e-6);
    // A good pair is left alone.
    ASSERT_TRUE(saisie_energie(p, "cel_txt_isc", 0, "0.7").ok);
    EXPECT_NEAR(p.cel_imp, 0.5, 1e-6);
}

TEST(SaisieEnergie, RendementEtCorps) {
    PowerRecord p;
    // 0.5 A * 0.86 V * 10000 / 1368 / 16 cm² = 0.196454
    EXPECT_NEAR(rendement_cellules(p, false), 0.196454, 1e-6);
    p.cel_radimp = 0.9f;
    p.cel_radvmp = 0.8f;  // * 0.72
    EXPECT_NEAR(rendement_cellules(p, true), 0.141447, 1e-6);

    EXPECT_FALSE(choix_corps(p, 1));  // external panels: refused
    EXPECT_EQ(p.opt_faces, 0);
    p.opt_panel_ext = 0;
    ASSERT_TRUE(choix_corps(p, 1));
    EXPECT_EQ(p.nb_faces, 6);
    EXPECT_NEAR(p.face_azim[1], 60 * 0.017453292519943278, 1e-12);
    EXPECT_NEAR(p.face_azim[5], 300 * 0.017453292519943278, 1e-12);
    ASSERT_TRUE(choix_corps(p, 2));
    EXPECT_EQ(p.nb_faces, 0);
    EXPECT_EQ(p.opt_faces, 2);
}

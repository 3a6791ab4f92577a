// The two catalogues overwrite exactly the fields they list.
#include <gtest/gtest.h>

#include "core/project/catalogues.h"
#include "outils_fichiers.h"

using namespace kestrel;
using essai::attend;

TEST(Catalogues, CellulesEcraseSeulementSesChamps) {
    PowerRecord p;
    p.cel_radisc = 0.9f;
    p.cel_ns = 12.5f;
    p.cel_tref = 30.0f;
    catalogue_cellules(p, 1);  // Silicium
    // Not listed: the type index (the caller's), the ratios, counts, reference.
    attend({{"isc", p.cel_isc, 1.0f}, {"voc", p.cel_voc, 0.54f}, {"dimp", p.cel_dimp, 0.0009f},
            {"dvmp", p.cel_dvmp, -0.002f}, {"surface", p.cel_surface, 20.0f}, {"type", p.cel_type, 0},
            {"radisc", p.cel_radisc, 0.9f}, {"ns", p.cel_ns, 12.5f}, {"tref", p.cel_tref, 30.0f}});
    EXPECT_FLOAT_EQ(p.cel_rendement, 0.15625f);  // 4275 / 1368 / 20

    // AsGa brings back the new-project values, overwriting edits.
    p.cel_isc = 3.0f;
    catalogue_cellules(p, 0);
    const PowerRecord neuf;
    attend({{"isc", p.cel_isc, neuf.cel_isc}, {"vmp", p.cel_vmp, neuf.cel_vmp}, {"dimp", p.cel_dimp, neuf.cel_dimp},
            {"rendement", p.cel_rendement, neuf.cel_rendement}});
    catalogue_cellules(p, 5);  // no such entry
    EXPECT_EQ(p.cel_isc, 0.53f);
}

TEST(Catalogues, BatterieParType) {
    PowerRecord p;
    p.bat_c = 20.0f;
    catalogue_batterie(p, 2);  // Lithium-Ion; the capacity is not the catalogue's
    attend({{"ch 0 3", p.ch_pt[0][3], 3.3f}, {"ch 1 5", p.ch_pt[1][5], 0.4f}, {"de 2 2", p.de_pt[2][2], -2.0f},
            {"de 3 3", p.de_pt[3][3], 2.8f}, {"c10", p.bat_c10, 0.8f}, {"tau0", p.bat_tau0, 500.0f},
            {"tau50", p.bat_tau50, 300.0f}, {"k", p.gst_k_recharge, 1.0f}, {"vch", p.gst_vch_max, 4.0f},
            {"c", p.bat_c, 20.0f}});

    // Nickel-Hydrogène shares the Nickel-Cadmium set; its maximum charge
    // voltage 1.55 differs from the new-project 1.5.
    catalogue_batterie(p, 1);
    attend({{"ch 3 0", p.ch_pt[3][0], 120.0f}, {"de 2 0", p.de_pt[2][0], 95.0f}, {"cmax", p.bat_cmax, 1.2f},
            {"tau50", p.bat_tau50, 15.0f}, {"k", p.gst_k_recharge, 1.05f}, {"vch", p.gst_vch_max, 1.55f}});

    // Générique writes nothing and opens the fields.
    p.ch_pt[2][1] = 0.77f;
    p.bat_tau0 = 321.0f;
    catalogue_batterie(p, 3);
    attend({{"ch 2 1", p.ch_pt[2][1], 0.77f}, {"tau0", p.bat_tau0, 321.0f}});
    EXPECT_TRUE(batterie_modifiable(3));
    EXPECT_FALSE(batterie_modifiable(0));
}

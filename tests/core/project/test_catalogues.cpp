// The two catalogues overwrite exactly the fields they list.
#include <gtest/gtest.h>

#include "core/project/catalogues.h"

using namespace kestrel;

TEST(Catalogues, CellulesEcraseSeulementSesChamps) {
    PowerRecord p;
    p.cel_radisc = 0.9f;
    p.cel_ns = 12.5f;
    p.cel_tref = 30.0f;
    catalogue_cellules(p, 1);  // Silicium
    EXPECT_EQ(p.cel_isc, 1.0f);
    EXPECT_EQ(p.cel_voc, 0.54f);
    EXPECT_EQ(p.cel_dimp, 0.0009f);
    EXPECT_EQ(p.cel_dvmp, -0.002f);
    EXPECT_EQ(p.cel_surface, 20.0f);
    EXPECT_FLOAT_EQ(p.cel_rendement, 0.15625f);  // 4275 / 1368 / 20
    // Not listed: the type index (the caller's), the ratios, counts, reference.
    EXPECT_EQ(p.cel_type, 0);
    EXPECT_EQ(p.cel_radisc, 0.9f);
    EXPECT_EQ(p.cel_ns, 12.5f);
    EXPECT_EQ(p.cel_tref, 30.0f);

    // AsGa brings back the new-project values, overwriting edits.
    p.cel_isc = 3.0f;
    catalogue_cellules(p, 0);
    const PowerRecord neuf;
    EXPECT_EQ(p.cel_isc, neuf.cel_isc);
    EXPECT_EQ(p.cel_vmp, neuf.cel_vmp);
    EXPECT_EQ(p.cel_dimp, neuf.cel_dimp);
    EXPECT_EQ(p.cel_rendement, neuf.cel_rendement);

    catalogue_cellules(p, 5);  // no such entry
    EXPECT_EQ(p.cel_isc, 0.53f);
}

TEST(Catalogues, BatterieParType) {
    PowerRecord p;
    p.bat_c = 20.0f;
    catalogue_batterie(p, 2);  // Lithium-Ion
    EXPECT_EQ(p.ch_pt[0][3], 3.3f);
    EXPECT_EQ(p.ch_pt[1][5], 0.4f);
    EXPECT_EQ(p.de_pt[2][2], -2.0f);
    EXPECT_EQ(p.de_pt[3][3], 2.8f);
    EXPECT_EQ(p.bat_c10, 0.8f);
    EXPECT_EQ(p.bat_tau0, 500.0f);
    EXPECT_EQ(p.bat_tau50, 300.0f);
    EXPECT_EQ(p.gst_k_recharge, 1.0f);
    EXPECT_EQ(p.gst_vch_max, 4.0f);
    EXPECT_EQ(p.bat_c, 20.0f);  // the capacity is not the catalogue's

    // Nickel-Hydrogène shares the Nickel-Cadmium set; its maximum charge
    // voltage 1.55 differs from the new-project 1.5.
    catalogue_batterie(p, 1);
    EXPECT_EQ(p.ch_pt[3][0], 120.0f);
    EXPECT_EQ(p.de_pt[2][0], 95.0f);
    EXPECT_EQ(p.bat_cmax, 1.2f);
    EXPECT_EQ(p.bat_tau50, 15.0f);
    EXPECT_EQ(p.gst_k_recharge, 1.05f);
    EXPECT_EQ(p.gst_vch_max, 1.55f);

    // Générique writes nothing and opens the fields.
    p.ch_pt[2][1] = 0.77f;
    p.bat_tau0 = 321.0f;
    catalogue_batterie(p, 3);
    EXPECT_EQ(p.ch_pt[2][1], 0.77f);
    EXPECT_EQ(p.bat_tau0, 321.0f);
    EXPECT_TRUE(batterie_modifiable(3));
    EXPECT_FALSE(batterie_modifiable(0));
}

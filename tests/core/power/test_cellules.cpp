// Cell efficiency on the bus voltage, and the generators' areas and sums.
#include <gtest/gtest.h>

#include "core/power/cell_efficiency.h"
#include "core/power/generateurs.h"
#include "outils_power.h"

namespace kestrel {
namespace {

constexpr double T_REF_K = 28.0 + 273.15;  // the cells' reference temperature

TEST(CellEfficiency, BusAtOrAboveTheStringVocGivesNothing) {
    // Default cell: one in series, Voc 1 V. Rows: regulated flag, bus voltage
    // (regulated or battery), kelvin above the reference. Just above Voc; the
    // new-project bus, 10 accumulators at 1.3 V on a 1 V cell; an empty battery,
    // I = np * Isc but P = I * 0; Voc falls 1 mV/K: 0.8 V at 100 K above, below
    // the bus at 101.
    const double cas[][3] = {{1, 1.0001, 0}, {0, 1.3, 0}, {0, 0.0, 0}, {1, 0.8, 101}};
    for (const auto& c : cas) {
        Etat e;
        e.pwr.gst_regulated = static_cast<int16_t>(c[0]);
        e.pwr.gst_vregul = static_cast<float>(c[1]);
        e.pwr.bat_v = c[1];
        EXPECT_EQ(cell_efficiency(e, T_REF_K + c[2]), 0.0f) << c[1] << " " << c[2];
    }
}

TEST(CellEfficiency, MaximumPowerPointTemperatureAndEndOfLife) {
    Etat e;
    e.pwr.gst_regulated = 1;
    e.pwr.gst_vregul = e.pwr.cel_vmp;  // 0.86 V at 28 °C
    // a = ln(0.53/0.03), Vt = 0.14/a, I0 = Isc/(exp(Voc/Vt)-1): I(Vmp) = Imp
    // to 6e-10, so eff = 0.5 * 0.86 * 10000 / 1368 / 16 = 0.196455
    EXPECT_NEAR(cell_efficiency(e, T_REF_K), 0.19645468, 1e-7);
    // On a 0.8 V bus, 50 °C above the reference: Voc = 1 - 0.1 = 0.9 V, still above the bus.
    e.pwr.gst_vregul = 0.8f;
    EXPECT_GT(cell_efficiency(e, T_REF_K + 50), 0.0f);
    // End of life with Voc x 0.85 = 0.85 V, Vmp x 0.85: at 0.8 V the current
    // falls; "BOL" is unaffected by the ratios.
    e.pwr.cel_radvoc = e.pwr.cel_radvmp = 0.85f;
    const float debut = cell_efficiency(e, T_REF_K);
    e.pwr.cel_opt_beol = 1;
    const float fin = cell_efficiency(e, T_REF_K);
    EXPECT_LT(fin, debut);
    EXPECT_GT(fin, 0.0f);
    e.pwr.cel_radvoc = 0.7f;  // 0.7 V < 0.8 V bus
    EXPECT_EQ(cell_efficiency(e, T_REF_K), 0.0f);
}

TEST(Generators, AreasAndSums) {
    Etat e = essai::etat_soleil_zenith(1000.0);
    PowerRecord& p = e.pwr;
    p.gst_regulated = 1;
    p.gst_vregul = p.cel_vmp;
    p.cel_np = 3;  // strings of one cell
    p.node_t.fill(T_REF_K);
    const double eff = 0.19645468, aire = 0.0048;  // 3 cells of 16 cm²
    // External: panel front to +z, two panels.
    p.pan_angle = PI / 2;
    generator_ext_panels(e);
    essai::verifie({{"panel", p.pan_power[0], 1000 * eff * aire, 1e-6},
                    {"sum", p.gen_power, 2 * 1000 * eff * aire, 1e-6}});
    // Faces with the Sun on the face of azimuth 0 at 30 deg from its normal;
    // the face at 90 deg is 60 deg off, on the parabola (0.459722).
    essai::pose_faces(p, 0);
    essai::pose_soleil(p, 0, 30 * DEG_RAD);
    generator_faces(e);
    const double faces[4] = {std::cos(30 * DEG_RAD), 0.4597216056, 0, 0};
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(p.pan_power[i], 1000 * faces[i] * eff * aire, 1e-6) << i;
    EXPECT_NEAR(p.gen_power, p.pan_power[0] + p.pan_power[1], 1e-12);
    // Cylinder: strip area from the width alone (0.4 m * 10 deg), the strip
    // centred on 5 deg sees the Sun 25 deg off.
    essai::pose_faces(p, 2);
    generator_cylinder(e);
    EXPECT_NEAR(p.pan_power[0], 1000 * std::cos(25 * DEG_RAD) * eff * 0.4 * 0.17453292519943278, 1e-6);
    double somme = 0;
    for (double w : p.pan_power) somme += w;
    EXPECT_NEAR(p.gen_power, somme, 1e-9);
}

}  // namespace
}  // namespace kestrel

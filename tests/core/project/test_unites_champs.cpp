// Units of the settable project fields, for the sweep's CSV header.
#include <gtest/gtest.h>

#include "core/project/reglage_champs.h"
#include "core/project/unites_champs.h"

using namespace kestrel;

TEST(UnitesChamps, EverySettableNameHasAUnit) {
    for (const std::string& nom : noms_reglables()) EXPECT_NE(unite_champ(nom), "") << nom;
}

TEST(UnitesChamps, UnitsOfSomeFields) {
    struct Cas { const char* nom; const char* unite; };
    const Cas cas[] = {
        {"bat_c", "Ah"},             // capacity per accumulator, ampere-hours
        {"cel_np", "-"},             // strings in parallel, a count
        {"cel_surface", "cm²"},      // area of one cell, cm²
        {"cel_dvoc", "V/°C"},        // temperature slope of Voc
        {"ext_mass(0)", "kg/m²"},    // panel mass per area
        {"ext_mass(8)", "kg"},       // internal node: a mass, not per area
        {"ext_t99(3)", "h"},         // ageing time, hours
        {"earth_ir(11)", "W/m²"},    // Earth infrared flux of December
        {"gst_rend_gs", "%"},        // generator to payload efficiency, percent
        {"gst_regulated", "-"},      // flag
        {"pan_speed", "°/s"},        // panel rotation rate, degrees per second
        {"pas_sim", "s"},            // simulation step, seconds
        {"md(0)", "kg"},             // damper mass
        {"c(2)", "N.s/m"},           // damper viscosity
        {"I_corps(0,1)", "kg m²"},   // inertia of the central body
        {"OM_init(1)", "rad/s"},     // wheel speed, kept in rad/s (boxes show deg/s)
        {"orb_inclinaison", "°"},    // inclination, degrees
        {"orb_jour", "j"},           // epoch day of the year, days
        {"orb_demi", "km"},          // semi-major axis
        {"nom", "-"},                // orbit name, a text
    };
    for (const Cas& c : cas) EXPECT_EQ(unite_champ(c.nom), c.unite) << c.nom;
}

TEST(UnitesChamps, NotASettableFieldGivesNothing) {
    // unknown, an array without its index, an index past the end, a scalar indexed
    for (const char* nom : {"zz", "", "md", "md(3)", "bat_c(0)", "node_t(0)"}) EXPECT_EQ(unite_champ(nom), "") << nom;
}

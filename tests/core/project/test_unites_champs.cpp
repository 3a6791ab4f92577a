// Units of the settable project fields, for the sweep's CSV header.
#include <gtest/gtest.h>

#include "core/project/reglage_champs.h"
#include "core/project/unites_champs.h"

using namespace kestrel;

TEST(UnitesChamps, EverySettableNameHasAUnit) {
    for (const std::string& nom : noms_reglables()) EXPECT_NE(unite_champ(nom), "") << nom;
}

TEST(UnitesChamps, UnitsByNameAndElement) {
    struct Cas { const char* nom; const char* unite; };
    // the unit table itself is data; these rows are where the name decides:
    // an element of an array, one element of it unlike the others, two indices
    const Cas cas[] = {
        {"bat_c", "Ah"},             // capacity per accumulator, ampere-hours
        {"ext_mass(0)", "kg/m²"},    // panel mass per area
        {"ext_mass(8)", "kg"},       // internal node: a mass, not per area
        {"earth_ir(11)", "W/m²"},    // the last element of a monthly table
        {"I_corps(0,1)", "kg m²"},   // inertia of the central body
        {"OM_init(1)", "rad/s"},     // wheel speed, kept in rad/s (boxes show deg/s)
        {"nom", "-"},                // orbit name, a text
    };
    for (const Cas& c : cas) EXPECT_EQ(unite_champ(c.nom), c.unite) << c.nom;
}

TEST(UnitesChamps, NotASettableFieldGivesNothing) {
    // unknown, an array without its index, an index past the end, a scalar indexed
    for (const char* nom : {"zz", "", "md", "md(3)", "bat_c(0)", "node_t(0)"}) EXPECT_EQ(unite_champ(nom), "") << nom;
}

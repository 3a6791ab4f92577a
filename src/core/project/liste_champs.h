// Every field a project file holds, as "name" and "value" texts, in file
// order, with the record's own field names ("cel_isc", "ext_mass(8)",
// "ch_pt(1,3)", "I_corps(0,1)"). Values read back exactly: shortest
// round-trip digits; flags as held in memory (-1 true, 0 false).
#pragma once
#include <string>
#include <vector>

#include "core/etat/etat.h"

namespace kestrel {

struct ChampTexte {
    std::string nom;
    std::string valeur;
};

std::vector<ChampTexte> champs_energie(const PowerRecord& p, const Session& s);
std::vector<ChampTexte> champs_attitude(const AttitudeRecord& a);
std::vector<ChampTexte> champs_orbite(const Orbite& o);

}  // namespace kestrel

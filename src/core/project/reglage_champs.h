// Setting one project field by the name `kestrel project show` prints
// ("cel_np", "md(0)", "orb_inclinaison"), for parameter sweeps. The names come
// from the same walks over the records as the listing, so they cannot drift.
// A field with a box in a settings window is checked against that box's
// limits and stored through the box's own step (totals, linked fields).
#pragma once
#include <string>
#include <vector>

#include "core/etat/etat.h"

namespace kestrel {

// Every settable name: the .pwr fields, then the .att, then the .orb.
std::vector<std::string> noms_reglables();

// Empty when `valeur` may go into field `nom` of `etat`, else the French reason
// (unknown name, not a whole number, outside the field's limits).
std::string verifie_champ(const Etat& etat, const std::string& nom, double valeur);

// Stores a value verifie_champ accepted.
void regle_champ(Etat& etat, const std::string& nom, double valeur);

}  // namespace kestrel

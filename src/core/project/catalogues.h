// The cell and battery catalogues of the power settings: choosing an entry
// overwrites exactly the fields listed here and nothing else (not the type
// index itself, which the caller sets).
#pragma once

#include "core/etat/power_record.h"

namespace kestrel {

// 0 "AsGa", 1 "Silicium": Isc, Imp, Voc, Vmp, their four temperature slopes,
// the cell area and the stored efficiency. Other values change nothing.
void catalogue_cellules(PowerRecord& p, int type);

// 0 "Nickel-Cadmium" and 1 "Nickel-Hydrogène" share one set, 2 "Lithium-Ion"
// has its own: both curves, the capacity factors, the temperature and
// self-discharge figures, the recharge coefficient and the maximum charge
// voltage. 3 "Générique" (and any other value) writes nothing.
void catalogue_batterie(PowerRecord& p, int type);

// True for the entry whose battery fields the user may edit ("Générique").
bool batterie_modifiable(int type);

}  // namespace kestrel

// Sharing of one step's power between generator, battery and payload; the
// state of charge integrates the current of the step before; the losses and
// any excess become heat for the internal node (p_heat, W).
#pragma once

namespace kestrel {

struct Etat;

void power_management(Etat& etat);

}  // namespace kestrel

// Thermal nodes of the cylinder configuration.
#pragma once

namespace kestrel {

struct Etat;

// Nodes 0..35 strips of 10 deg, 36 top, 37 bottom, 38 internal; t_bat follows 38.
void thermal_cylinder(Etat& etat);

// Sub-step of the cylinder for a step of `pas` s: k seconds a pass, returns
// the number of passes (seconds beyond passes * k are not simulated).
int passes_cylindre(int pas, int& k);

}  // namespace kestrel

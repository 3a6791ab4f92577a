// Thermal nodes of the external-panel configuration.
#pragma once

namespace kestrel {

struct Etat;

// Nodes 0 panel, 2..7 body faces, 8 internal; t_bat follows node 8.
void thermal_ext_panels(Etat& etat);

}  // namespace kestrel

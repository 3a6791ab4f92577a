// Thermal nodes of the faces configuration.
#pragma once

namespace kestrel {

struct Etat;

// Nodes 0..nb_faces-1 lateral faces, 8 top, 9 bottom, 10 internal; t_bat = 20.
void thermal_faces(Etat& etat);

}  // namespace kestrel

// Electrical power of the three generator layouts: flux through the cell law
// times the efficiency at the panel's temperature of the previous step, times
// the cell area (cel_np * cel_ns * cel_surface, cm²); powers in W.
#pragma once

namespace kestrel {

struct Etat;

void generator_ext_panels(Etat& etat);  // panel 0 only; gen_power is two of it
void generator_cylinder(Etat& etat);    // 36 strips of 10 deg
void generator_faces(Etat& etat);       // nb_faces lateral faces

}  // namespace kestrel

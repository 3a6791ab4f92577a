// Solar cells and the three generator layouts. Efficiency is normalised by
// the solar constant 1368 W/m²; cel_surface in cm²; powers in W.
#pragma once

namespace kestrel {

struct Etat;

// Efficiency of a panel at t_kelvin on the present bus voltage (regulated
// value, or bat_ns * bat_v); 0 when the bus stands above the string's Voc.
float cell_efficiency(const Etat& etat, double t_kelvin);

void generator_ext_panels(Etat& etat);  // panel 0 only; gen_power is two of it
void generator_cylinder(Etat& etat);    // 36 strips of 10 deg
void generator_faces(Etat& etat);       // nb_faces lateral faces

}  // namespace kestrel

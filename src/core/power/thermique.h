// Lumped thermal nodes (kelvin in node_t), explicit Euler over sim_step
// seconds; every derivative of a pass uses the temperatures at its start.
// Surface balances in W/m² over (mass per area * cp); the internal node in W.
#pragma once
#include <cstdint>

namespace kestrel {

struct Etat;
struct PowerRecord;

constexpr double SIGMA = 5.67e-08;  // W/m²/K⁴

// Absorptivity aged from a0 towards alim, 99 % of the way after t99 hours;
// t is the date (day count) rounded to single precision.
double alpha(const PowerRecord& p, float t, float a0, float alim, int32_t t99);
// The same, kept in p.alpha_memo[slot] for the next step at the same float date.
double alpha_memo(PowerRecord& p, int slot, float t, float a0, float alim, int32_t t99);

// Nodes 0 panel, 2..7 body faces, 8 internal; t_bat follows node 8.
void thermal_ext_panels(Etat& etat);
// Nodes 0..35 strips of 10 deg, 36 top, 37 bottom, 38 internal; t_bat follows 38.
void thermal_cylinder(Etat& etat);
// Nodes 0..nb_faces-1 lateral faces, 8 top, 9 bottom, 10 internal; t_bat = 20.
void thermal_faces(Etat& etat);

// Sub-step of the cylinder for a step of `pas` s: k seconds a pass, returns
// the number of passes (seconds beyond passes * k are not simulated).
int passes_cylindre(int pas, int& k);

}  // namespace kestrel

// Where the two external panels want to be: pan_target, rad, or PAS_DE_CIBLE
// when there is no target.
#pragma once

namespace kestrel {

struct Etat;

// Closed form maximising sun + albedo on the panel front (azimuth pi).
void panel_target_update(Etat& etat);
// The same refined by a secant on the derivative of the cell flux; returns
// the angle (rad) without storing it. Runs panel_target_update first.
double panel_target_refined(Etat& etat);

// Mark of "no target" in pan_target.
constexpr double PAS_DE_CIBLE = 1000.0;

}  // namespace kestrel

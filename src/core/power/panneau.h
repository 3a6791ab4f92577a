// Pointing of the two external panels: where they want to be (pan_target,
// rad, 1000.0 = no target) and the servo that turns them (pan_angle, rad).
#pragma once

namespace kestrel {

struct Etat;

// Closed form maximising sun + albedo on the panel front (azimuth pi).
void panel_target_update(Etat& etat);
// The same refined by a secant on the derivative of the cell flux; returns
// the angle (rad) without storing it. Runs panel_target_update first.
double panel_target_refined(Etat& etat);
// Servo over one step of `pas` seconds: delay pan_delay (s), dead band
// pan_tolerance (deg), rate pan_speed (deg/s).
void panel_drive_update(Etat& etat, int pas);

// Mark of "no target" in pan_target.
constexpr double PAS_DE_CIBLE = 1000.0;

}  // namespace kestrel

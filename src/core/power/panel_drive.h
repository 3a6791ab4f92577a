// The servo that turns the two external panels towards pan_target
// (pan_angle, rad).
#pragma once

namespace kestrel {

struct Etat;

// Servo over one step of `pas` seconds: delay pan_delay (s), dead band
// pan_tolerance (deg), rate pan_speed (deg/s).
void panel_drive_update(Etat& etat, int pas);

}  // namespace kestrel

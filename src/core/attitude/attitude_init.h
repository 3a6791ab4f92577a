// Start of an attitude run: the state brought to the user's initial
// conditions, the quaternion kept beside the Euler angles, and the face
// choice of the pointing list.
#pragma once
#include <cstdint>
#include <string>

namespace kestrel {

struct Etat;

// omega, yi, yd (rates from euler_taux), wheels, dampers and dipole from the
// *_init fields. yd rates come back in the order roll, pitch, yaw.
void attitude_init(Etat& etat);

// quat from yd. The angles are scaled as degrees although yd holds radians in
// a run; nothing reads quat.
void quat_refresh(Etat& etat);

// Face chosen in the pointing list ("+X", "+Y", "+Z", "-X", "-Z") to 1..5.
// "-Y" and any other text leave `mode` as it was; 6 is never produced.
void decode_pointage(const std::string& texte, int16_t& mode);

}  // namespace kestrel

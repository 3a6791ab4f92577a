// The turns between the frames of the satellite and the Euler-angle helpers.
// Frames: inertial (mean equator and equinox 1950), plane (x to the node, z
// orbit normal), local orbital form A (x along track, y orbit normal, z radial
// out), local orbital form B (x normal, y radial, z transverse), body.
#pragma once
#include "core/math/vecteurs.h"
#include "core/orbit/orbite.h"
#include "core/shell/types.h"

namespace kestrel {

// Inertial -> plane; om, i in degrees, om corrected to the 1950 equinox with
// the epoch of `orbite` as orb_position does.
void vers_plan(const Orbite& orbite, double om, double i, const Vec3& v, Vec3& r);
void depuis_plan(const Orbite& orbite, double om, double i, const Vec3& v, Vec3& r);
// Plane -> local orbital form A; p is the satellite in the plane frame.
void plan_vers_local(const Vec3& p, const Vec3& v, Vec3& r);
void local_vers_plan(const Vec3& p, const Vec3& v, Vec3& r);
// Local orbital form A -> body by yaw psi, pitch theta, roll phi (degrees).
void vers_corps(double psi, double theta, double phi, const Vec3& v, Vec3& r);
void depuis_corps(double psi, double theta, double phi, const Vec3& v, Vec3& r);
// Inertial -> body with the pointing angles of pt (yaw passed for both psi and
// phi); sat_pos: the satellite, km, inertial.
void inertiel_vers_corps(const Orbite& o, const Vec3& sat_pos, const Pointage& pt, const Vec3& v,
                         Vec3& r);
void corps_vers_inertiel(const Orbite& o, const Vec3& sat_pos, const Pointage& pt, const Vec3& v,
                         Vec3& r);
// In place: R1(i) R3(om), uncorrected elements; form B with the argument of latitude.
void vers_orbital_i(const Orbite& orbite, Vec3& v);
void vers_orbital_u(const Orbite& o, double anomalie_moy, Vec3& v);
// Argument of latitude u (rad) from the mean anomaly (rad) that orb_position
// left, used by vers_orbital_u and euler_vers_inertiel.
double argument_latitude(const Orbite& o, double anomalie_moy);

// Euler rates: y(3..5) from body rates w(0..2) and the angles y(0..2).
void euler_taux(const Vec6& w, Vec6& y);
// Local-orbital angles a (rad) -> the two equivalent sets of inertial angles.
void euler_vers_inertiel(const Orbite& o, double anomalie_moy, const Vec3& a, Vec3& b, Vec3& c);

}  // namespace kestrel

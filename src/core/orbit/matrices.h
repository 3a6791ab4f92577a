// Vectors, 3x3 matrices, the turns between the frames of the satellite, Euler
// rates and the general linear solver. Frames: inertial (mean equator and
// equinox 1950), plane (x to the node, z orbit normal), local orbital form A
// (x along track, y orbit normal, z radial out), local orbital form B
// (x normal, y radial, z transverse), body.
#pragma once
#include "core/shell/types.h"

namespace kestrel {

struct Etat;
struct Orbite;

void mat_produit(const Mat3& A, const Mat3& B, Mat3& C);            // C = A B
void mat_vecteur(const Mat3& M, const Vec3& v, Vec3& r,
                 double lignes = 3.0, double colonnes = 3.0);        // r = M v
double vec_scalaire(const Vec3& a, const Vec3& b);
void vec_vectoriel(const Vec3& a, const Vec3& b, Vec3& c);          // c = a x b
double vec_norme(const Vec3& v);
void vec_echelle(double s, const Vec3& v, Vec3& r);
void vec_somme(const Vec3& a, const Vec3& b, Vec3& r);

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
// Inertial -> body with the pointing of etat (yaw passed for both psi and phi).
void inertiel_vers_corps(const Etat& etat, const Vec3& v, Vec3& r);
void corps_vers_inertiel(const Etat& etat, const Vec3& v, Vec3& r);
// In place: R1(i) R3(om), uncorrected elements; form B with the argument of latitude.
void vers_orbital_i(const Orbite& orbite, Vec3& v);
void vers_orbital_u(const Etat& etat, Vec3& v);
// Argument of latitude u (rad) used by vers_orbital_u and euler_vers_inertiel.
double argument_latitude(const Etat& etat);

// Euler rates: y(3..5) from body rates w(0..2) and the angles y(0..2).
void euler_taux(const Vec6& w, Vec6& y);
// Local-orbital angles a (rad) -> the two equivalent sets of inertial angles.
void euler_vers_inertiel(const Etat& etat, const Vec3& a, Vec3& b, Vec3& c);

// Solves A x = b, n x n, A(i, j) = A[i + n j] (first index fastest); A and b
// unchanged. Crout LU with scaled partial pivoting (Euclidean row norms).
// Returns 0, or -1 for a singular system with x left as it was. No heap use
// for n <= 16.
int resout_lineaire(int n, const double* A, const double* b, double* x);

}  // namespace kestrel

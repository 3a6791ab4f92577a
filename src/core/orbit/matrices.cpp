// The turns between the frames of the satellite and the Euler-angle helpers
// of the attitude system. Every routine writes its result through a local
// first, so a result argument may be the same object as an input.
#include "core/orbit/matrices.h"

#include <cmath>

#include "core/math/math.h"
#include "core/orbit/orb_trajecto.h"

namespace kestrel {

namespace {

// R1(i) R3(om), angles in radians: rows (cos om, sin om, 0),
// (-cos i sin om, cos i cos om, sin i), (sin i sin om, -sin i cos om, cos i).
Mat3 matrice_r1_r3(double om, double i) {
    const double co = std::cos(om), so = std::sin(om), ci = std::cos(i), si = std::sin(i);
    Mat3 M;
    M(0, 0) = co;       M(0, 1) = so;       M(0, 2) = 0.0;
    M(1, 0) = -ci * so; M(1, 1) = ci * co;  M(1, 2) = si;
    M(2, 0) = si * so;  M(2, 1) = -si * co; M(2, 2) = ci;
    return M;
}

// Inertial -> plane matrix, om and i in degrees, om referred to 1950. This
// turn converts with pi / 180 in that order, unlike the others.
Mat3 matrice_plan(const Orbite& orbite, double om, double i) {
    return matrice_r1_r3(ascension_1950(orbite, om) * 3.14159265358979 / 180.0,
                         i * 3.14159265358979 / 180.0);
}

Mat3 transposee(const Mat3& M) {
    Mat3 T;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) T(i, j) = M(j, i);
    return T;
}

// Yaw p, pitch t, roll f (radians): R1(f) R2(t) R3(p).
Mat3 matrice_lacet_tangage_roulis(double p, double t, double f) {
    const double cp = std::cos(p), sp = std::sin(p), ct = std::cos(t), st = std::sin(t);
    const double cf = std::cos(f), sf = std::sin(f);
    Mat3 M;
    M(0, 0) = ct * cp;                M(0, 1) = ct * sp;                M(0, 2) = -st;
    M(1, 0) = sf * st * cp - cf * sp; M(1, 1) = sf * st * sp + cf * cp; M(1, 2) = sf * ct;
    M(2, 0) = cf * st * cp + sf * sp; M(2, 1) = cf * st * sp - sf * cp; M(2, 2) = cf * ct;
    return M;
}

// Local orbital form A -> body: yaw psi, pitch theta, roll phi, degrees.
Mat3 matrice_corps(double psi, double theta, double phi) {
    return matrice_lacet_tangage_roulis(psi * DEG_RAD, theta * DEG_RAD, phi * DEG_RAD);
}

// R1(i) R3(om), degrees, no 1950 correction.
Mat3 matrice_orbital_i(double om_deg, double i_deg) { return matrice_r1_r3(om_deg * DEG_RAD, i_deg * DEG_RAD); }

// Form A -> form B by the argument of latitude u (rad).
Mat3 matrice_orbital_u(double u) {
    const double cu = std::cos(u), su = std::sin(u);
    Mat3 M;
    M(0, 0) = 0.0; M(0, 1) = 0.0; M(0, 2) = 1.0;
    M(1, 0) = cu;  M(1, 1) = su;  M(1, 2) = 0.0;
    M(2, 0) = -su; M(2, 1) = cu;  M(2, 2) = 0.0;
    return M;
}

// Argument of latitude of the satellite in the plane frame: atan_quad of the
// normalised components.
double angle_dans_plan(const Vec3& p) {
    const double r = std::sqrt(p[0] * p[0] + p[1] * p[1]);
    return atan_quad(p[1] / r, p[0] / r);
}

}  // namespace

void vers_plan(const Orbite& orbite, double om, double i, const Vec3& v, Vec3& r) {
    const Mat3 M = matrice_plan(orbite, om, i);
    // Written out rather than by mat_vecteur: the sums run in the formula's order.
    const Vec3 s{M(0, 0) * v[0] + M(0, 1) * v[1],
                 M(1, 0) * v[0] + M(1, 1) * v[1] + M(1, 2) * v[2],
                 M(2, 0) * v[0] + M(2, 1) * v[1] + M(2, 2) * v[2]};
    r = s;
}

void depuis_plan(const Orbite& orbite, double om, double i, const Vec3& v, Vec3& r) {
    mat_vecteur(transposee(matrice_plan(orbite, om, i)), v, r, 3.0, 3.0);
}

void plan_vers_local(const Vec3& p, const Vec3& v, Vec3& r) {
    const double u = angle_dans_plan(p);
    const double cu = std::cos(u), su = std::sin(u);
    r = Vec3{-su * v[0] + cu * v[1], v[2], cu * v[0] + su * v[1]};
}

void local_vers_plan(const Vec3& p, const Vec3& v, Vec3& r) {
    const double u = angle_dans_plan(p);
    const double cu = std::cos(u), su = std::sin(u);
    r = Vec3{cu * v[2] - su * v[0], su * v[2] + cu * v[0], v[1]};
}

void vers_corps(double psi, double theta, double phi, const Vec3& v, Vec3& r) {
    mat_vecteur(matrice_corps(psi, theta, phi), v, r, 3.0, 3.0);
}

void depuis_corps(double psi, double theta, double phi, const Vec3& v, Vec3& r) {
    mat_vecteur(transposee(matrice_corps(psi, theta, phi)), v, r, 3.0, 3.0);
}

void inertiel_vers_corps(const Orbite& o, const Vec3& sat_pos, const Pointage& pt, const Vec3& v,
                         Vec3& r) {
    Vec3 vp, pp, loc;
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, v, vp);
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, sat_pos, pp);
    plan_vers_local(pp, vp, loc);
    // Yaw again in the roll place: in this direction the roll has no effect.
    // Kept as the program has always turned vectors into the body frame.
    vers_corps(pt.psi, pt.theta, pt.psi, loc, r);
}

void corps_vers_inertiel(const Orbite& o, const Vec3& sat_pos, const Pointage& pt, const Vec3& v,
                         Vec3& r) {
    Vec3 loc, pp, vp;
    depuis_corps(pt.psi, pt.theta, pt.phi, v, loc);
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, sat_pos, pp);
    local_vers_plan(pp, loc, vp);
    depuis_plan(o, o.orb_ascension, o.orb_inclinaison, vp, r);
}

void vers_orbital_i(const Orbite& orbite, Vec3& v) {
    mat_vecteur(matrice_orbital_i(orbite.orb_ascension, orbite.orb_inclinaison), v, v, 3.0, 3.0);
}

double argument_latitude(const Orbite& o, double anomalie_moy) {
    // anomalie_moy is already in radians; the extra degree factor is part of
    // this angle's long-standing definition and stays.
    const double m = anomalie_moy * DEG_RAD;
    const double e = o.orb_excentricite;  // as stored, no 1e-07 substitution
    const double E = kepler_inverse(m, e);
    double nu = 2.0 * std::atan(std::sqrt((1.0 + e) / (1.0 - e)) * std::tan(E / 2.0));
    nu = modulo(nu, DEUX_PI);
    return o.orb_argument * DEG_RAD + nu;
}

void vers_orbital_u(const Orbite& o, double anomalie_moy, Vec3& v) {
    mat_vecteur(matrice_orbital_u(argument_latitude(o, anomalie_moy)), v, v, 3.0, 3.0);
}

// The guard works on copies of the angles: a rate evaluation must not move the
// state it is evaluated at (the integrator calls it on trial states too).
void euler_taux(const Vec6& w, Vec6& y) {
    double a0 = y[0], a1 = y[1], a2 = y[2];
    angle_garde(a0);
    angle_garde(a1);
    angle_garde(a2);
    const double s0 = std::sin(a0), c0 = std::cos(a0);
    const double q = s0 * w[1] + c0 * w[2];
    y[3] = w[0] + q * std::tan(a1);
    y[4] = c0 * w[1] - s0 * w[2];
    y[5] = q / std::cos(a1);
}

void euler_vers_inertiel(const Orbite& o, double anomalie_moy, const Vec3& a, Vec3& b, Vec3& c) {
    double a0 = a[0], a1 = a[1], a2 = a[2];
    angle_garde(a0);
    angle_garde(a1);
    angle_garde(a2);
    // R1(a0) R2(a1) R3(a2): the body turn with a2 as yaw and a0 as roll.
    const Mat3 A = matrice_lacet_tangage_roulis(a2, a1, a0);

    const Mat3 T1 = transposee(matrice_orbital_i(-o.orb_ascension, -o.orb_inclinaison));
    const Mat3 T2 = transposee(matrice_orbital_u(-argument_latitude(o, anomalie_moy)));
    Mat3 AT1, R;
    mat_produit(A, T1, AT1);
    mat_produit(AT1, T2, R);

    if (std::fabs(R(0, 2)) > 1.0) R(0, 2) = (R(0, 2) > 0.0 ? 1.0 : -1.0) * 0.999999999999999;
    Vec3 bb;
    bb[1] = -arcsin_v(R(0, 2));
    bb[0] = atan2_v(R(1, 2), R(2, 2));
    bb[2] = atan2_v(R(0, 1), R(0, 0));
    const Vec3 cc{bb[0] + PI, PI - bb[1], bb[2] + PI};
    b = bb;
    c = cc;
}

}  // namespace kestrel

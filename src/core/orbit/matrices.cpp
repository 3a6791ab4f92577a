// Vectors, 3x3 matrices (M(i, j) = m[i + 3 j]), the turns between the frames
// of the satellite and the Euler-angle helpers of the attitude system. Every
// routine writes its result through a local first, so a result argument may
// be the same object as an input.
#include "core/orbit/matrices.h"

#include <cmath>
#include <vector>

#include "core/etat.h"
#include "core/orbit/math.h"
#include "core/orbit/orb_trajecto.h"

namespace kestrel {

void mat_produit(const Mat3& A, const Mat3& B, Mat3& C) {
    Mat3 R;  // cleared
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            for (int k = 0; k < 3; ++k) R(i, j) += A(i, k) * B(k, j);
    C = R;
}

void mat_vecteur(const Mat3& M, const Vec3& v, Vec3& r, double lignes, double colonnes) {
    Vec3 s{};
    const int n = static_cast<int>(lignes);
    const int p = static_cast<int>(colonnes);
    for (int i = 0; i < n && i < 3; ++i)
        for (int j = 0; j < p && j < 3; ++j) s[i] += M(i, j) * v[j];
    r = s;
}

double vec_scalaire(const Vec3& a, const Vec3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

void vec_vectoriel(const Vec3& a, const Vec3& b, Vec3& c) {
    const Vec3 s{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    c = s;
}

double vec_norme(const Vec3& v) { return std::sqrt(vec_scalaire(v, v)); }

void vec_echelle(double s, const Vec3& v, Vec3& r) {
    r = Vec3{s * v[0], s * v[1], s * v[2]};
}

void vec_somme(const Vec3& a, const Vec3& b, Vec3& r) {
    r = Vec3{a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

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

void inertiel_vers_corps(const Etat& etat, const Vec3& v, Vec3& r) {
    const Orbite& o = etat.orbite;
    Vec3 vp, pp, loc;
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, v, vp);
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, etat.orb.sat_pos, pp);
    plan_vers_local(pp, vp, loc);
    // Yaw again in the roll place: in this direction the roll has no effect.
    // Kept as the program has always turned vectors into the body frame.
    vers_corps(etat.pointage.psi, etat.pointage.theta, etat.pointage.psi, loc, r);
}

void corps_vers_inertiel(const Etat& etat, const Vec3& v, Vec3& r) {
    const Orbite& o = etat.orbite;
    Vec3 loc, pp, vp;
    depuis_corps(etat.pointage.psi, etat.pointage.theta, etat.pointage.phi, v, loc);
    vers_plan(o, o.orb_ascension, o.orb_inclinaison, etat.orb.sat_pos, pp);
    local_vers_plan(pp, loc, vp);
    depuis_plan(o, o.orb_ascension, o.orb_inclinaison, vp, r);
}

void vers_orbital_i(const Orbite& orbite, Vec3& v) {
    mat_vecteur(matrice_orbital_i(orbite.orb_ascension, orbite.orb_inclinaison), v, v, 3.0, 3.0);
}

double argument_latitude(const Etat& etat) {
    // anomalie_moy is already in radians; the extra degree factor is part of
    // this angle's long-standing definition and stays.
    const double m = etat.orb.anomalie_moy * DEG_RAD;
    const double e = etat.orbite.orb_excentricite;  // as stored, no 1e-07 substitution
    const double E = kepler_inverse(m, e);
    double nu = 2.0 * std::atan(std::sqrt((1.0 + e) / (1.0 - e)) * std::tan(E / 2.0));
    nu = modulo(nu, DEUX_PI);
    return etat.orbite.orb_argument * DEG_RAD + nu;
}

void vers_orbital_u(const Etat& etat, Vec3& v) {
    mat_vecteur(matrice_orbital_u(argument_latitude(etat)), v, v, 3.0, 3.0);
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

void euler_vers_inertiel(const Etat& etat, const Vec3& a, Vec3& b, Vec3& c) {
    double a0 = a[0], a1 = a[1], a2 = a[2];
    angle_garde(a0);
    angle_garde(a1);
    angle_garde(a2);
    // R1(a0) R2(a1) R3(a2): the body turn with a2 as yaw and a0 as roll.
    const Mat3 A = matrice_lacet_tangage_roulis(a2, a1, a0);

    const Orbite& o = etat.orbite;
    const Mat3 T1 = transposee(matrice_orbital_i(-o.orb_ascension, -o.orb_inclinaison));
    const Mat3 T2 = transposee(matrice_orbital_u(-argument_latitude(etat)));
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

// Crout LU with scaled partial pivoting. Work arrays sit on the stack up to
// n = 16 (the attitude system is far below that); larger systems use the heap.
int resout_lineaire(int n, const double* A, const double* b, double* x) {
    if (n < 0) return -1;
    constexpr int N_PILE = 16;
    double a_pile[N_PILE * N_PILE], y_pile[N_PILE], ech_pile[N_PILE];
    int perm_pile[N_PILE];
    std::vector<double> a_tas, y_tas, ech_tas;
    std::vector<int> perm_tas;
    double *a = a_pile, *y = y_pile, *ech = ech_pile;
    int* perm = perm_pile;
    if (n > N_PILE) {
        a_tas.resize(static_cast<size_t>(n) * n);
        y_tas.resize(n);
        ech_tas.resize(n);
        perm_tas.resize(n);
        a = a_tas.data();
        y = y_tas.data();
        ech = ech_tas.data();
        perm = perm_tas.data();
    }
    auto el = [a, n](int i, int j) -> double& { return a[i + n * j]; };

    for (int k = 0; k < n * n; ++k) a[k] = A[k];
    for (int i = 0; i < n; ++i) y[i] = b[i];

    // Row scale by the Euclidean norm; an all-zero row keeps the factor 1.
    for (int i = 0; i < n; ++i) {
        double s = 0.0;
        for (int j = 0; j < n; ++j) s += el(i, j) * el(i, j);
        ech[i] = s == 0.0 ? 1.0 : 1.0 / std::sqrt(s);
        perm[i] = i;
    }

    double det = 1.0;
    int colonnes = n;  // columns actually eliminated
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < j; ++i) {
            double s = el(i, j);
            for (int k = 0; k < i; ++k) s -= el(i, k) * el(k, j);
            el(i, j) = s;
        }
        double grand = 0.0;
        int ipiv = j;
        for (int i = j; i < n; ++i) {
            double s = el(i, j);
            for (int k = 0; k < j; ++k) s -= el(i, k) * el(k, j);
            el(i, j) = s;
            const double t = std::fabs(s) * ech[i];
            if (t > grand) {
                grand = t;
                ipiv = i;
            }
        }
        if (ipiv != j) {
            for (int k = 0; k < n; ++k) std::swap(el(ipiv, k), el(j, k));
            std::swap(ech[ipiv], ech[j]);
            det = -det;
        }
        perm[j] = ipiv;
        const double pivot = el(j, j);
        det *= pivot;
        if (std::fabs(pivot) < 1e-21) {
            colonnes = j + 1;
            break;
        }
        for (int i = j + 1; i < n; ++i) el(i, j) /= pivot;
    }
    if (std::fabs(det) < 1e-21) return -1;

    // Forward substitution (unit lower factor) with the row exchanges applied
    // to the right-hand side in the order they were made, then back substitution.
    for (int i = 0; i < colonnes; ++i) std::swap(y[perm[i]], y[i]);
    for (int i = 0; i < n; ++i) {
        double s = y[i];
        for (int k = 0; k < i; ++k) s -= el(i, k) * y[k];
        y[i] = s;
    }
    for (int i = n - 1; i >= 0; --i) {
        double s = y[i];
        for (int k = i + 1; k < n; ++k) s -= el(i, k) * y[k];
        y[i] = s / el(i, i);
    }
    for (int i = 0; i < n; ++i) x[i] = y[i];
    return 0;
}

}  // namespace kestrel

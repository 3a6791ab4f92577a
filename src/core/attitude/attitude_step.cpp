#include "core/attitude/attitude_step.h"

#include <array>
#include <cmath>

#include "core/attitude/attitude_init.h"
#include "core/attitude/total_torque.h"
#include "core/etat/etat.h"
#include "core/math/lineaire.h"
#include "core/math/math.h"
#include "core/orbit/matrices.h"

namespace kestrel {

namespace {

// Rows of M (damper equations: row 5 for damper 0, 3 for 1, 4 for 2) and
// columns (zdd0, zdd1, zdd2 in 3, 4, 5) kept for each set of active dampers,
// indexed by bit d = damper d active.
struct Reduction {
    int n;
    std::array<int, 6> lignes;
    std::array<int, 6> colonnes;
};
constexpr std::array<Reduction, 8> REDUCTIONS{{
    {3, {0, 1, 2}, {0, 1, 2}},                      // none
    {4, {0, 1, 2, 5}, {0, 1, 2, 3}},                // 0
    {4, {0, 1, 2, 3}, {0, 1, 2, 4}},                // 1
    {5, {0, 1, 2, 3, 5}, {0, 1, 2, 3, 4}},          // 0, 1
    {4, {0, 1, 2, 4}, {0, 1, 2, 5}},                // 2
    {5, {0, 1, 2, 4, 5}, {0, 1, 2, 3, 5}},          // 0, 2
    {5, {0, 1, 2, 3, 4}, {0, 1, 2, 4, 5}},          // 1, 2
    {6, {0, 1, 2, 3, 4, 5}, {0, 1, 2, 3, 4, 5}},    // 0, 1, 2
}};

// Fills M (6x6) and B (6x7) term for term. Some terms are not what a
// symmetric derivation gives; they are the model as it stands.
void remplit_systeme(const AttitudeRecord& a, double M[6][6], double B[6][7]) {
    const double Ixx = a.I(0, 0), Iyy = a.I(1, 1), Izz = a.I(2, 2);
    const double Ixy = a.I(0, 1), Ixz = a.I(0, 2), Iyz = a.I(1, 2);
    const double Mt = a.Mt;
    const double md0 = a.md[0], md1 = a.md[1], md2 = a.md[2];
    const double ld0 = a.ld[0], ld1 = a.ld[1], ld2 = a.ld[2];
    const double z0 = a.z[0], z1 = a.z[1], z2 = a.z[2];
    const double wx = a.omega[0], wy = a.omega[1], wz = a.omega[2];
    const double om0 = a.om[0], om1 = a.om[1], om2 = a.om[2];
    const double JR0 = a.JR[0], JR1 = a.JR[1], JR2 = a.JR[2];
    auto sq = [](double x) { return x * x; };

    for (int i = 0; i < 6; ++i) {
        for (int j = 0; j < 6; ++j) M[i][j] = 0;
        for (int j = 0; j < 7; ++j) B[i][j] = 0;
    }

    M[0][0] = Ixx + md0 * sq(z0) + md2 * sq(z2) - sq(md0) * sq(z0) / Mt - sq(md2) * sq(z2) / Mt;
    M[0][1] = -Ixy - md1 * ld1 * z1 + md1 * md2 * z1 * z2 / Mt;
    M[0][2] = -Ixz - md0 * ld0 * z0 + md0 * md1 * z0 * z1 / Mt;
    M[0][3] = -md0 * md2 * z2 / Mt;
    M[0][5] = -md2 * ld2 + md0 * md2 * z0 / Mt;
    M[1][0] = -Ixy - md1 * ld1 * z1 + md1 * md2 * z1 * z2 / Mt;
    M[1][1] = Iyy + md0 * sq(z0) + md1 * sq(z1) - sq(md0) * z0 * z1 / Mt - sq(md1) * sq(z1) / Mt;
    M[1][2] = -Iyz - md2 * ld2 * z2 + md0 * md2 * z0 * z2 / Mt;
    M[1][3] = -md0 * ld0 + md0 * md1 * z1 / Mt;
    M[1][4] = -md0 * md1 * z0 / Mt;
    M[2][0] = -Ixz - md0 * ld0 * z0 + md0 * md1 * z0 * z1 / Mt;
    M[2][1] = -Iyz - md2 * ld2 * z2 + md0 * md2 * z0 * z2 / Mt;
    M[2][2] = Izz + md1 * sq(z1) + md2 * sq(z2) - sq(md1) * z1 / Mt - sq(md2) * sq(z2) / Mt;
    M[2][4] = -md1 * ld1 + md1 * md2 * z2 / Mt;
    M[2][5] = -md1 * md2 * z1 / Mt;
    M[3][1] = md0 * z0 + md2 * ld2 - sq(md0) * z0 / Mt;
    M[3][2] = -md2 * z2 - md1 * ld1 + sq(md2) * z2 / Mt;
    M[3][4] = md1 - sq(md1) / Mt;
    M[4][0] = -md0 * z0 - md2 * ld2 + sq(md0) * z0 / Mt;
    M[4][2] = md1 * z1 + md0 * ld0 - sq(md1) * z1 / Mt;
    M[4][5] = md2 - sq(md2) / Mt;
    M[5][0] = md2 * z2 + md1 * ld1 - sq(md2) * z2 / Mt;
    M[5][1] = -md1 * z1 - md0 * ld0 + sq(md1) * z1 / Mt;
    M[5][3] = md0 - sq(md0) / Mt;

    // factors of zd0
    B[0][0] = 2 * md0 * z0 * wx - 2 * sq(md0) * z0 * wx / Mt;
    B[1][0] = md0 * z0 * wy - 2 * sq(md0) * z0 * wy / Mt;
    B[2][0] = -2 * md0 * ld0 * wx + 2 * md0 * md1 * z1 * wx / Mt + 2 * md0 * md2 * z2 * wy / Mt;
    B[3][0] = 2 * md0 * wy - 2 * sq(md0) * wy / Mt;
    B[4][0] = -2 * md0 * wx + 2 * sq(md0) * wx / Mt;
    B[5][0] = a.c[0];
    // factors of zd1
    B[0][1] = -2 * md1 * ld1 * wy + 2 * md0 * md1 * z0 * wz / Mt + 2 * md1 * md2 * z2 * wy / Mt;
    B[1][1] = md1 * z1 * wy - 2 * sq(md1) * z1 * wy / Mt;
    B[2][1] = md1 * z1 - 2 * sq(md1) * z1 * wy / Mt;  // no wy on the first term: as it stands
    B[3][1] = a.c[1];
    B[4][1] = 2 * md1 * wz - 2 * sq(md1) * wz / Mt;
    B[5][1] = -2 * md1 * wy + 2 * sq(md1) * wy / Mt;
    // factors of zd2
    B[0][2] = md2 * z2 * wx - 2 * sq(md2) * z2 * wx / Mt;
    B[1][2] = -2 * md2 * ld2 * wz + 2 * md0 * md2 * z0 * wz / Mt + 2 * md1 * md2 * z1 * wx / Mt;
    B[2][2] = md2 * z2 * wz - 2 * sq(md2) * z2 * wz / Mt;
    B[3][2] = -2 * md2 * wz + 2 * sq(md2) * wz / Mt;
    B[4][2] = a.c[2];
    B[5][2] = 2 * md2 * wx - 2 * sq(md2) * wx / Mt;
    // factors of omd
    B[0][3] = JR0;
    B[1][4] = JR1;
    B[2][5] = JR2;

    // free terms: gyroscopic body and wheel terms, springs
    B[0][6] = -Iyy * wy * wz + Izz * wy * wz + Ixy * wx * wz - Ixz * wx * wy - Iyz * sq(wy) + Iyz * sq(wz) -
              md0 * sq(z0) * wy * wz + md2 * z2 * z2 * z2 * wy * wz - md0 * ld0 * z0 * wx * wy +
              md1 * ld1 * z1 * wx * wz - md2 * ld2 * z2 * sq(wy) + md2 * ld2 * z2 * sq(wz) + wy * JR2 * om2 -
              wz * JR1 * om1 + md0 * md1 * z0 * z1 * wx * wy / Mt + md0 * md2 * z0 * z2 * sq(wy) / Mt -
              md0 * md2 * z0 * z2 * sq(wz) / Mt + sq(md0) * sq(z0) * wy * wz / Mt -
              md1 * md2 * z1 * z2 * wx * wz / Mt - sq(md2) * z0 * z2 * wy * wz / Mt;
    B[1][6] = Ixx * wx * wz - Izz * wx * wz - Ixy * wy * wz + Ixz * sq(wx) - Ixz * sq(wz) + Iyz * wx * wy +
              md0 * sq(z0) * wx * wz - md1 * sq(z1) * wx * wz + md0 * ld0 * z0 * sq(wx) -
              md0 * ld0 * z0 * sq(wz) - md1 * ld1 * z1 * wy * wz + md2 * ld2 * z2 * wx * wy - wx * JR2 * om2 +
              wz * JR0 * om0 - md0 * md1 * z0 * z1 * sq(wx) / Mt + md0 * md1 * z0 * z1 * sq(wz) / Mt -
              md0 * md2 * z0 * z2 * wx * wy / Mt - sq(md0) * sq(z0) * wx * wz / Mt +
              md1 * md2 * z1 * z2 * wy * wz / Mt + sq(md1) * z1 * z2 * wx * wz / Mt;
    B[2][6] = -Ixx * wx * wy + Iyy * wx * wy - Ixy * sq(wx) + Ixy * sq(wy) + Ixz * wy * wz - Iyz * wx * wz +
              md1 * sq(z1) * wx * wy - md2 * sq(z2) * wx * wy + md0 * ld0 * z0 * wy * wz -
              md1 * ld1 * z1 * sq(wx) + md1 * ld1 * z1 * sq(wy) - md2 * ld2 * z2 * wx * wz + wx * JR1 * om1 -
              wy * JR0 * om0 - md0 * md1 * z0 * z1 * wy * wz / Mt + md0 * md2 * z0 * z2 * wx * wz / Mt +
              md1 * md2 * z1 * z2 * sq(wx) / Mt - md1 * md2 * z1 * z2 * sq(wy) / Mt -
              sq(md1) * sq(z1) * wx * wy / Mt + sq(md2) * sq(z2) * wx * wy / Mt;
    B[3][6] = md0 * z0 * wx * wz - md1 * z1 * sq(wy) - md1 * z1 * sq(wz) + md2 * z2 * wx * wy -
              md0 * ld0 * sq(wy) - md0 * ld0 * sq(wz) + md1 * ld1 * wx * wy + md2 * ld2 * wx * wz + z1 * a.k[1] -
              sq(md0) * z0 * wx * wz / Mt + sq(md1) * z1 * sq(wy) / Mt + sq(md1) * z1 * sq(wz) / Mt -
              sq(md2) * z2 * wx * wy / Mt;
    B[4][6] = md0 * z0 * wy * wz + md1 * z1 * wx * wy - md2 * z2 * sq(wx) - md2 * z2 * sq(wz) +
              md0 * ld0 * wx * wy - md1 * ld1 * sq(wx) - md1 * ld1 * sq(wz) + md2 * ld2 * wy * wz + z2 * a.k[2] -
              sq(md0) * z0 * wy * wz / Mt - sq(md1) * z1 * wx * wy / Mt + sq(md2) * z2 * sq(wx) / Mt +
              sq(md2) * z2 * sq(wz) / Mt;
    // md0^2 wx wz and md2 wy^2 below are part of the model as it stands
    B[5][6] = -md0 * z0 * sq(wx) - md0 * z0 * sq(wy) + sq(md0) * wx * wz + md1 * z1 * wx * wz +
              md2 * z2 * wy * wz - md2 * sq(wy) + md1 * ld1 * wy * wz - md2 * ld2 * sq(wx) + z0 * a.k[0] +
              sq(md0) * z0 * sq(wx) / Mt + sq(md0) * z0 * sq(wy) / Mt - sq(md1) * z1 * wx * wz / Mt -
              sq(md2) * z2 * wy * wz / Mt;
}

// Of the nine quarter-turn shifts of x, the one nearest to prev (first wins).
double plus_proche(double x, double prev) {
    const double candidats[9] = {x + DEUX_PI, x + PI + DEMI_PI, x + PI, x + DEMI_PI, x,
                                 x - DEMI_PI, x - PI, x - PI - DEMI_PI, x - DEUX_PI};
    double meilleur = x;
    double ecart = DEUX_PI;
    for (double c : candidats) {
        double d = std::fabs(c - prev);
        if (d < ecart) {
            ecart = d;
            meilleur = c;
        }
    }
    return meilleur;
}

}  // namespace

double reduit_tour(double x) { return signe(x) * modulo(std::fabs(x), DEUX_PI); }

double reduit_inertiel(double x) {
    x = reduit_tour(x);
    if (x > PI) x -= DEUX_PI;
    if (x <= -PI) x += DEUX_PI;
    return x;
}

double reduit_orbital(double x) {
    x = reduit_tour(x);
    if (x > PI) x -= DEUX_PI;
    if (x < -PI) x += DEUX_PI;
    return x;
}

void choix_tangage(Vec6& yd, const Vec3& s1, const Vec3& s2, double dt) {
    Vec3 s3 = s2;
    s3[1] -= DEUX_PI;
    const Vec3* sols[3] = {&s1, &s2, &s3};
    for (int t = 0; t < 3; ++t) {
        double p = yd[4] * dt + yd[2];
        double d[3];
        for (int k = 0; k < 3; ++k) d[k] = std::fabs(p - (*sols[k])[1]);
        if (d[t] <= d[(t + 1) % 3] && d[t] <= d[(t + 2) % 3]) {
            yd[0] = (*sols[t])[0];
            yd[2] = (*sols[t])[1];
            yd[1] = (*sols[t])[2];
        }
    }
}

double taux_differences(double y, double q, double dt) {
    bool saut = std::fabs(y - q) > 5.2359877;  // 300 deg
    if (saut && signe(y) != signe(q)) q = q - 2 * signe(q) * PI;
    return (y - q) / dt;
}

bool attitude_step(Etat& etat, double dt, double date, const TablesAtmosphere& tables) {
    AttitudeRecord& a = etat.att;
    quat_refresh(etat);
    total_torque(etat, date, tables);

    for (int i = 0; i < 3; ++i) a.dip_tot[i] = a.dip_cmd[i] * a.dip_act[i] + a.dip_res[i];
    const Vec3 jets = a.jets;

    double M[6][6], B[6][7];
    remplit_systeme(a, M, B);

    double R[6];
    for (int i = 0; i < 6; ++i) {
        double T = (i < 3) ? a.ctot[i] - jets[i] : 0.0;
        R[i] = T - B[i][0] * a.zd[0] - B[i][1] * a.zd[1] - B[i][2] * a.zd[2] - B[i][3] * a.omd[0] -
               B[i][4] * a.omd[1] - B[i][5] * a.omd[2] - B[i][6];
    }

    int cas = 0;
    for (int d = 0; d < 3; ++d)
        if (a.md[d] > 1e-21) cas |= 1 << d;
    const Reduction& red = REDUCTIONS[static_cast<std::size_t>(cas)];
    const int n = red.n;
    double Ar[36], br[6], x[6] = {};
    for (int i = 0; i < n; ++i) {
        br[i] = R[red.lignes[static_cast<std::size_t>(i)]];
        for (int j = 0; j < n; ++j)
            Ar[i + n * j] = M[red.lignes[static_cast<std::size_t>(i)]][red.colonnes[static_cast<std::size_t>(j)]];
    }
    if (resout_lineaire(n, Ar, br, x) == -1) {
        // singular: the state stays, the run goes on, nothing is shown
        if (!etat.alertes.systeme_singulier) etat.alertes.date_singulier = date;
        etat.alertes.systeme_singulier = true;
        return false;
    }

    for (int i = 0; i < 3; ++i) a.omega[3 + i] = x[i];
    a.zdd = {};
    for (int i = 3; i < n; ++i) a.zdd[static_cast<std::size_t>(red.colonnes[static_cast<std::size_t>(i)] - 3)] = x[i];

    // explicit first order; z uses the speed just updated
    for (int i = 0; i < 3; ++i) a.omega[i] += a.omega[3 + i] * dt;
    for (int i = 0; i < 3; ++i) a.zd[i] += a.zdd[i] * dt;
    for (int i = 0; i < 3; ++i) a.z[i] += a.zd[i] * dt + 0.5 * a.zdd[i] * dt * dt;

    double prec[3] = {a.yi[0], a.yi[1], a.yi[2]};
    for (int i = 0; i < 3; ++i) a.yi[i] += a.yi[3 + i] * dt;
    for (int i = 0; i < 3; ++i) a.yi[i] = reduit_inertiel(a.yi[i]);
    for (int i = 0; i < 3; ++i) a.yi[i] = plus_proche(a.yi[i], prec[i]);
    for (int i = 0; i < 3; ++i) a.yi[i] = reduit_inertiel(a.yi[i]);
    euler_taux(a.omega, a.yi);

    for (int i = 0; i < 3; ++i) a.om[i] = a.OM[i] - a.omega[i];
    a.omd[0] = -a.omega[3];
    a.omd[1] = -a.omega[4];
    a.omd[1] = -a.omega[5];  // written twice; omd(2) keeps its initial value

    orbite_a_date(etat, dt / 86400.0 + date);

    // orbital-frame angles from the inertial ones: two solutions (roll, pitch,
    // yaw), chosen by continuity of the pitch
    Vec3 s1, s2;
    euler_vers_inertiel(etat, Vec3{a.yi[0], a.yi[1], a.yi[2]}, s1, s2);
    const double yd_prec[3] = {a.yd[0], a.yd[1], a.yd[2]};
    choix_tangage(a.yd, s1, s2, dt);
    a.yd[0] = reduit_orbital(a.yd[0]);
    a.yd[2] = reduit_orbital(a.yd[2]);
    a.yd[1] = reduit_orbital(a.yd[1]);

    // rates: element 0 -> yd(3), 2 -> yd(4), 1 -> yd(5)
    a.yd[3] = taux_differences(a.yd[0], yd_prec[0], dt);
    a.yd[4] = taux_differences(a.yd[2], yd_prec[2], dt);
    a.yd[5] = taux_differences(a.yd[1], yd_prec[1], dt);
    quat_refresh(etat);
    return true;
}

}  // namespace kestrel

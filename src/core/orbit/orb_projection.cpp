// Sun from closed series, Greenwich sidereal angle, the Earth-fixed frame and
// the geodetic ground point. Dates: days since 1950-01-01 00:00. Inertial frame
// of 1950; Earth-fixed frame turning with the sidereal angle about the pole.
#include "core/orbit/orb_projection.h"

#include <cmath>

#include "core/shell/types.h"

namespace kestrel {

namespace {
constexpr double A_TERRE = 6378.137;   // km, equatorial radius
constexpr double B_TERRE = 6356.752;   // km, polar radius
constexpr double E2_TERRE = 0.0066943799901413165;
constexpr double RAPPORT_AXES = 0.9966471893352525;
constexpr double UA = 149596000.0;     // km
constexpr int PASSES_MAX = 100000;     // safety cap of the geodetic loop
}  // namespace

Vec3 soleil_vecteur(double j) {
    const double T = j - 18262.5;  // days from 2000-01-01 12:00
    const double t = j + 18262.5;  // days from the 1900 epoch

    const double g = T * 0.01720196965 + 6.239994691;
    const double R = (1.00014 - 0.01675 * std::cos(g) - 0.00014 * std::cos(2.0 * g)) * UA;

    const double eps = ((t * 1.8016676426329e-22 - 2.14556050619e-17) * t - 6.2179594501235e-09) * t +
                       0.40931974744572;
    const double e = (t * -9.4447419350758e-17 - 1.1444216290212e-09) * t + 0.0167104;
    const double L = (t * 3.9640538620461e-15 + 0.017202791266239) * t + 4.881627972897;
    const double M =
        ((t * -1.0745532659839e-21 - 1.962402902003e-15) * t + 0.017201969767685) * t + 6.2565835223195;

    double lambda = 2.0 * e * std::sin(M) + L + 1.25 * e * e * std::sin(2.0 * M);
    // One step each way only: lambda may stay several turns large, which the
    // sine and cosine below do not mind.
    if (lambda >= DEUX_PI) lambda -= DEUX_PI;
    if (lambda < 0.0) lambda += DEUX_PI;

    // Equinox of date back to the 1950 equinox: a turn of p about the pole.
    const double p = j * 6.11902e-07;
    const double cl = std::cos(lambda), sl = std::sin(lambda), ce = std::cos(eps), se = std::sin(eps);
    const double cp = std::cos(p), sp = std::sin(p);
    const double x = cp * cl + sp * ce * sl;
    const double y = -sp * cl + cp * ce * sl;
    const double z = se * sl;
    return Vec3{R * x, R * y, R * z};
}

double temps_sideral(double j) {
    const double d = j - 11689.0;
    const double f = d - std::floor(d);
    double th = d * 0.017202179573701 + 1.74664770861787 + f * DEUX_PI;
    th = th - std::floor(th / DEUX_PI) * DEUX_PI;
    th = th + 0.0143472072435316;
    if (th < 0.0) th += DEUX_PI;
    if (DEUX_PI < th) th -= DEUX_PI;
    return th;
}

void vers_terrestre(double j, const Vec3& v, Vec3& r) {
    const double th = temps_sideral(j);
    const double c = std::cos(th), s = std::sin(th);
    r = Vec3{c * v[0] + s * v[1], -s * v[0] + c * v[1], v[2]};
}

void vers_inertiel(double j, const Vec3& v, Vec3& r) {
    const double th = temps_sideral(j);
    const double c = std::cos(th), s = std::sin(th);
    r = Vec3{c * v[0] - s * v[1], s * v[0] + c * v[1], v[2]};
}

bool cart_vers_geodesique(const Vec3& P, double& lon, double& lat, double& alt) {
    const double X = P[0], Y = P[1], Z = P[2];
    if (X == 0.0) {
        lon = Y > 0.0 ? DEMI_PI : -DEMI_PI;
    } else if (Y == 0.0) {
        lon = X > 0.0 ? 0.0 : PI;
    } else {
        lon = std::atan(Y / X);
        if (X < 0.0) lon += Y >= 0.0 ? PI : -PI;
    }

    const double rho2 = X * X + Y * Y;
    if (A_TERRE * A_TERRE * 1e-18 > rho2) {
        // On the axis: latitude and altitude from the pole (nothing written at Z = 0).
        if (Z > 0.0) {
            alt = Z - B_TERRE;
            lat = DEMI_PI;
        } else if (Z < 0.0) {
            alt = -Z - B_TERRE;
            lat = -DEMI_PI;
        }
        return true;
    }
    if (Z == 0.0) {
        lat = 0.0;
        alt = std::sqrt(rho2) - A_TERRE;
        return true;
    }

    const double p = std::sqrt(rho2);
    double h = std::sqrt(X * X + Y * Y + Z * Z) - std::sqrt(RAPPORT_AXES) * A_TERRE;
    double N = A_TERRE;
    alt = h;
    lat = std::atan((Z / p) / (1.0 - E2_TERRE * N / (h + N)));
    for (int passe = 0; passe < PASSES_MAX; ++passe) {
        const double alt0 = alt, lat0 = lat;
        const double sl = std::sin(lat);
        N = A_TERRE / std::sqrt(1.0 - E2_TERRE * sl * sl);
        h = p / std::cos(lat) - N;
        alt = h;
        lat = std::atan((Z / p) / (1.0 - N * E2_TERRE / (h + N)));
        if (std::fabs(alt - alt0) < 6.378137e-07 && std::fabs(lat - lat0) < 1e-10) return true;
    }
    return false;
}

void sous_point(double j, const Vec3& pos, double& lon, double& lat, double& alt, Erreur& faute) {
    Vec3 X;
    vers_terrestre(j, pos, X);
    if (!cart_vers_geodesique(X, lon, lat, alt))
        signale_faute(faute, CodeErreur::non_convergence, j, "latitude géodésique");
}

}  // namespace kestrel

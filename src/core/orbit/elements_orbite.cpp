#include "core/orbit/elements_orbite.h"

#include <cmath>

#include <fmt/format.h>

#include "core/orbit/orbite.h"
#include "core/shell/types.h"

namespace kestrel {

namespace {
constexpr double MU_TERRE = 398601.3;     // km^3/s^2
constexpr double RAYON_TERRE = 6378.137;  // km, equatorial
}  // namespace

// Written as the window always computed them (exp / ln, PI to 15 digits), so
// a value typed in one box gives the same digits in the other.
double moy_mvt_depuis_demi(double a) {
    return std::sqrt(MU_TERRE / std::exp(3.0 * std::log(a))) * 86400.0 / 2.0 / PI;
}

double demi_depuis_moy_mvt(double moy_mvt) {
    const double n = 2.0 * moy_mvt * PI / 86400.0;  // rad/s
    return std::exp(std::log(MU_TERRE / n / n) / 3.0);
}

double altitude_apogee(const Orbite& o) { return (1.0 + o.orb_excentricite) * o.orb_demi - RAYON_TERRE; }

double altitude_perigee(const Orbite& o) { return (1.0 - o.orb_excentricite) * o.orb_demi - RAYON_TERRE; }

std::string texte_periode(const Orbite& o) {
    const double p = 1.0 / o.orb_moy_mvt;  // days
    const double jours = std::floor(p);
    // The rest of the day to the nearest second; 86400 s rounds into the next day.
    long s = std::lround((p - jours) * 86400.0);
    long j = static_cast<long>(jours);
    if (s >= 86400) {
        s -= 86400;
        ++j;
    }
    const std::string heure = fmt::format("{:02}:{:02}:{:02}", s / 3600, s / 60 % 60, s % 60);
    return j > 0 ? fmt::format("{} j {}", j, heure) : heure;
}

}  // namespace kestrel

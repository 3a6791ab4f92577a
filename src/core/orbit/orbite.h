// The orbit record (mean Keplerian elements, fixed for a run) and the outputs
// that orb_position and sous_point leave for the date they were given.
#pragma once
#include <array>
#include <cstdint>

#include "core/shell/types.h"

namespace kestrel {

struct Orbite {
    double orb_inclinaison = 0.0;   // deg
    double orb_ascension = 0.0;     // deg, right ascension of the node, equinox of the epoch
    double orb_excentricite = 0.0;  // -
    double orb_argument = 0.0;      // deg, argument of perigee
    double orb_anomalie = 0.0;      // deg, mean anomaly at the epoch
    double orb_moy_mvt = 15.0;      // rev/day; shown only, the rate comes from orb_demi
    int16_t orb_an = 2001;          // epoch year, four digits
    double orb_jour = 80.55001;     // epoch day of the year, 1.0 = 1 January 00:00
    double orb_demi = 7174.0;       // km, semi-major axis
    // .orb record fields that no model reads
    std::array<char, 24> nom = blancs();      // orbit name, blank-padded
    std::array<double, 3> reserve{};          // stored as they stand

    static constexpr std::array<char, 24> blancs() {
        std::array<char, 24> b{};
        for (auto& c : b) c = ' ';
        return b;
    }
};

// What the propagation derives from the elements alone, kept between calls so
// that a run with fixed elements skips those sines, cosines and roots. Each
// part is keyed by the exact bits of the values it comes from: a hit gives
// the very numbers a fresh computation would.
struct MemoireOrbite {
    // Perifocal unit vectors, sqrt(1 - e^2) and the rate from a alone.
    std::array<uint64_t, 5> cle_plan{};  // bits of a, e, i, w, om (km, -, rad)
    bool plan_valide = false;
    Vec3 P{}, Q{};
    double s = 0.0;       // sqrt(1 - e^2)
    double n_plan = 0.0;  // rad/s, sqrt(mu / (a^2 a))
    // Mean motion and epoch date.
    std::array<uint64_t, 3> cle_kepler{};  // bits of a, d, and the year
    bool kepler_valide = false;
    double n = 0.0;   // rad/s, sqrt(mu / a) / a
    double t0 = 0.0;  // day count of the epoch
};

// Outputs, inertial frame of the mean equator and equinox of 1950.
struct SortiesOrbite {
    Vec3 sat_pos{};          // km
    Vec3 sat_vit{};          // km/s
    Vec3 soleil_pos{};       // km, Earth centre to Sun
    Vec3 vec_nadir{};        // unit, satellite to Earth centre
    Vec3 vec_soleil{};       // unit, satellite to Sun
    int16_t eclipse = FAUX;  // -1 in the Earth's shadow (cone of 6428 km)
    double anomalie_moy = 0; // rad, reduced to one turn
    double sat_lon = 0;      // rad, (-pi, pi]
    double sat_lat = 0;      // rad, geodetic
    double sat_alt = 0;      // km above the ellipsoid
    MemoireOrbite memoire;   // element-only values of the last calls
};

// Pointing of the satellite set on the orbit window's attitude page.
struct Pointage {
    // Angles read by the frame turns (vers_corps), degrees: yaw, pitch, roll.
    // The power step sets psi to the spin angle at each date.
    double psi = 0.0, theta = 0.0, phi = 0.0;
    // Orbital-frame pointing entered by the user (txt_attx, txt_atty, txt_attz), deg.
    double att_roulis = 0.0;   // txt_attx, -180..180
    double att_tangage = 0.0;  // txt_atty, -90..90
    double att_lacet = 0.0;    // txt_attz, 0..360; also the initial spin angle
    int16_t pointage_orbital = VRAI;   // opt_att chosen (else opt_iner)
    Vec3 att_inertiel{};       // txt_inerx..z, rad
    int16_t spin = FAUX;       // Chk_spin
    double vitesse_spin = 0.0; // txt_vspin, turns per minute
    int16_t axe_spin = 0;      // Cmb_Spin index
    int16_t face = 1;          // cmb_pointage, 1..6
};

}  // namespace kestrel

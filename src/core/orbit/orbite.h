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

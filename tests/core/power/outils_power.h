// Small builders shared by the power tests: a record with the Sun and the
// Earth placed by hand, and the four layouts of the satellite.
#pragma once
#include <cmath>
#include <initializer_list>
#include <tuple>

#include <gtest/gtest.h>

#include "core/etat/etat.h"

namespace kestrel::essai {

// One named check per row: obtained against expected within tol (0: equal).
inline void verifie(std::initializer_list<std::tuple<const char*, double, double, double>> table) {
    for (const auto& [nom, obtenu, attendu, tol] : table) EXPECT_NEAR(obtenu, attendu, tol) << nom;
}

// Unit direction of elevation el and azimuth az (rad) into the (z, sxy, az) form.
inline void pose_direction(double& z, double& sxy, double& azimut, double el, double az) {
    z = std::sin(el);
    sxy = std::cos(el);
    azimut = az;
}
inline void pose_soleil(PowerRecord& p, double el, double az) { pose_direction(p.sun_z, p.sun_sxy, p.sun_az, el, az); }
inline void pose_nadir(PowerRecord& p, double el, double az) { pose_direction(p.nad_z, p.nad_sxy, p.nad_az, el, az); }

// Sun at the zenith of +z, Earth under -z, 7000 km from the centre, no albedo
// or infrared and no eclipse (a new record's zeros): only the top surface sees
// anything.
inline Etat etat_soleil_zenith(double flux = 1000.0) {
    Etat e;
    e.orb.sat_pos = {7000.0, 0.0, 0.0};
    pose_soleil(e.pwr, PI / 2, 0.0);
    pose_nadir(e.pwr, -PI / 2, 0.0);
    e.pwr.flux_sun = static_cast<float>(flux);
    return e;
}

// Lateral faces of a prism as the project reader derives them.
inline void pose_faces(PowerRecord& p, int opt_faces) {
    p.opt_panel_ext = FAUX;
    p.opt_faces = static_cast<int16_t>(opt_faces);
    p.nb_faces = opt_faces == 0 ? 4 : (opt_faces == 1 ? 6 : 0);
    for (int i = 0; i < p.nb_faces; ++i) p.face_azim[i] = i * (361 / p.nb_faces) * DEG_RAD;  // elevations stay 0
}

// Cells whose strings stand above a 13 V battery bus (7 x 2.6 V), so that the
// generator gives power in the sun.
inline void pose_cellules(PowerRecord& p) {
    p.cel_isc = 0.52f;
    p.cel_imp = 0.50f;
    p.cel_voc = 2.60f;
    p.cel_vmp = 2.30f;
    p.cel_dvoc = -0.0062f;
    p.cel_dvmp = -0.0065f;
    p.cel_ns = 7;
    p.cel_np = 8;
    p.cel_surface = 30;
    p.pan_speed = 1.0f;
    p.fac_cond = {3, 3, 3};
    p.ext_cond = {3, 3, 3, 3, 3, 3};
    p.p_demand = {30, 25};
}

}  // namespace kestrel::essai

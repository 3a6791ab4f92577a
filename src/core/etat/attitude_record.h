// The attitude record: mechanical description, surface coefficients,
// actuators and the state of a run. Body axes x, y, z are 0, 1, 2; faces
// 0..5 are +x, +y, +z, -x, -y, -z. Defaults are those of a new project.
#pragma once
#include <array>
#include <cstdint>

#include "core/shell/types.h"

namespace kestrel {

struct AttitudeRecord {
    // --- mechanics ---------------------------------------------------------------
    double Masse = 50.0;                 // kg, central body
    Vec3 dim{0.45, 0.45, 0.45};          // m, central body
    Vec3 cm{};                           // m, centre of mass of the central body
    Mat3 I_corps{{2.188, 0, 0, 0, 2.347, 0, 0, 0, 2.541}};  // kg m², products stored positive
    Vec3 mext{};                         // kg, external mass on each axis
    Vec3 dext{};                         // m, signed distance of that mass
    double Mt = 50.0;                    // kg, total (bilan_masses)
    Mat3 I{{2.188, 0, 0, 0, 2.347, 0, 0, 0, 2.541}};        // kg m², total (bilan_masses)
    Vec3 cm_total{};                     // m, copy of cm (bilan_masses)

    // --- surfaces, by face -----------------------------------------------------------
    std::array<double, 6> sn{0.9, 0.9, 0.9, 0.81, 0.81, 0.81};    // normal aero coefficient
    std::array<double, 6> st{0.85, 0.3, 0.85, 0.77, 0.27, 0.77};  // tangential aero coefficient
    std::array<double, 6> cr{0.9, 0.5, 0.9, 0.81, 0.45, 0.81};    // light reflection
    std::array<double, 6> cd{0.05, 0.2, 0.05, 0.04, 0.18, 0.04};  // light diffusion
    static constexpr std::array<Vec3, 6> face_n{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1},
                                                 {-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}};
    // m, face centre relative to the centre of mass (faces_recalcul)
    std::array<Vec3, 6> face_c{{{0.225, 0, 0}, {0, 0.225, 0}, {0, 0, 0.225},
                                {-0.225, 0, 0}, {0, -0.225, 0}, {0, 0, -0.225}}};

    // --- actuators ------------------------------------------------------------------
    Vec3 dip_res{1.7320508075688772, 1.7320508075688772, 1.7320508075688772};  // A m², residual
    Vec3 dip_act{};                      // A m², magnetic actuators
    std::array<int16_t, 3> dip_cmd{};    // command sign of each actuator (0 in every run)
    Vec3 dip_tot{1.7320508075688772, 1.7320508075688772, 1.7320508075688772};  // A m², in force
    Vec3 jets{};                         // N.m, constant jet torque
    std::array<int16_t, 3> jet_cmd{};    // stored, reset at a run start, read by nothing
    Vec3 JR{};                           // kg m², wheel inertia
    Vec3 OM{};                           // rad/s, wheel speed in a run
    Vec3 OM_init{};                      // rad/s, wheel speed set by the user
    Vec3 md{};                           // kg, damper mass
    Vec3 ld{};                           // m, damper lever
    Vec3 c{};                            // N.s/m, damper viscosity
    Vec3 k{};                            // N/m, damper stiffness

    // --- state of a run -------------------------------------------------------------
    Vec6 omega{};        // 0-2 body rate rad/s, 3-5 its derivative rad/s²
    Vec6 omega_init{};   // initial omega; 0-2 from the simulation window
    Vec6 yi{};           // inertial Euler angles (rad) and rates (rad/s)
    Vec6 yi_init{};
    Vec6 yd{};           // local-orbital angles stored roll, yaw, pitch; rates of 0, 2, 1
    Vec6 yd_init{};
    Vec3 om{};           // rad/s, wheel speed relative to the body
    Vec3 omd{};          // rad/s², its derivative in the right-hand side
    Vec3 z{}, zd{}, zdd{};  // damper displacement m, speed m/s, acceleration m/s²
    Vec3 ctot{};         // N.m, total torque, body axes
    std::array<double, 4> quat{};  // written, read by nothing
    int16_t mode_pointage = 1;     // face that points, 1..6
    int16_t etat_att = 0;          // word set to 3 by attitude_init; nothing reads it

    // Per-torque results, body axes, N.m (shown by the results window)
    Vec3 c_gravite{}, c_aero{}, c_solaire{}, c_magnetique{};

    // Values held only by the settings window's notes page (saved nowhere)
    Vec3 vs_r{}, a_con{}, gain{}, t_const{}, in_roue{};
};

}  // namespace kestrel

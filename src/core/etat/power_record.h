// The power system record: settings (filled by the project file and the
// settings window; float where the file types them single precision) and the
// working state that one power_step reads and rewrites. Defaults are those of
// a new project. Flags are 16-bit: -1 true, 0 false.
#pragma once
#include <array>
#include <cstdint>

#include "core/shell/types.h"

namespace kestrel {

struct PowerRecord {
    // --- cells and generator ---------------------------------------------
    int16_t cel_type = 0;          // 0 "AsGa", 1 "Silicium"
    float cel_isc = 0.53f;         // A, short-circuit current at cel_tref
    float cel_imp = 0.5f;          // A, current at maximum power
    float cel_voc = 1.0f;          // V, open-circuit voltage
    float cel_vmp = 0.86f;         // V, voltage at maximum power
    float cel_disc = 0.0003f;      // A/°C
    float cel_dimp = 0.00025f;     // A/°C
    float cel_dvoc = -0.002f;      // V/°C
    float cel_dvmp = -0.002f;      // V/°C
    float cel_radisc = 1.0f;       // end-of-life ratios
    float cel_radimp = 1.0f;
    float cel_radvoc = 1.0f;
    float cel_radvmp = 1.0f;
    float cel_ns = 1.0f;           // cells in series (a float on purpose)
    float cel_np = 1.0f;           // strings in parallel
    float cel_surface = 16.0f;     // cm², one cell
    float cel_tref = 28.0f;        // °C
    float inc_div = 50.0f;         // deg, end of the pure cosine law
    float inc_max = 75.0f;         // deg, no output from here on
    int32_t date_cell = 17897;     // day count of 1999-01-01: zero of ageing
    int16_t cel_opt_beol = 0;      // window choice, not in the file: 0 "BOL", 1 "EOL"
    float cel_rendement = 4300.0f / 1368.0f / 16.0f;  // catalogue efficiency, display only

    // --- geometry -----------------------------------------------------------
    int16_t opt_panel_ext = VRAI;  // -1 external panels, 0 panels on the faces
    int16_t opt_faces = 0;         // 0 four faces, 1 six faces, 2 (other) cylinder
    int16_t nb_faces = 4;          // lateral faces, from opt_faces (0 for a cylinder)
    float body_height = 0.8f;      // m
    float body_width = 0.4f;       // m, side of the section or cylinder diameter
    std::array<double, 6> face_elev{};  // rad, normal elevation of face i (always 0)
    std::array<double, 6> face_azim{0.0, 90 * DEG_RAD, 180 * DEG_RAD, 270 * DEG_RAD, 0.0, 0.0};  // rad

    // --- external panel drive --------------------------------------------------
    int16_t pan_fixed = FAUX;      // -1: panels do not move
    float pan_angle_init = 0.0f;   // deg
    float pan_tolerance = 0.5f;    // deg, misalignment that starts a correction
    int32_t pan_delay = 2;         // s, wait before moving
    float pan_speed = 10.0f;       // deg/s

    // --- thermal, external panels (0 panel, 1 its rear, 2..7 faces, 8 internal)
    float ext_area = 0.5f;         // m², one panel
    float body_face_area = 1.0f;   // m², one body face
    std::array<float, 8> ext_alpha0{0.75f, 0.16f, 0.3f, 0.3f, 0.3f, 0.3f, 0.3f, 0.3f};
    std::array<float, 8> ext_alpha_lim{0.77f, 0.3f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f};
    std::array<float, 8> ext_eps{0.76f, 0.85f, 0.75f, 0.75f, 0.75f, 0.75f, 0.75f, 0.75f};
    std::array<int32_t, 8> ext_t99{20000, 20000, 20000, 20000, 20000, 20000, 20000, 20000};  // h
    std::array<float, 6> ext_cond{0.01f, 0.01f, 0.01f, 0.01f, 0.01f, 0.01f};        // W/m²/K
    std::array<float, 6> ext_rad{0.005f, 0.005f, 0.005f, 0.005f, 0.005f, 0.005f};
    std::array<float, 9> ext_mass{20, 0, 10, 10, 10, 10, 10, 10, 40};       // kg/m², [8] kg
    std::array<float, 9> ext_cp{800, 0, 800, 800, 800, 800, 800, 800, 800}; // J/kg/K
    std::array<float, 9> ext_t_init{25, 0, 25, 25, 25, 25, 25, 25, 25};     // °C

    // --- thermal, panels on the faces (0 lateral, 1 top, 2 bottom) --------------
    std::array<float, 3> fac_cond{0.01f, 0.01f, 0.01f};       // W/m²/K
    std::array<float, 3> fac_t_init{25, 25, 25};              // °C
    std::array<float, 3> fac_alpha0{0.75f, 0.16f, 0.16f};
    std::array<float, 3> fac_alpha_lim{0.77f, 0.3f, 0.4f};
    std::array<int32_t, 3> fac_t99{20000, 20000, 20000};      // h
    std::array<float, 3> fac_eps{0.76f, 0.85f, 0.85f};
    std::array<float, 3> fac_cp{800, 800, 800};               // J/kg/K
    std::array<float, 3> fac_mass{5, 2, 2};                   // kg/m²
    std::array<float, 3> fac_rad{0.005f, 0.005f, 0.005f};
    float int_mass = 40.0f;        // kg, internal node
    float int_cp = 800.0f;         // J/kg/K
    float int_t_init = 25.0f;      // °C; also the battery's first voltage temperature
    float cyl_cond = 0.001f;       // W/K, circumferential conduction of the cylinder

    // --- environment -----------------------------------------------------------
    std::array<float, 12> albedo{0.38f, 0.38f, 0.38f, 0.38f, 0.38f, 0.38f,
                                 0.38f, 0.38f, 0.38f, 0.38f, 0.38f, 0.38f};  // by month
    std::array<float, 12> earth_ir{237, 237, 237, 237, 237, 237,
                                   237, 237, 237, 237, 237, 237};            // W/m², by month
    double sun_power = 3.8e26;     // W, total power radiated by the Sun

    // --- power management ----------------------------------------------------
    float gst_charge_init = 100.0f;  // %
    float gst_vch_max = 1.5f;        // V per accumulator
    float gst_i_maint = 0.001f;      // A per accumulator, trickle
    float gst_ich_max = 100.0f;      // A per accumulator
    float gst_k_recharge = 1.05f;    // charged / discharged capacity
    float gst_rend_bat = 90.0f;      // %, battery to payload
    float gst_rend_gs = 90.0f;       // %, generator to payload
    float gst_vregul = 0.0f;         // V, regulated bus
    std::array<float, 2> p_demand{50, 50};  // W, [0] day, [1] night
    std::array<float, 2> p_dissip{15, 15};  // %, [0] day, [1] night
    int16_t gst_regulated = 0;       // non-zero: regulated bus

    // --- battery -----------------------------------------------------------------
    int16_t bat_type = 0;            // 0 NiCd, 1 NiH2, 2 Li-ion, 3 generic
    uint8_t bat_ns = 10;             // accumulators in series
    uint8_t bat_np = 1;              // accumulators in parallel
    float bat_c = 10.0f;             // Ah per accumulator
    // Curve points [point 0..3][coefficient 0..5]: capacity %, its temperature
    // slope, its slope per decade of current; voltage, same two slopes.
    float ch_pt[4][6] = {{0, 0, 0, 1.3f, 0, 0},
                         {15, 0.1f, -5, 1.4f, -0.001f, 0.01f},
                         {65, 0.5f, -5, 1.41f, -0.001f, 0.01f},
                         {120, 0.1f, -5, 1.59f, -0.002f, 0.02f}};
    float de_pt[4][6] = {{0, 0, 0, 1.3f, 0, 0},
                         {15, 0.1f, -5, 1.21f, 0.001f, -0.01f},
                         {95, 0.1f, -2, 1.2f, 0.001f, -0.01f},
                         {100, 0, 0, 1.0f, 0, 0}};
    float bat_cmax = 1.2f;           // capacity ratio at low current
    float bat_c10 = 0.6f;            // capacity ratio at 10C
    float bat_cmin_pct = 30.0f;      // %, capacity at bat_tmin
    float bat_t999 = 50.0f;          // °C, 99.9 % capacity
    float bat_tmin = -50.0f;         // °C
    float bat_tau0 = 100.0f;         // days, self-discharge at 0 °C (stored only)
    float bat_tau50 = 15.0f;         // days, self-discharge at 50 °C (stored only)

    // --- working state, written by each step ---------------------------------------
    std::array<double, 39> node_t{};     // K; indices by configuration
    std::array<float, 36> cell_eff{};    // efficiency of panel i
    std::array<double, 36> pan_power{};  // W, panel i
    double gen_power = 0;      // W
    double t_bat = 0;          // °C
    double pan_angle = 0;      // rad
    double pan_target = 0;     // rad, 1000.0 = no target
    int32_t pan_wait = 0;      // s, -1 when no delay runs
    int16_t pan_moving = 0;    // -1 while rotating
    double sun_z = 0, sun_sxy = 0, sun_az = 0;  // Sun direction, body frame (z, sqrt(1-z²), azimuth rad)
    double nad_z = 0, nad_sxy = 0, nad_az = 0;  // Earth-centre direction, same form
    float flux_sun = 0;        // W/m²
    double flux_alb = 0;       // W/m²
    double flux_ir = 0;        // W/m²
    int16_t eclipse = 0;       // -1 in the shadow
    double earth_half = 0;     // rad, half-angle of the Earth seen from the satellite
    double sun_nadir_cos = 0;  // unit Sun . unit nadir
    double bat_soc = 0;        // 0..1
    double bat_v = 0;          // V per accumulator
    double bat_i = 0;          // A per string
    double bat_p = 0;          // W, > 0 discharge, < 0 charge
    double p_payload = 0;      // W delivered to the payload
    double p_excess = 0;       // W, bus balance (< 0 shortage)
    double p_loss_ch = 0, p_loss_de = 0, p_loss_gs = 0, p_loss_pl = 0;  // W
    double p_heat = 0;         // W into the internal node
    int16_t bat_state_full = VRAI;  // 0 in the step the charge reaches 100 %
    int32_t t_charge = 0;      // s, running charge time
    int32_t t_discharge = 0;   // s, running discharge time

    // Absorptivities already computed, slot by surface (external: 0..7,
    // faces and cylinder: 0..2); reused while the single-precision date and
    // the coating's settings are the same, as the date changes only every few
    // minutes of simulated time.
    struct AlphaMemo {
        float t = 0, a0 = 0, alim = 0;
        int32_t t99 = 0, date_cell = 0;
        double valeur = 0;
        bool valide = false;
    };
    std::array<AlphaMemo, 8> alpha_memo{};

    // Incidences (rad) of the cylinder's 36 strips for the directions in
    // `cle` (sun_z, sun_sxy, sun_az, nad_z, nad_sxy, nad_az): the generator
    // and the thermal model of one step read the same ones.
    struct IncidencesBandes {
        std::array<double, 6> cle{};
        std::array<double, 36> soleil{}, cos_soleil{}, terre{};
        bool valide = false;
    };
    IncidencesBandes bandes{};
};

}  // namespace kestrel

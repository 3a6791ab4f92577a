// The start of a run and one step of the power system in its fixed order:
// environment, (panel pointing), generator on the last temperatures,
// management, then the thermal model with this step's heat.
#include <cmath>

#include "core/etat.h"
#include "core/power/bat_curves.h"
#include "core/power/environnement.h"
#include "core/power/generateurs.h"
#include "core/power/panel_drive.h"
#include "core/power/panel_target.h"
#include "core/power/power_management.h"
#include "core/power/power_step.h"
#include "core/power/thermal_cylinder.h"
#include "core/power/thermal_ext_panels.h"
#include "core/power/thermal_faces.h"

namespace kestrel {

ConfigPower configuration(const PowerRecord& p) {
    if (p.opt_panel_ext == VRAI) return ConfigPower::panneaux_externes;
    if (p.opt_panel_ext == FAUX && p.opt_faces == 2) return ConfigPower::cylindre;
    return ConfigPower::faces;
}

void power_state_init(Etat& etat) {
    PowerRecord& p = etat.pwr;
    p.bat_soc = p.gst_charge_init / 100.0;
    p.bat_i = p.bat_c * 1e-6;
    p.bat_v = bat_v_charge(etat, p.bat_i / p.bat_c, p.int_t_init, p.bat_soc);

    constexpr double K = 273.15;
    switch (configuration(p)) {
        case ConfigPower::panneaux_externes:
            p.pan_moving = FAUX;
            p.pan_wait = -1;
            p.pan_angle = p.pan_angle_init * DEG_RAD;
            p.node_t[0] = p.ext_t_init[0] + K;  // node 1 has no temperature
            for (int i = 2; i <= 8; ++i) p.node_t[i] = p.ext_t_init[i] + K;
            break;
        case ConfigPower::cylindre:
            for (int i = 0; i < 36; ++i) p.node_t[i] = p.fac_t_init[0] + K;
            p.node_t[36] = p.fac_t_init[1] + K;
            p.node_t[37] = p.fac_t_init[2] + K;
            p.node_t[38] = p.int_t_init + K;
            break;
        case ConfigPower::faces:
            for (int i = 0; i < p.nb_faces && i < 8; ++i) p.node_t[i] = p.fac_t_init[0] + K;
            p.node_t[8] = p.fac_t_init[1] + K;
            p.node_t[9] = p.fac_t_init[2] + K;
            p.node_t[10] = p.int_t_init + K;
            break;
    }
}

void power_step(Etat& etat) {
    environment_update(etat, etat.session.j_courant);
    switch (configuration(etat.pwr)) {
        case ConfigPower::panneaux_externes:
            panel_target_update(etat);
            panel_drive_update(etat, etat.session.pas_sim);
            generator_ext_panels(etat);
            power_management(etat);
            thermal_ext_panels(etat);
            break;
        case ConfigPower::cylindre:
            generator_cylinder(etat);
            power_management(etat);
            thermal_cylinder(etat);
            break;
        case ConfigPower::faces:
            generator_faces(etat);
            power_management(etat);
            thermal_faces(etat);
            break;
    }
}

}  // namespace kestrel

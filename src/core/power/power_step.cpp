// The start of a run and one step of the power system in its fixed order:
// environment, (panel pointing), generator on the last temperatures,
// management, then the thermal model with this step's heat.
#include <cmath>

#include "core/etat/etat.h"
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
#include "core/power/thermique.h"

namespace kestrel {

namespace {

constexpr double K = 273.15;

// The first `parois` side walls (at most the layout's room), top, bottom and
// the internal node from the project's initial temperatures.
void noeuds_initiaux(PowerRecord& p, const PlanNoeuds& plan, int parois) {
    for (int i = 0; i < parois && i < plan.parois; ++i) p.node_t[i] = p.fac_t_init[0] + K;
    p.node_t[plan.haut] = p.fac_t_init[1] + K;
    p.node_t[plan.bas] = p.fac_t_init[2] + K;
    p.node_t[plan.interne] = p.int_t_init + K;
}

}  // namespace

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

    switch (configuration(p)) {
        case ConfigPower::panneaux_externes:
            p.pan_moving = FAUX;
            p.pan_wait = -1;
            p.pan_angle = p.pan_angle_init * DEG_RAD;
            // ext_t_init follows the node layout; node 1 has no temperature.
            p.node_t[NOEUDS_PANNEAUX.panneau] = p.ext_t_init[NOEUDS_PANNEAUX.panneau] + K;
            for (int i = NOEUDS_PANNEAUX.premiere_face; i < NOEUDS_PANNEAUX.nombre; ++i)
                p.node_t[i] = p.ext_t_init[i] + K;
            break;
        case ConfigPower::cylindre:
            noeuds_initiaux(p, NOEUDS_CYLINDRE, NOEUDS_CYLINDRE.parois);
            break;
        case ConfigPower::faces:
            noeuds_initiaux(p, NOEUDS_FACES, p.nb_faces);
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

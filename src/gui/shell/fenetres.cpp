#include "shell/fenetres.h"

#include "attitude/att_conf.h"
#include "attitude/att_sim.h"
#include "orbit/orbito_conf.h"
#include "power/power_exp_bat.h"
#include "power/power_exp_pan.h"
#include "power/power_sim_all.h"
#include "project/att_exp_data.h"
#include "project/power_conf.h"
#include "project/power_exp_data.h"
#include "shell/menu.h"

namespace kestrel::gui {

// One line per window. A window tagged "conf" or "attconf" joins m.registre()
// when it is created.
void branche_fenetres(menu& m) {
    m.branche("mn_exp_pow_bat", [&m] { ouvre_power_exp_bat(m); });
    m.branche("mn_sim_car", [&m] { ouvre_orbito_conf(m, orbito_conf::onglet_orbite); });
    m.branche("mn_conf_pow_rad", [&m] { ouvre_orbito_conf(m, orbito_conf::onglet_environnement); });
    m.branche("mn_sim_pow_gs", [&m] { ouvre_power_exp_pan(m); });
    m.branche("mn_conf_att_masses", [&m] { ouvre_att_conf(m, att_conf::onglet_masses); });
    m.branche("mn_conf_att_prop", [&m] { ouvre_att_conf(m, att_conf::onglet_proprietes); });
    m.branche("mn_conf_att_act", [&m] { ouvre_att_conf(m, att_conf::onglet_actionneurs); });
    m.branche("mn_conf_att_gest", [&m] { ouvre_att_conf(m, att_conf::onglet_gestion); });
    m.branche("mn_exp_pow_data", [&m] { ouvre_power_exp_data(m); });
    m.branche("mn_exp_att_data", [&m] { ouvre_att_exp_data(m); });
    branche_power_conf(m);
    m.branche("mn_sim_pow_com", [&m] { ouvre_power_sim_all(m); });
    m.branche("mn_sim_att_com", [&m] { ouvre_att_sim(m); });
}

}  // namespace kestrel::gui

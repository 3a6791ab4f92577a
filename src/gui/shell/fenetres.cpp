#include "shell/fenetres.h"

#include "power/power_exp_bat.h"
#include "shell/menu.h"

namespace kestrel::gui {

// One line per window, for instance:
//   m.branche("mn_sim_pow_com", [&m] { ouvre_power_sim_all(m); });
// A window tagged "conf" or "attconf" joins m.registre() when it is created.
void branche_fenetres(menu& m) {
    m.branche("mn_exp_pow_bat", [&m] { ouvre_power_exp_bat(m); });
}

}  // namespace kestrel::gui

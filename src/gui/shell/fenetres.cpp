#include "shell/fenetres.h"

#include "shell/menu.h"

namespace kestrel::gui {

// One line per window, for instance:
//   m.branche("mn_sim_pow_com", [&m] { ouvre_power_sim_all(m); });
// A window tagged "conf" or "attconf" joins m.registre() when it is created.
void branche_fenetres(menu& m) { (void)m; }

}  // namespace kestrel::gui

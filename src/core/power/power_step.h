// One step of the power system at session.j_courant over session.pas_sim
// seconds, and the start of a run. The caller advances the date.
#pragma once

namespace kestrel {

struct Etat;
struct PowerRecord;

enum class ConfigPower { panneaux_externes, cylindre, faces };

// External panels when opt_panel_ext is -1, else the cylinder when
// opt_panel_ext is 0 and opt_faces is 2, else the faces.
ConfigPower configuration(const PowerRecord& p);

// Battery from gst_charge_init, panel drive and the nodes of the present
// configuration; every other working field keeps its value.
void power_state_init(Etat& etat);
void power_step(Etat& etat);

}  // namespace kestrel

// Session state owned by the main window: the simulation period and step, the
// real-time choice and the two project paths.
#pragma once
#include <cstdint>
#include <string>

namespace kestrel {

struct Session {
    double j_debut = 0.0;        // start date, days since 1950-01-01 00:00 (sim_date_start)
    double j_fin = 0.0;          // end date, same scale (sim_date_end)
    double j_courant = 0.0;      // date of the step in progress (sim_date)
    int32_t pas_sim = 120;       // simulation step, s (sim_step)
    int16_t temps_reel = 0;      // real-time flag, -1 while the mode is on
    int16_t config_modifiee = 0; // 1 after a change of period, step, mode or project
    std::string chemin_energie;  // current .pwr path, empty for a new project
    std::string chemin_attitude; // current .att path, empty for a new project
    std::string dossier_depart;  // folder of the executable: data files, temp/, dialogs
};

}  // namespace kestrel

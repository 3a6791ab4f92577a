// A power run over the session's period, step by step as the exploitation
// window walks it, and the figures that sum it up. `kestrel power --summary`
// and the power sweeps both come here, so their figures are the same.
#pragma once
#include <functional>
#include <limits>

#include "core/etat.h"

namespace kestrel {

struct ResumePower {
    long pas = 0, pas_eclipse = 0;
    double soc_min = std::numeric_limits<double>::infinity(), soc_max = -soc_min;   // 0..1
    double tbat_min = soc_min, tbat_max = -soc_min;                                   // °C
    double pg_min = soc_min, pg_max = -soc_min, pg_somme = 0;                         // W
    double bilan = 0;  // Wh put into the battery over the run (bat_p > 0 is discharge)

    void ajoute(const PowerRecord& p, double pas_s);
    double fraction_eclipse() const { return pas ? static_cast<double>(pas_eclipse) / pas : 0.0; }
    double pg_moyenne() const { return pas ? pg_somme / pas : 0.0; }
};

struct BilanPower {
    ResumePower resume;
    bool alerte_charge = false;  // the load could not be met at some step
};

// power_state_init, then one power_step per date of the session's period,
// `chaque(date, record)` after each; stops at the first fault (etat.faute)
// or when `chaque` returns false.
BilanPower run_power(Etat& etat, const std::function<bool(double, const PowerRecord&)>& chaque = {});

}  // namespace kestrel

// A power run over the session's period, step by step as the exploitation
// window walks it, and the figures that sum it up. `kestrel power --summary`
// and the power sweeps both come here, so their figures are the same.
#pragma once
#include <array>
#include <functional>
#include <limits>

#include "core/etat/etat.h"
#include "core/power/ligne_power.h"

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
};

// The channel emptied, power_state_init, then one power_step per date of the session's period,
// its row checked (ligne_power_finie), then `chaque(date, row)` with that
// checked row (the CSV's columns); stops at
// the first fault (etat.faute) or when `chaque` returns false. The summary's
// figures are checked finite at the end of a run that went through.
BilanPower run_power(Etat& etat, const std::function<bool(double, const LignePower&)>& chaque = {});

// The summary's figures in the order of their names.
inline constexpr const char* FIGURES_POWER[9] = {"eclipse_fraction", "soc_min",       "soc_max",
                                                  "t_bat_min",        "t_bat_max",     "gen_power_min",
                                                  "gen_power_max",    "gen_power_mean", "energy_balance"};
inline constexpr const char* UNITES_FIGURES_POWER[9] = {"-", "-", "-", "°C", "°C", "W", "W", "W", "Wh"};
std::array<double, 9> figures(const ResumePower& r);

}  // namespace kestrel

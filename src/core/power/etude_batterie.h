// Battery study: one accumulator discharged through an eclipse, then
// recharged, at a fixed temperature with a one-second step. It works on its
// own copy of the battery laws and never touches the caller's state.
// Currents in C units (multiples of bat_c), voltages per accumulator.
#pragma once
#include <functional>
#include <vector>

#include "core/shell/erreur.h"
#include "core/shell/validateurs.h"

namespace kestrel {

struct PowerRecord;

struct EntreesBatterie {
    double duree_eclipse = 30;    // min, discharge length
    double temperature = 20;      // °C
    double k_recharge = 1.05;     // charge put back / charge taken
    double v_max = 1.5;           // V, charge voltage limit
    double i_charge = 0.5;        // C, charge current
    bool puissance_constante = true;
    double puissance = 0.6;       // V/h: W per accumulator over bat_c (Ah)
    double i_decharge = 0.5;      // C, discharge current; also the first guess at constant power
};

enum class PhaseBatterie : char { decharge = 'D', recharge = 'C' };

// One plotted sample, every 10 s of study time.
struct EchantillonBatterie {
    long t;               // s since the start of the discharge
    PhaseBatterie phase;
    double s;             // state of charge, 0..1
    double v;             // V
    double i;             // C
};

// Progress as the window's bar shows it: value out of maximum, per phase.
struct ProgressionBatterie {
    PhaseBatterie phase;
    long valeur, maximum;
};

struct ResultatBatterie {
    std::vector<EchantillonBatterie> echantillons;
    bool decharge_terminee = false;
    int dod = 0;                 // %, Int((1 - s) * 100) at the end of the discharge
    long temps_recharge = 0;     // s
    bool termine = false;        // false when stopped, capped or failed
    bool arrete = false;         // the stop flag was seen
    Erreur faute;                // solver fault or recharge cap
    Alertes alertes;             // what the study went through (the charge curve's trap)
};

// Accepted range of each input, shared by the window's boxes and the command
// line. The temperature's lower limit is the laws' bat_tmin, below which the
// capacity factor turns negative.
struct BorneEntree {
    double min, max;
    bool min_inclus, max_inclus;
};
inline constexpr BorneEntree BORNE_ECLIPSE{0, 1440, true, true};     // min
inline constexpr BorneEntree BORNE_TEMPERATURE{0, 100, true, true};  // °C, min replaced by bat_tmin
inline constexpr BorneEntree BORNE_K{0, 10, false, true};
inline constexpr BorneEntree BORNE_VMAX{0, 10, false, true};         // V
inline constexpr BorneEntree BORNE_COURANT{0, 100, false, true};     // C, both currents
inline constexpr BorneEntree BORNE_PUISSANCE{0, 100, false, true};   // V/h

// The first refused input with the validators' message, or ok.
Verdict verifie_entrees(const PowerRecord& lois, const EntreesBatterie& e);

// Seconds of recharge after which the study gives up (over a hundred days).
constexpr long PLAFOND_RECHARGE = 10'000'000;

// Discharge then recharge with the battery laws of `lois`. `progres` runs at
// each plotted sample; the loop stops at the next second once *stop is true.
ResultatBatterie etude_batterie(const PowerRecord& lois, const EntreesBatterie& e,
                                const std::function<void(const ProgressionBatterie&)>& progres = {},
                                const bool* stop = nullptr);

// "hh:mm:ss" of a duration in seconds; hours may pass 99.
std::string texte_duree(long secondes);

}  // namespace kestrel

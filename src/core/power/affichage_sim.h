// What the complete simulation window shows of the power record after a step:
// the texts of its labels, the battery word and picture, the synoptic's arrows.
#pragma once
#include <cstdint>
#include <string>

namespace kestrel {

struct Etat;

struct AffichageSim {
    // Powers, W, picture "0.00 " followed by the unit.
    std::string pgs, pbat, pava, puse, exc, pgs_diss, pbat_diss, diss_charge, disscu;
    std::string voltmetre;    // battery voltage "00.00 ", or "OFF" while bat_p is 0
    std::string amperemetre;  // bat_i / bat_c, "0.00C"
    std::string charge;       // bat_soc in %
    int charge_pct = 0;       // 0..100, for the gauge
    std::string chtime, distime;  // "hh:mm:ss"
    std::string cdate, chour;     // "dd/mm/yyyy", "hh:mm:ss" of sim_date
    int16_t etat_bat = 8;         // see etat_batterie
    bool eclipse = false;
    bool fl_gs = false, fl_charge = false, fl_decharge = false, fl_shunt = false;
};

AffichageSim affichage_sim(const Etat& etat);

// Battery state: discharging (bat_p > 0) 1..5 by bat_soc from 0.9, 0.65,
// 0.4, 0.15 down to above 0, 6 empty; 7 charging (bat_p < 0); 8 idle.
int16_t etat_batterie(double bat_p, double bat_soc);

// The word of lab_state: "Déchargée" 6, "Charge..." 7, "Attente..." 8,
// "Décharge..." for any other state.
const char* mot_etat_batterie(int16_t etat_bat);

// Picture of the battery icon: 0 to 4 by the levels 0.9, 0.65, 0.4, 0.15
// (the same bounds as the battery state), 5 the empty one, for a charge not
// above 0.
int image_batterie(double bat_soc);

// A duration in seconds as "hh:mm:ss" (hours go past 99 when they must).
std::string texte_duree(int32_t secondes);

}  // namespace kestrel

#include "core/power/affichage_sim.h"

#include <algorithm>
#include <cmath>

#include "core/etat/etat.h"
#include "core/shell/calendrier.h"
#include "core/shell/format_image.h"

namespace kestrel {

namespace {

std::string watts(double w) { return format_image(w, "0.00") + " W"; }

}  // namespace

int16_t etat_batterie(double bat_p, double bat_soc) {
    if (bat_p < 0) return 7;
    if (bat_p == 0) return 8;
    if (bat_soc >= 0.9) return 1;
    if (bat_soc >= 0.65) return 2;
    if (bat_soc >= 0.4) return 3;
    if (bat_soc >= 0.15) return 4;
    if (bat_soc > 0) return 5;
    return 6;
}

const char* mot_etat_batterie(int16_t etat_bat) {
    switch (etat_bat) {
        case 6: return "Déchargée";
        case 7: return "Charge...";
        case 8: return "Attente...";
        default: return "Décharge...";
    }
}

int image_batterie(double bat_soc) {
    if (bat_soc >= 0.9) return 0;
    if (bat_soc >= 0.65) return 1;
    if (bat_soc >= 0.4) return 2;
    if (bat_soc >= 0.15) return 3;
    if (bat_soc > 0) return 4;
    return 5;
}

std::string texte_duree(int32_t secondes) {
    const int32_t s = std::max<int32_t>(secondes, 0);
    const auto deux = [](int32_t v) { return (v < 10 ? "0" : "") + std::to_string(v); };
    return deux(s / 3600) + ":" + deux(s / 60 % 60) + ":" + deux(s % 60);
}

AffichageSim affichage_sim(const Etat& etat) {
    const PowerRecord& p = etat.pwr;
    AffichageSim a;
    a.pgs = watts(p.gen_power);
    a.pbat = watts(p.bat_p);
    // What reaches the bus after the transfers: used by the payload plus the excess.
    a.pava = watts(p.p_payload + std::max(p.p_excess, 0.0));
    a.puse = watts(p.p_payload);
    a.exc = watts(std::max(p.p_excess, 0.0));
    a.pgs_diss = watts(p.p_loss_gs);
    a.pbat_diss = watts(p.p_loss_de);
    a.diss_charge = watts(p.p_loss_ch);
    a.disscu = watts(p.p_loss_pl);
    a.voltmetre = p.bat_p == 0 ? "OFF" : format_image(p.bat_ns * p.bat_v, "00.00") + " ";
    a.amperemetre = format_image(p.bat_i / p.bat_c, "0.00") + "C";
    a.charge_pct = static_cast<int>(std::lround(std::clamp(p.bat_soc, 0.0, 1.0) * 100));
    a.charge = std::to_string(a.charge_pct) + " %";
    a.chtime = texte_duree(p.t_charge);
    a.distime = texte_duree(p.t_discharge);
    Date d;
    jour_vers_date(etat.session.j_courant, d);
    a.cdate = format_date(d, "dd/mm/yyyy");
    a.chour = format_date(d, "hh:mm:ss");
    a.etat_bat = etat_batterie(p.bat_p, p.bat_soc);
    a.eclipse = p.eclipse == VRAI;
    a.fl_gs = p.gen_power > 0;
    a.fl_charge = p.bat_p < 0;
    a.fl_decharge = p.bat_p > 0;
    a.fl_shunt = p.p_excess > 0;
    return a;
}

}  // namespace kestrel

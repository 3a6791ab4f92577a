#include "core/power/resume_power.h"

#include <algorithm>

#include "core/power/ligne_power.h"
#include "core/power/power_step.h"
#include "core/shell/ligne_finie.h"
#include "core/shell/parcours.h"
#include "core/shell/types.h"

namespace kestrel {

void ResumePower::ajoute(const PowerRecord& p, double pas_s) {
    ++pas;
    if (p.eclipse == VRAI) ++pas_eclipse;
    soc_min = std::min(soc_min, p.bat_soc);
    soc_max = std::max(soc_max, p.bat_soc);
    tbat_min = std::min(tbat_min, p.t_bat);
    tbat_max = std::max(tbat_max, p.t_bat);
    pg_min = std::min(pg_min, p.gen_power);
    pg_max = std::max(pg_max, p.gen_power);
    pg_somme += p.gen_power;
    bilan -= p.bat_p * pas_s / 3600.0;
}

BilanPower run_power(Etat& etat, const std::function<bool(double, const LignePower&)>& chaque) {
    BilanPower b;
    vide_canal(etat);
    power_state_init(etat);
    etat.pwr.t_charge = 0;
    etat.pwr.t_discharge = 0;
    const double pas_s = etat.session.pas_sim;
    LignePower ligne;
    double derniere = etat.session.j_debut;
    parcours_dates(etat.session.j_debut, etat.session.j_fin, pas_s, [&](double j) {
        etat.session.j_courant = j;
        power_step(etat);
        if (etat.faute || !ligne_power_finie(etat, j, ligne)) return false;
        derniere = j;
        b.resume.ajoute(etat.pwr, pas_s);
        return !chaque || chaque(j, ligne);
    });
    if (!etat.faute) ligne_finie(etat.faute, derniere, figures(b.resume), FIGURES_POWER);
    return b;
}

std::array<double, 9> figures(const ResumePower& r) {
    return {r.fraction_eclipse(), r.soc_min, r.soc_max, r.tbat_min, r.tbat_max,
            r.pg_min,             r.pg_max,  r.pg_moyenne(), r.bilan};
}

}  // namespace kestrel

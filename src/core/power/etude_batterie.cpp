// Discharge at constant power or current through the eclipse, then recharge
// at a constant current limited by the maximum voltage, one second a pass.
#include "core/power/etude_batterie.h"

#include <cmath>

#include <fmt/format.h>

#include "core/etat/etat.h"
#include "core/power/bat_curves.h"
#include "core/power/bat_solveurs.h"

namespace kestrel {

namespace {

bool arret(const bool* stop) { return stop && *stop; }

}  // namespace

ResultatBatterie etude_batterie(const PowerRecord& lois, const EntreesBatterie& e,
                                const std::function<void(const ProgressionBatterie&)>& progres,
                                const bool* stop) {
    // A private Etat: the solvers report through it, the caller's stays as it was.
    Etat etat;
    etat.pwr = lois;
    const PowerRecord& p = etat.pwr;
    const double T = e.temperature;
    ResultatBatterie r;
    auto echantillon = [&](long t, PhaseBatterie ph, double s, double v, double i, long val, long max) {
        r.echantillons.push_back({t, ph, s, v, i});
        if (progres) progres({ph, val, max});
    };

    double s = 1.0, v = 0.0;
    double i = e.i_decharge;
    long t = 0;
    const double fin_decharge = e.duree_eclipse * 60;
    const long max_decharge = static_cast<long>(std::floor(e.duree_eclipse * 100));
    for (; t <= fin_decharge; ++t) {
        if (arret(stop)) {
            r.arrete = true;
            return r;
        }
        const double ft = bat_cap_temp(p, T), fi = bat_cap_current(p, i);
        s -= ((i / ft) / fi) / 3600.0;
        if (e.puissance_constante) i = bat_i_from_p_discharge(etat, s, e.puissance, i, T);
        v = bat_v_discharge(p, i, T, s);
        if (!(s > 0)) {  // empty: the rest of the eclipse runs on a trickle
            s = 0;
            i = 0.01;
            v = 0;
        }
        if (etat.faute) {
            r.faute = etat.faute;
            return r;
        }
        if (t % 10 == 0)
            echantillon(t, PhaseBatterie::decharge, s, v, i, static_cast<long>(std::floor(t / 60.0 * 100)),
                        max_decharge);
    }
    r.decharge_terminee = true;
    r.dod = static_cast<int>(std::floor((1 - s) * 100));

    const double s0 = s;
    const long max_recharge = 100 + static_cast<long>(std::floor((1 - s0) * 100));
    const long debut_recharge = t;
    const float v_max = static_cast<float>(e.v_max);
    i = e.i_charge;
    while (s < 1.0) {
        if (arret(stop)) {
            r.arrete = true;
            break;
        }
        if (t - debut_recharge >= PLAFOND_RECHARGE) {
            r.faute.code = CodeErreur::recharge_trop_longue;
            r.faute.detail = texte_duree(PLAFOND_RECHARGE);
            break;
        }
        s += (i / 3600.0) / e.k_recharge;
        v = bat_v_charge(etat, i, T, s);
        if (static_cast<float>(v) > v_max) {
            v = e.v_max;
            i = bat_i_from_v_charge(etat, s, v, i, T);
        }
        if (etat.faute) {
            r.faute = etat.faute;
            break;
        }
        if (t % 10 == 0)
            echantillon(t, PhaseBatterie::recharge, s, v, i, static_cast<long>(std::floor((s - s0) * 100)) + 100,
                        max_recharge);
        ++t;
    }
    r.alertes = etat.alertes;
    // Seconds of recharge: t has gone one past the last pass.
    r.temps_recharge = std::lrint(static_cast<double>(t) - 1 - e.duree_eclipse * 60);
    r.termine = !r.arrete && !r.faute;
    return r;
}

Verdict verifie_entrees(const PowerRecord& lois, const EntreesBatterie& e) {
    BorneEntree temperature = BORNE_TEMPERATURE;
    temperature.min = lois.bat_tmin;
    const struct {
        double x;
        BorneEntree b;
    } champs[] = {{e.duree_eclipse, BORNE_ECLIPSE}, {e.temperature, temperature}, {e.k_recharge, BORNE_K},
                  {e.v_max, BORNE_VMAX},            {e.i_charge, BORNE_COURANT},   {e.puissance, BORNE_PUISSANCE},
                  {e.i_decharge, BORNE_COURANT}};
    for (const auto& c : champs) {
        Verdict v = verif_bornes(c.x, c.b.min, c.b.max, c.b.min_inclus, c.b.max_inclus);
        if (!v.ok) return v;
    }
    return {};
}

std::string texte_duree(long secondes) {
    return fmt::format("{:02d}:{:02d}:{:02d}", secondes / 3600, secondes % 3600 / 60, secondes % 60);
}

}  // namespace kestrel

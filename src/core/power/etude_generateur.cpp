// One power_step per date, then the values of every panel read from the
// record: node temperatures, panel powers and the fluxes their cells see.
#include "core/power/etude_generateur.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/etat/etat.h"
#include "core/power/flux.h"
#include "core/power/ligne_power.h"
#include "core/power/panel_target.h"
#include "core/shell/parcours.h"

namespace kestrel {

namespace {

constexpr double KELVIN = 273.15;
constexpr double RAD_DEG = 180.0 / PI;
constexpr double RIEN = std::numeric_limits<double>::quiet_NaN();

int nombre_panneaux(const PowerRecord& p, ConfigPower c) {
    switch (c) {
        case ConfigPower::panneaux_externes:
            return 1;  // both wings are the same panel in the model
        case ConfigPower::cylindre:
            return 36;
        case ConfigPower::faces:
            return std::clamp<int>(p.nb_faces, 0, 6);
    }
    return 0;
}

void colonnes_panneaux(TableGenerateur& t, int n, const char* unite) {
    for (int i = 1; i <= n; ++i) {
        t.titres.push_back("Panneau " + std::to_string(i));
        t.unites.push_back(unite);
    }
}

// External panel: what its front sees at its present angle, and where it would
// see the most.
void colonnes_externes(TableGenerateur& t) {
    const char* const colonnes[][2] = {
        {"Incidence solaire", "°"},       {"Incidence albédo", "°"},
        {"Flux solaire direct", "W/m²"},  {"Flux albédo", "W/m²"},
        {"Flux solaire + albédo", "W/m²"}, {"Flux cellules", "W/m²"},
        {"Orientation courante", "°"},    {"Orientation optimale", "°"}};
    for (const auto& c : colonnes) {
        t.titres.push_back(c[0]);
        t.unites.push_back(c[1]);
    }
}

void ligne_externe(Etat& etat, TableGenerateur& t) {
    const double a = etat.pwr.pan_angle;
    const double cible = panel_target_refined(etat);
    t.valeurs.insert(t.valeurs.end(),
                     {incidence_sun(etat, a, PI) * RAD_DEG, incidence_earth(etat, a, PI) * RAD_DEG,
                      solar_flux_direct(etat, a, PI), albedo_flux(etat, a, PI), solar_albedo_flux(etat, a, PI),
                      cell_flux(etat, a, PI), a * RAD_DEG, cible == PAS_DE_CIBLE ? RIEN : cible * RAD_DEG});
}

void ajoute_ligne(Etat& etat, ResultatGenerateur& r) {
    PowerRecord& p = etat.pwr;
    const int n = r.panneaux;
    double tmax = -std::numeric_limits<double>::infinity(), tmin = -tmax;
    for (int i = 0; i < n; ++i) {
        const double t = p.node_t[i] - KELVIN;
        r.temperature.valeurs.push_back(t);
        tmax = std::max(tmax, t);
        tmin = std::min(tmin, t);
        r.puissance.valeurs.push_back(p.pan_power[i]);
    }
    r.temperature.valeurs.push_back(tmax);
    r.temperature.valeurs.push_back(tmin);

    switch (r.config) {
        case ConfigPower::panneaux_externes:
            ligne_externe(etat, r.flux);
            break;
        case ConfigPower::cylindre: {
            const LoiCellule loi = loi_cellule(p);
            incidences_bandes(p);
            for (int i = 0; i < n; ++i) r.flux.valeurs.push_back(cell_flux_bande(p, loi, i));
            break;
        }
        case ConfigPower::faces: {
            const LoiCellule loi = loi_cellule(p);
            for (int i = 0; i < n; ++i)
                r.flux.valeurs.push_back(cell_flux(etat, loi, normale(p.face_elev[i], p.face_azim[i])));
            break;
        }
    }
}

}  // namespace

const TableGenerateur& ResultatGenerateur::table(VueGenerateur v) const {
    switch (v) {
        case VueGenerateur::temperature:
            return temperature;
        case VueGenerateur::puissance:
            return puissance;
        case VueGenerateur::flux:
            break;
    }
    return flux;
}

const char* image_vue(VueGenerateur v) {
    switch (v) {
        case VueGenerateur::temperature:
            return "0.000";
        case VueGenerateur::puissance:
            return "0.00";
        case VueGenerateur::flux:
            break;
    }
    return "0.0";
}

ResultatGenerateur colonnes_generateur(const PowerRecord& p) {
    ResultatGenerateur r;
    r.config = configuration(p);
    r.panneaux = nombre_panneaux(p, r.config);
    colonnes_panneaux(r.temperature, r.panneaux, "°C");
    r.temperature.titres.insert(r.temperature.titres.end(), {"Maximum", "Minimum"});
    r.temperature.unites.insert(r.temperature.unites.end(), {"°C", "°C"});
    colonnes_panneaux(r.puissance, r.panneaux, "W");
    if (r.config == ConfigPower::panneaux_externes)
        colonnes_externes(r.flux);
    else
        colonnes_panneaux(r.flux, r.panneaux, "W/m²");
    return r;
}

ResultatGenerateur etude_generateur(Etat& etat, const std::function<void(double)>& progres, const bool* stop) {
    ResultatGenerateur r = colonnes_generateur(etat.pwr);
    const Session& s = etat.session;
    // Thermal ageing counts from the cells' date: a run cannot start before it.
    if (!(s.j_debut > etat.pwr.date_cell)) {
        r.faute.code = CodeErreur::date_cellules;
        r.faute.date = s.j_debut;
        return r;
    }
    vide_canal(etat);
    power_state_init(etat);
    const double debut = s.j_debut, fin = s.j_fin;
    const int32_t pas = s.pas_sim;
    LignePower ligne;
    parcours_dates(debut, fin, pas, [&](double j) {
        // The window serves events between steps: the run keeps its own step.
        etat.session.pas_sim = pas;
        etat.session.j_courant = j;
        power_step(etat);
        if (etat.faute || !ligne_power_finie(etat, j, ligne)) return false;
        r.dates.push_back(j);
        r.eclipses.push_back(etat.pwr.eclipse == VRAI);
        ajoute_ligne(etat, r);
        if (etat.faute) return false;
        if (progres) progres(fin > debut ? std::min(100.0, 100 * (j - debut) / (fin - debut)) : 100.0);
        if (stop && *stop) {
            r.arrete = true;
            return false;
        }
        return true;
    });
    r.faute = etat.faute;
    r.alertes = etat.alertes;
    return r;
}

}  // namespace kestrel

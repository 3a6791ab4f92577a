// Solar generator study: power_step over the session's period, no clock, and
// per-panel tables of temperature (°C), power (W) and flux (W/m²). For
// external panels the flux table holds the incidences (deg) and fluxes at the
// panel's angle and the refined best angle (deg). Works on the shared record.
#pragma once
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/power/power_step.h"
#include "core/shell/erreur.h"

namespace kestrel {

struct Etat;

enum class VueGenerateur { temperature, puissance, flux };

// One view: titled columns and one row of values per step.
struct TableGenerateur {
    std::vector<std::string> titres;  // "Panneau 1", ..., "Maximum", "Minimum"
    std::vector<std::string> unites;  // "°C", "W", "W/m²", "°"
    std::vector<double> valeurs;      // row after row; NaN where there is nothing to show

    std::size_t colonnes() const { return titres.size(); }
    std::size_t lignes() const { return titres.empty() ? 0 : valeurs.size() / titres.size(); }
    double valeur(std::size_t ligne, std::size_t col) const { return valeurs[ligne * titres.size() + col]; }
};

struct ResultatGenerateur {
    ConfigPower config = ConfigPower::panneaux_externes;
    int panneaux = 0;                 // panels in the tables' "Panneau n" columns
    std::vector<double> dates;        // day count of each row
    std::vector<char> eclipses;       // 1 when the row's step is in the shadow
    TableGenerateur temperature, puissance, flux;
    bool arrete = false;              // the stop flag ended the loop
    Erreur faute;                     // date test or a numerical fault of a step
    Alertes alertes;                  // what the run went through (the charge curve's trap)

    const TableGenerateur& table(VueGenerateur v) const;
};

// Number picture of a view's values: temperatures "0.000", powers "0.00",
// fluxes "0.0".
const char* image_vue(VueGenerateur v);

// Empty tables with the columns of the project's configuration.
ResultatGenerateur colonnes_generateur(const PowerRecord& p);

// Refuses a start not after date_cell (fault date_cellules, nothing run);
// otherwise power_state_init, then one power_step per date of the period.
// `progres` gets the percentage of the period done after each step; the loop
// ends after the step during which *stop became true.
ResultatGenerateur etude_generateur(Etat& etat, const std::function<void(double)>& progres = {},
                                    const bool* stop = nullptr);

}  // namespace kestrel

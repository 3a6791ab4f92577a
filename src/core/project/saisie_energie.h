// The keyboard entries of the power settings, by the name of their input box:
// where each value lives in the power record, its limits (some depend on
// another field), how it is shown, and the repairs that follow a good entry.
// Boxes that edit one element of a listed group (a face, a surface, a curve
// point's coefficient, day or eclipse) take that element's index k.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "core/etat/power_record.h"
#include "core/shell/validateurs.h"

namespace kestrel {

struct Bornes {
    std::optional<double> min, max;  // absent: no limit on that side
    bool min_inclus = true, max_inclus = true;
    bool separees = false;  // each side checked and worded alone
};

// Limits of a box for the record as it stands, or nothing for an unknown box.
std::optional<Bornes> bornes_energie(const PowerRecord& p, std::string_view champ, int k = 0);

// The box (and its element k) that edits the record field lying `decalage`
// bytes into a PowerRecord, if one does: how a field named in a project
// listing finds its box, its limits and its repairs.
struct CaseEnergie {
    std::string_view nom;
    int k = 0;
};
std::optional<CaseEnergie> case_energie(std::size_t decalage);

// True when the box takes whole numbers only.
bool champ_entier(std::string_view champ);

// The text typed in a box: checked as a number of the field's type, then
// against its limits (one message per case: both limits, a single upper or a
// single lower one), then stored, then the repairs of Isc/Imp, Voc/Vmp and
// the end-of-life ratios run. On a refusal nothing changes.
Verdict saisie_energie(PowerRecord& p, std::string_view champ, int k, const std::string& texte);

// The value of a box as a number, and as the box shows it (capacities with
// two decimals, other values in their shortest exact form).
double valeur_energie(const PowerRecord& p, std::string_view champ, int k = 0);
std::string texte_energie(const PowerRecord& p, std::string_view champ, int k = 0);

// Efficiency of the cells at beginning (or end) of life, as a ratio: the
// maximum power of one cell over the solar constant 1368 W/m² falling on its
// area (cm²); at end of life Imp and Vmp take their ratios.
double rendement_cellules(const PowerRecord& p, bool fin_de_vie);

// The body list: refused (false, nothing changed) while the panels are
// external; 0 four faces, 1 six faces (angle table rebuilt), 2 cylinder.
bool choix_corps(PowerRecord& p, int entree);

}  // namespace kestrel

// The solar generator study's results as the texts a window shows and saves:
// the date of each row, then every column of one view through the view's
// number picture. The graph reads the same texts back (the table is the store).
#pragma once
#include <ostream>
#include <string>

#include "core/power/etude_generateur.h"
#include "core/project/echelle.h"
#include "core/project/table_textes.h"

namespace kestrel {

// Column 0 the date "dd/mm/yyyy hh:mm:ss", then the view's columns; a cell
// with no value (no best angle) is empty. `pas_s` is the run's step.
TableTextes textes_generateur(const ResultatGenerateur& r, VueGenerateur vue, double pas_s);

// Headers of the columns with their units: "Panneau 1 (°C)".
std::string entete_colonne(const TableGenerateur& t, std::size_t col);

// Scale of columns [premiere, premiere + n) read back from the texts, rounded.
Echelle echelle_colonnes(const TableTextes& t, int premiere, int n);

// Tab-separated text: "Date" and the headers, then one line per row.
void ecrit_texte_generateur(std::ostream& out, const ResultatGenerateur& r, VueGenerateur vue,
                            const TableTextes& t);

}  // namespace kestrel

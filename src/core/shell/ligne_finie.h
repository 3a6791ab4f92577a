// Every row a run writes (CSV rows, the results file, summaries, exploitation
// rows) is checked here before it leaves: the first value that is not finite
// becomes the run's fault, naming its column and the row's date, and the row
// is not written. Rows written before it stay.
#pragma once
#include <span>
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

// Index of the first NaN or infinite value of v, or -1 when all are finite.
long premiere_non_finie(std::span<const double> v);

// True when every value of the row is finite. Otherwise records in `faute`
// (unless a fault is already there) valeur_non_finie with the column's name
// nom(i), the row's date (days) and the value, and returns false.
template <class Nom>
bool ligne_finie(Erreur& faute, double date, std::span<const double> v, const Nom& nom) {
    const long i = premiere_non_finie(v);
    if (i < 0) return true;
    const std::string colonne = nom(static_cast<std::size_t>(i));
    return signale_faute(faute, CodeErreur::valeur_non_finie, date, colonne.c_str(), v[static_cast<std::size_t>(i)]);
}

// The same with the columns' names in a table as long as the row.
inline bool ligne_finie(Erreur& faute, double date, std::span<const double> v, const char* const* noms) {
    return ligne_finie(faute, date, v, [noms](std::size_t i) { return std::string(noms[i]); });
}

}  // namespace kestrel

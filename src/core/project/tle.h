// Two-line element sets: the fixed columns of lines 1 and 2 (an optional name
// line before them), both checksums, the two-digit year (57-99: 19xx, 00-56:
// 20xx). The elements are mean elements of another theory; they are taken here
// as the Keplerian elements of the program's own inertial frame, so positions
// drift from the real satellite's within hours.
#pragma once
#include <string>

#include "core/orbit/orbite.h"

namespace kestrel {

// Where a set could not be read: line (0 name, 1, 2) and column (from 1).
struct FauteTle {
    int ligne = 0;
    int colonne = 0;
    std::string raison;  // French, e.g. "somme de contrôle 5 au lieu de 7"
    explicit operator bool() const { return !raison.empty(); }
};

// The French message naming the line and the column.
std::string texte_faute_tle(const FauteTle& f);

// Reads the set from a text (blank lines and CR ignored). On success the
// eight elements replace those of o, the semi-major axis follows from the
// mean motion as on the orbit window, o.nom takes the name (24 characters,
// blank-padded) and nom the whole name line, trimmed (empty without one). On
// failure o and nom are untouched. A value outside the orbit window's ranges
// is refused.
FauteTle lit_tle(const std::string& texte, Orbite& o, std::string& nom);

// The same from a file (.tle, .txt); a file that cannot be read, or is not a
// small plain file, is a fault of line 0, column 0.
FauteTle charge_tle(const std::string& chemin, Orbite& o, std::string& nom);

}  // namespace kestrel

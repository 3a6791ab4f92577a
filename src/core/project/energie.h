// The power project (.pwr): 279 text lines, CR LF, Windows-1252. Every
// function reports its failure as an Erreur (never throws); texte_erreur
// gives the French text.
#pragma once
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

struct Etat;
struct PowerRecord;

// The load reads into a copy and replaces etat's power record, environment
// and period only when the whole file was read; on failure etat is untouched.
// A folder, a device, a pipe or a file over 1 MiB is refused unread, with a
// message of its own.
Erreur charge_energie(Etat& etat, const std::string& chemin);
// The same from the file's bytes (the refusals aside).
Erreur charge_energie_octets(Etat& etat, const std::string& octets);
// Deletes the previous file first, then writes; a failure leaves what was written.
Erreur sauve_energie(const Etat& etat, const std::string& chemin);
// The 279 lines that sauve_energie writes, in UTF-8 with CR LF line ends.
std::string texte_energie(const Etat& etat);
// Lateral faces from opt_faces: 4 (value 0) or 6 (value 1) normals 90 or 60
// degrees apart, elevation 0, in rad; any other value is a cylinder
// (nb_faces 0) and leaves the angle tables as they were.
void tableau_faces(PowerRecord& p);

}  // namespace kestrel

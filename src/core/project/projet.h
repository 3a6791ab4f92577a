// Reading and writing the three project files. Every function reports its
// failure as an Erreur (never throws); texte_erreur gives the French text.
#pragma once
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

struct Etat;
struct PowerRecord;
struct AttitudeRecord;

// .pwr, power project (279 text lines, CR LF, Windows-1252). The load reads
// into a copy and replaces etat's power record, environment and period only
// when the whole file was read; on failure etat is untouched.
Erreur charge_energie(Etat& etat, const std::string& chemin);
// Deletes the previous file first, then writes; a failure leaves what was written.
Erreur sauve_energie(const Etat& etat, const std::string& chemin);
// The 279 lines that sauve_energie writes, in UTF-8 with CR LF line ends.
std::string texte_energie(const Etat& etat);
// Lateral faces from opt_faces: 4 (value 0) or 6 (value 1) normals 90 or 60
// degrees apart, elevation 0, in rad; any other value is a cylinder
// (nb_faces 0) and leaves the angle tables as they were.
void tableau_faces(PowerRecord& p);

// .att, attitude project (one 820-byte little-endian record). A short file
// reads as zeros past its end; the record is copied only after a good read.
Erreur charge_attitude(Etat& etat, const std::string& chemin);
// The record as the file holds it, with no recomputation (the face centres
// stay as stored): what a listing of the file shows.
Erreur lit_attitude(AttitudeRecord& a, const std::string& chemin);
// Replaces the first 820 bytes; a longer old file keeps its tail.
Erreur sauve_attitude(const Etat& etat, const std::string& chemin);

// .orb, one orbit (114-byte record in a 128-byte slot).
Erreur charge_orbite(Etat& etat, const std::string& chemin);
Erreur sauve_orbite(const Etat& etat, const std::string& chemin);

// True when the path exists and is not a folder; false on any failure.
bool fichier_existe(const std::string& chemin);
// The file name without folders and without its last extension.
std::string extrait_nom_fichier(const std::string& chemin);

}  // namespace kestrel

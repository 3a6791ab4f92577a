// The two binary project files, little-endian: the attitude project (.att)
// and the orbit (.orb). Every function reports its failure as an Erreur
// (never throws); texte_erreur gives the French text.
#pragma once
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

struct Etat;
struct AttitudeRecord;

// Each file is refused unread when it is not a plain file of at most 1 MiB,
// with a message of its own.

// .att, one 820-byte record. A short file reads as zeros past its end; the
// record is copied only after a good read.
Erreur charge_attitude(Etat& etat, const std::string& chemin);
// The record as the file holds it, with no recomputation (the face centres
// stay as stored): what a listing of the file shows.
Erreur lit_attitude(AttitudeRecord& a, const std::string& chemin);
// charge_attitude from the file's bytes: the first 820, zeros past the end.
void charge_attitude_octets(Etat& etat, const std::string& octets);
// Replaces the first 820 bytes; a longer old file keeps its tail.
Erreur sauve_attitude(const Etat& etat, const std::string& chemin);

// .orb, one orbit (114-byte record in a 128-byte slot).
Erreur charge_orbite(Etat& etat, const std::string& chemin);
// The same from the file's bytes: the first 114, zeros past the end.
void charge_orbite_octets(Etat& etat, const std::string& octets);
Erreur sauve_orbite(const Etat& etat, const std::string& chemin);

}  // namespace kestrel

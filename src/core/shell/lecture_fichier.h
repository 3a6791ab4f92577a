// Reading a whole project file (.pwr, .att, .orb, TLE) safely: only a plain
// file, and only a small one. A folder, a device (an endless /dev/urandom, a
// terminal), a named pipe or a socket is refused with its own message before
// anything is read, and nothing here ever waits for a writer.
#pragma once
#include <cstddef>
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

// A .pwr is a few kilobytes, the binary records under a kilobyte: anything
// bigger is not a project file.
inline constexpr std::size_t TAILLE_PROJET_MAX = std::size_t{1} << 20;

// The whole file into `contenu`. Returns no error; or fichier_dossier,
// fichier_peripherique, fichier_tube, fichier_special (socket and the like),
// fichier_trop_gros (valeur = its size in bytes, or max + 1 when it grew
// while read), each with detail = chemin; or fichier_illisible when the
// system refused the open or the read (detail = chemin, valeur = errno).
// `contenu` is left empty on failure.
Erreur lit_fichier_projet(const std::string& chemin, std::string& contenu,
                          std::size_t max = TAILLE_PROJET_MAX);

// True for the refusals that have their own message (all but fichier_illisible).
bool refus_fichier(const Erreur& e);

}  // namespace kestrel

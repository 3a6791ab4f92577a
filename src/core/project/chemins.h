// File paths as the project files name them.
#pragma once
#include <string>

namespace kestrel {

// True when the path exists and is not a folder; false on any failure.
bool fichier_existe(const std::string& chemin);
// The file name without folders and without its last extension; both
// separators are understood.
std::string extrait_nom_fichier(const std::string& chemin);

}  // namespace kestrel

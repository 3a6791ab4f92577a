// Where the programs find their data files (atmosphere tables, textures,
// example projects). In a build tree they stand beside the executables; once
// installed they live in share/kestrel beside the bin folder (/usr/share/kestrel
// for the Debian package). The first folder that holds the tables wins.
#pragma once
#include <string>
#include <vector>

namespace kestrel {

// Folder of the running executable, from /proc/self/exe (the current folder
// when that cannot be read).
std::string dossier_executable();

// The folders searched for data, in order: the executable's folder, then
// <exe>/../share/kestrel, then /usr/share/kestrel (duplicates dropped).
std::vector<std::string> dossiers_donnees(const std::string& dossier_exe);

// The first of dossiers_donnees(dossier_exe) that holds flux_solaire.txt and
// densite.txt; dossier_exe itself when none does (the missing file is then
// reported by the run that needs it).
std::string dossier_donnees(const std::string& dossier_exe);

// True for an installed data folder (…/share/kestrel): read-only for the
// user, so the results go to the user's own data folder instead.
bool dossier_installe(const std::string& dossier);

// "a, b, c": the folders searched from this executable's folder, for messages.
std::string liste_dossiers_cherches();

}  // namespace kestrel

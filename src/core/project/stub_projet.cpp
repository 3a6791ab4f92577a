// Placeholder until the project file formats land; every call reports a failure.
#include "core/etat.h"
#include "core/project/projet.h"

namespace kestrel {
namespace {
Erreur pas_encore(const std::string& chemin) {
    Erreur e;
    e.code = CodeErreur::fichier_orbite;
    e.detail = "format de fichier pas encore disponible : " + chemin;
    return e;
}
}  // namespace
Erreur charge_energie(Etat&, const std::string& c) { return pas_encore(c); }
Erreur sauve_energie(const Etat&, const std::string& c) { return pas_encore(c); }
Erreur charge_attitude(Etat&, const std::string& c) { return pas_encore(c); }
Erreur sauve_attitude(const Etat&, const std::string& c) { return pas_encore(c); }
Erreur charge_orbite(Etat&, const std::string& c) { return pas_encore(c); }
Erreur sauve_orbite(const Etat&, const std::string& c) { return pas_encore(c); }
bool fichier_existe(const std::string&) { return false; }
std::string extrait_nom_fichier(const std::string& c) { return c; }
}  // namespace kestrel

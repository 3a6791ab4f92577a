// kestrel project new: writes the new-project files (.pwr with the default
// period and step 120, .att, .orb). kestrel project show FILE: lists every
// field of a .pwr, .att or .orb (kind by extension) as "name = value".
#include <algorithm>
#include <cctype>
#include <memory>

#include "cli/commun.h"
#include "cli/sortie.h"
#include "core/project/energie.h"
#include "core/project/fichiers_binaires.h"
#include "core/project/liste_champs.h"

namespace kestrel::cli {

namespace {

struct OptionsProjet {
    std::string pwr, att, orb;  // files to write
    std::string fichier;        // file to list
};

std::string extension(const std::string& chemin) {
    const auto point = chemin.rfind('.');
    const auto sep = chemin.find_last_of("\\/");
    if (point == std::string::npos || (sep != std::string::npos && point < sep)) return {};
    std::string e = chemin.substr(point + 1);
    std::transform(e.begin(), e.end(), e.begin(), [](unsigned char c) { return std::tolower(c); });
    return e;
}

int ecrit(const std::string& chemin, const Erreur& e) {
    if (!e) return SORTIE_OK;
    return signale(texte_lisible(chemin, 300) + ": " + texte_erreur(e), SORTIE_ECHEC);
}

int nouveau(const OptionsProjet& o) {
    if (o.pwr.empty() && o.att.empty() && o.orb.empty()) {
        return signale("project new : au moins un fichier est attendu, --pwr, --att ou --orb", SORTIE_ARGUMENTS);
    }
    const Etat etat;  // a new project: defaults and the default period
    if (!o.pwr.empty() && ecrit(o.pwr, sauve_energie(etat, o.pwr))) return SORTIE_ECHEC;
    if (!o.att.empty() && ecrit(o.att, sauve_attitude(etat, o.att))) return SORTIE_ECHEC;
    if (!o.orb.empty() && ecrit(o.orb, sauve_orbite(etat, o.orb))) return SORTIE_ECHEC;
    return SORTIE_OK;
}

int montre(const OptionsProjet& o) {
    const std::string ext = extension(o.fichier);
    Etat etat;
    Erreur e;
    std::vector<ChampTexte> champs;
    if (ext == "pwr") {
        e = charge_energie(etat, o.fichier);
        champs = champs_energie(etat.pwr, etat.session);
    } else if (ext == "att") {
        e = lit_attitude(etat.att, o.fichier);  // the face centres as stored
        champs = champs_attitude(etat.att);
    } else if (ext == "orb") {
        e = charge_orbite(etat, o.fichier);
        champs = champs_orbite(etat.orbite);
    } else {
        return signale("project show : « " + texte_lisible(o.fichier, 300) +
                           " » : le type de fichier se lit à son extension, .pwr, .att ou .orb",
                       SORTIE_ARGUMENTS);
    }
    if (e) return ecrit(o.fichier, e);
    Sortie out("");
    for (const auto& c : champs) out << c.nom << " = " << c.valeur << "\n";
    return termine(out, SORTIE_OK);
}

}  // namespace

Commande enregistre_project(CLI::App& app) {
    auto o = std::make_shared<OptionsProjet>();
    Commande c;
    c.app = app.add_subcommand("project", "New-project files, or the fields of a project file");
    c.app->require_subcommand(1);
    CLI::App* cmd_new = c.app->add_subcommand("new", "write the default .pwr, .att and .orb files");
    cmd_new->add_option("--pwr", o->pwr, "power project to write");
    cmd_new->add_option("--att", o->att, "attitude project to write");
    cmd_new->add_option("--orb", o->orb, "orbit file to write");
    CLI::App* cmd_show = c.app->add_subcommand("show", "list every field of a .pwr, .att or .orb as name = value");
    cmd_show->add_option("file", o->fichier, "the file; its kind is told by its extension")->required();
    c.lance = [o, cmd_new] { return cmd_new->parsed() ? nouveau(*o) : montre(*o); };
    return c;
}

}  // namespace kestrel::cli

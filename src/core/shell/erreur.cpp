#include "core/shell/erreur.h"

#include <fmt/format.h>

#include "core/shell/calendrier.h"
#include "core/shell/dossiers.h"
#include "core/shell/messages.h"

namespace kestrel {

namespace {
std::string texte_date(double j) {
    Date d;
    jour_vers_date(j, d);
    return fmt::format("{} (jour {:.6f})", date_vers_texte(d), j);
}
}  // namespace

std::string texte_erreur(const Erreur& e) {
    switch (e.code) {
        case CodeErreur::aucune:
            return {};
        case CodeErreur::ecriture_energie:
            return msg::ecriture_energie;
        case CodeErreur::lecture_energie:
            // ligne 0: the file could not be opened; an empty text: the file ended early.
            if (e.ligne == 0)
                return fmt::format("Erreur de lecture du fichier de configuration « {} » : "
                                   "fichier introuvable ou illisible",
                                   e.detail);
            if (e.detail.empty())
                return fmt::format("Erreur de lecture du fichier de configuration, ligne {} : "
                                   "fin du fichier atteinte",
                                   e.ligne);
            return fmt::format("Erreur de lecture du fichier de configuration, ligne {} : "
                               "valeur illisible « {} »",
                               e.ligne, e.detail);
        case CodeErreur::lecture_attitude:
            return msg::lecture_attitude;
        case CodeErreur::ecriture_attitude:
            return fmt::format("Erreur d'écriture du fichier de configuration du contrôle d'attitude : {}",
                               e.detail);
        case CodeErreur::fichier_orbite:
            return e.detail;
        case CodeErreur::fichier_donnees:
            return fmt::format("Fichier de données introuvable ou illisible : {} (dossiers cherchés : {})",
                               e.detail, liste_dossiers_cherches());
        case CodeErreur::ecriture_resultats:
            return fmt::format("Impossible d'écrire le fichier de résultats : {}", e.detail);
        case CodeErreur::non_convergence:
            return fmt::format("Calcul interrompu : {} ne converge pas à la date {}", e.detail,
                               texte_date(e.date));
        case CodeErreur::sous_rayon_ombre:
            return fmt::format(
                "Calcul interrompu : le satellite passe sous le rayon d'ombre de 6428 km à la date {}",
                texte_date(e.date));
        case CodeErreur::valeur_non_finie:
            return fmt::format("Calcul interrompu : valeur non finie de {} à la date {}", e.detail,
                               texte_date(e.date));
        case CodeErreur::faute_calcul:
            return fmt::format("Calcul interrompu : erreur de calcul ({}) à la date {}", e.detail,
                               texte_date(e.date));
        case CodeErreur::date_cellules:
            return msg::date_cellules;
        case CodeErreur::recharge_trop_longue:
            return fmt::format("Recharge abandonnée : la batterie n'est toujours pas pleine après {} de "
                               "charge. Le courant de charge est trop faible.",
                               e.detail);
    }
    return {};
}

}  // namespace kestrel

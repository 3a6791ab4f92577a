#include "core/shell/erreur.h"

#include <cerrno>
#include <cmath>

#include <fmt/format.h>

#include "core/shell/calendrier.h"
#include "core/shell/dossiers.h"
#include "core/shell/lecture_fichier.h"
#include "core/shell/messages.h"
#include "core/shell/periode.h"

namespace kestrel {

namespace {

// The calendar date only for days it can show; a wild value as a number.
std::string texte_date(double j) {
    if (!(j >= JOUR_MIN && j <= JOUR_MAX)) return fmt::format("jour {}", nombre_lisible(j));
    Date d;
    jour_vers_date(j, d);
    return fmt::format("{} (jour {:.6f})", date_vers_texte(d), j);
}

}  // namespace

std::string cause_systeme(int numero) {
    switch (numero) {
        case ENOSPC: return "plus de place sur le disque";
        case EFBIG: return "taille de fichier maximale atteinte";
        case EDQUOT: return "quota de disque atteint";
        case EACCES:
        case EPERM: return "permission refusée";
        case ENOENT: return "fichier ou dossier introuvable";
        case EISDIR: return "c'est un dossier";
        case ENOTDIR: return "un élément du chemin n'est pas un dossier";
        case ENAMETOOLONG: return "nom de fichier trop long";
        case ELOOP: return "trop de liens symboliques";
        case EROFS: return "système de fichiers en lecture seule";
        case EPIPE: return "tube fermé par le lecteur";
        default: return fmt::format("erreur d'entrée/sortie (code {})", numero);
    }
}

std::string nombre_lisible(double x) {
    if (std::isnan(x)) return "nan";  // whatever its sign bit
    // whole numbers (steps, counts) in full up to 15 digits
    if (x == std::floor(x) && std::fabs(x) < 1e15) return fmt::format("{:.0f}", x);
    return fmt::format("{:.10g}", x);
}

std::string texte_lisible(const std::string& s, std::size_t max) {
    std::string r;
    for (unsigned char c : s) {
        if (r.size() >= max) {
            r += "…";
            break;
        }
        if (c < 0x20 || c == 0x7f)
            r += fmt::format("\\x{:02x}", c);
        else
            r += static_cast<char>(c);
    }
    return r;
}

bool signale_faute(Erreur& faute, CodeErreur code, double date, const char* detail, double valeur) {
    if (faute) return false;
    faute.code = code;
    faute.date = date;
    faute.detail = detail ? detail : "";
    faute.valeur = valeur;
    return false;
}

std::string texte_erreur(const Erreur& e) {
    const std::string detail = texte_lisible(e.detail);
    const std::string origine = texte_lisible(e.origine, 300);
    switch (e.code) {
        case CodeErreur::aucune:
            return {};
        case CodeErreur::ecriture_energie:
            return msg::ecriture_energie;
        case CodeErreur::lecture_energie:
            // ligne 0: the file could not be opened; an empty text: the file ended early.
            if (e.ligne == 0)
                return fmt::format("Erreur de lecture du fichier de configuration « {} » : "
                                   "fichier introuvable ou illisible",
                                   detail);
            if (e.detail.empty())
                return fmt::format("Erreur de lecture du fichier de configuration, ligne {} : "
                                   "fin du fichier atteinte",
                                   e.ligne);
            return fmt::format("Erreur de lecture du fichier de configuration, ligne {} : "
                               "valeur illisible « {} »",
                               e.ligne, detail);
        case CodeErreur::lecture_attitude:
            return msg::lecture_attitude;
        case CodeErreur::ecriture_attitude:
            return fmt::format("Erreur d'écriture du fichier de configuration du contrôle d'attitude : {}",
                               detail);
        case CodeErreur::fichier_orbite:
            return detail;
        case CodeErreur::fichier_donnees:
            return fmt::format("Fichier de données introuvable ou illisible : {} (dossiers cherchés : {})",
                               detail, texte_lisible(liste_dossiers_cherches(), 1000));
        case CodeErreur::ecriture_resultats:
            return fmt::format("Impossible d'écrire le fichier de résultats : {}", detail);
        case CodeErreur::fichier_dossier:
            return "Lecture refusée : c'est un dossier, pas un fichier";
        case CodeErreur::fichier_peripherique:
            return "Lecture refusée : c'est un périphérique, pas un fichier ordinaire";
        case CodeErreur::fichier_tube:
            return "Lecture refusée : c'est un tube nommé (FIFO), pas un fichier ordinaire";
        case CodeErreur::fichier_special:
            return "Lecture refusée : ce n'est pas un fichier ordinaire";
        case CodeErreur::fichier_trop_gros:
            return fmt::format("Lecture refusée : {} octets, quand un fichier de projet en compte au plus {} "
                               "(1 Mio)",
                               nombre_lisible(e.valeur), TAILLE_PROJET_MAX);
        case CodeErreur::fichier_illisible:
            return fmt::format("Lecture impossible : {}", cause_systeme(static_cast<int>(e.valeur)));
        case CodeErreur::non_convergence:
            return fmt::format("Calcul interrompu : {} ne converge pas à la date {}", detail,
                               texte_date(e.date));
        case CodeErreur::sous_rayon_ombre:
            return fmt::format(
                "Calcul interrompu : le satellite passe sous le rayon d'ombre de 6428 km à la date {}",
                texte_date(e.date));
        case CodeErreur::valeur_non_finie:
            return fmt::format("Calcul interrompu : valeur non finie de {} ({}) à la date {}", detail,
                               nombre_lisible(e.valeur), texte_date(e.date));
        case CodeErreur::faute_calcul:
            return fmt::format("Calcul interrompu : erreur de calcul ({}) à la date {}", detail,
                               texte_date(e.date));
        case CodeErreur::date_cellules:
            return msg::date_cellules;
        case CodeErreur::recharge_trop_longue:
            return fmt::format("Recharge abandonnée : la batterie n'est toujours pas pleine après {} de "
                               "charge. Le courant de charge est trop faible.",
                               e.detail);
        case CodeErreur::rotation_trop_rapide:
            return fmt::format("Calcul interrompu : le satellite tourne à {} rad/s à la date {}, soit {} rad en "
                               "un pas de {} s ; au-delà de 2 rad par pas l'intégration n'a plus de sens, "
                               "réduisez le pas",
                               nombre_lisible(e.valeur), texte_date(e.date), nombre_lisible(e.valeur * e.pas),
                               nombre_lisible(e.pas));
        case CodeErreur::moyen_mouvement:
            return fmt::format("Orbite refusée : moyen mouvement {} tours/jour ({}) ; "
                               "un nombre fini et positif est attendu",
                               nombre_lisible(e.valeur), origine);
        case CodeErreur::periode_non_finie:
            return fmt::format("Période de simulation refusée : {} {} ({}) ; un nombre fini est attendu", detail,
                               nombre_lisible(e.valeur), origine);
        case CodeErreur::date_hors_limites:
            return fmt::format("Période de simulation refusée : {} {} ({}) ; un jour entre {} (1900) et {} "
                               "est attendu",
                               detail, nombre_lisible(e.valeur), origine, JOUR_MIN, JOUR_MAX);
        case CodeErreur::pas_hors_limites:
            return fmt::format("Pas de simulation refusé : {} s ({}) ; un nombre entier de secondes entre 1 "
                               "et {} (un an) est attendu",
                               nombre_lisible(e.valeur), origine, PAS_MAX);
        case CodeErreur::fin_avant_debut:
            return fmt::format("Période de simulation refusée : la date de fin {} ({}) précède la date de "
                               "début {}",
                               texte_date(e.valeur), origine, texte_date(e.date));
        case CodeErreur::trop_de_pas:
            return fmt::format("Période de simulation refusée : {} pas de {} s ({}) ; au plus {} pas par "
                               "simulation",
                               nombre_lisible(e.valeur), detail, origine, PAS_NOMBRE_MAX);
    }
    return {};
}

}  // namespace kestrel

// Failures the core reports to its callers (windows, command line) instead of
// throwing. The core gives a code and its data; texte_erreur() gives the exact
// French sentence, so the windows and the command line say the same thing.
#pragma once
#include <string>

namespace kestrel {

enum class CodeErreur {
    aucune,
    // files
    ecriture_energie,       // .pwr could not be written
    lecture_energie,        // .pwr read or conversion failure (ligne, detail = text)
    lecture_attitude,       // .att could not be opened or read
    ecriture_attitude,      // .att could not be written (detail = file and system description)
    fichier_orbite,         // .orb open/save failure (detail = system description)
    fichier_donnees,        // a data table (flux_solaire.txt, densite.txt) is missing or bad
    ecriture_resultats,     // results file could not be written
    // numerical faults of a run (date = day count of the step)
    non_convergence,        // an iteration passed its safety cap (detail = solver)
    sous_rayon_ombre,       // satellite inside the 6428 km shadow radius
    valeur_non_finie,       // NaN or infinity in the state (detail = field)
    faute_calcul,           // any other floating-point fault (detail = where)
    date_cellules,          // start date not after "Date initiale cellules"
    recharge_trop_longue,   // battery study: not full after its cap (detail = hh:mm:ss)
};

struct Erreur {
    CodeErreur code = CodeErreur::aucune;
    std::string detail;  // file name, offending text, solver or field name
    double date = 0.0;   // day count since 1950-01-01 where it applies
    long ligne = 0;      // line number in a text file where it applies

    explicit operator bool() const { return code != CodeErreur::aucune; }
};

// The French text shown to the user for this failure.
std::string texte_erreur(const Erreur& e);

}  // namespace kestrel

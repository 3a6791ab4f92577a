// Failures the core reports to its callers (windows, command line) instead of
// throwing. The core gives a code and its data; texte_erreur() gives the exact
// French sentence, so the windows and the command line say the same thing.
#pragma once
#include <cstddef>
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
    // a project file refused before reading (detail = path)
    fichier_dossier,        // a folder
    fichier_peripherique,   // a device: possibly an endless stream
    fichier_tube,           // a named pipe: would wait for a writer
    fichier_special,        // a socket or another non-file
    fichier_trop_gros,      // valeur = size in bytes, over TAILLE_PROJET_MAX
    fichier_illisible,      // open or read refused by the system (valeur = errno)
    // numerical faults of a run (date = day count of the step)
    non_convergence,        // an iteration passed its safety cap (detail = solver)
    sous_rayon_ombre,       // satellite inside the 6428 km shadow radius
    valeur_non_finie,       // NaN or infinity in a row (detail = column, valeur = the value)
    faute_calcul,           // any other floating-point fault (detail = where)
    date_cellules,          // start date not after "Date initiale cellules"
    recharge_trop_longue,   // battery study: not full after its cap (detail = hh:mm:ss)
    rotation_trop_rapide,   // attitude: body rate x step over 2 rad (valeur = rad/s, pas = s)
    // a period refused before the run (detail = which value, valeur, origine)
    moyen_mouvement,        // orbit mean motion not finite or not positive
    periode_non_finie,      // a date or the step is NaN or infinite
    date_hors_limites,      // a date outside 1900 .. year 10163
    pas_hors_limites,       // step not a whole number of seconds in 1 .. one year
    fin_avant_debut,        // valeur = end, date = start
    trop_de_pas,            // valeur = step count, detail = the step in s
};

struct Erreur {
    CodeErreur code = CodeErreur::aucune;
    std::string detail;  // file name, offending text, solver or field name
    double date = 0.0;   // day count since 1950-01-01 where it applies
    long ligne = 0;      // line number in a text file where it applies
    double valeur = 0.0; // the refused value where it applies
    std::string origine = {};  // where the refused value came from (file and line, option)
    double pas = 0.0;    // s, the run's step where it applies

    explicit operator bool() const { return code != CodeErreur::aucune; }
};

// What a run meets and goes on through; the windows and the command line say
// it the same way (rapporte_run), the run does not stop.
struct Alertes {
    // bat_v_charge trapped a numeric failure and gave 0 V: the charge laws do
    // not fit each other ("Incompatibilité entre les paramètres de charge des
    // batteries !!").
    bool incompat_charge = false;
    // An attitude step met a singular system and left the state as it was;
    // the next step tries again. Never shown: kept for whoever asks.
    bool systeme_singulier = false;
    double date_singulier = 0.0;  // days, the first such step
};

// Records a fault of a run in `faute` unless one is already there: the first
// fault is the cause, later ones its consequences. False when it was recorded
// (so a check can end with `return signale_faute(...)`), as when it was not.
bool signale_faute(Erreur& faute, CodeErreur code, double date, const char* detail, double valeur = 0.0);

// The French text shown to the user for this failure. Texts that came from
// outside (file names, file contents) pass through texte_lisible.
std::string texte_erreur(const Erreur& e);

// A text fit for a message line: control characters and DEL as \xNN, cut to
// at most `max` bytes with "…" (a whole file line could be a megabyte).
std::string texte_lisible(const std::string& s, std::size_t max = 120);

// A system error number in our words (the system's own are English).
std::string cause_systeme(int numero);

// A number for a message: whole numbers in full up to 15 digits, others
// with 10 significant digits at most; "nan", "inf".
std::string nombre_lisible(double x);

}  // namespace kestrel

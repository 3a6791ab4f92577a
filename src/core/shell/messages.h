// The program's own French texts that more than one layer shows. One table,
// shared by the windows and the command line; spelling kept exactly.
#pragma once

namespace kestrel::msg {

// validators
inline constexpr const char* type_non_valide = "Type de donnée non valide";
inline constexpr const char* hors_limite = "Valeur hors limite !! Saisissez une valeur : ";
inline constexpr const char* excessive = "Valeur excessive !! Saisissez une valeur ";
inline constexpr const char* insuffisante = "Valeur insuffisante! Saisissez une valeur ";

// project files (the line break stands where the message has its carriage return)
inline constexpr const char* ecriture_energie =
    "Erreur d'écriture.\n Impossible d'enregistrer la configuration !!";
inline constexpr const char* lecture_attitude =
    "Erreur de lecture_ligne du fichier de configuration.\nFichier non trouvable ou format non valable !!";

// runs
inline constexpr const char* date_cellules =
    "Attention, la date initiale des panneaux (données thermiques) est postérieure à la date courante";
inline constexpr const char* incompat_charge =
    "Incompatibilité entre les paramètres de charge des batteries !!";
inline constexpr const char* incompat_decharge =
    "Incompatibilité entre les paramètres de décharge des batteries !!";

// main window
inline constexpr const char* titre_configuration = "Configuration";
inline constexpr const char* question_enregistrer = "Voulez-vous enregistrer le projet ?";
inline constexpr const char* question_resultats = "Voulez-vouz enregistrez les résultat?";

}  // namespace kestrel::msg

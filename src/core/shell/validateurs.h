// The checks every input box goes through, as pure decisions: the window shows
// the message with its icon, puts the old value back and keeps the focus.
#pragma once
#include <cstdint>
#include <string>

namespace kestrel {

enum class Icone { aucune, critique, avertissement };

struct Verdict {
    bool ok = true;
    std::string message;        // exact French text when !ok
    Icone icone = Icone::aucune;
};

// Text of a box read as a number of that type; on success the value is set.
Verdict verif_double(const std::string& texte, double& valeur);
Verdict verif_simple(const std::string& texte, float& valeur);
Verdict verif_entier(const std::string& texte, int32_t& valeur);

// Limits; a value equal to a limit is refused only when that limit is exclusive.
Verdict verif_bornes(double x, double min, double max, bool min_inclus, bool max_inclus);
Verdict verif_max(double x, double max, bool max_inclus);
Verdict verif_min(double x, double min, bool min_inclus);

// Silently brings x into [min, max].
double borne(double x, double min, double max);

// Text of a limit inside the messages above.
std::string texte_limite(double x);

}  // namespace kestrel

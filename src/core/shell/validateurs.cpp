// Decisions and French texts of the input checks. The window shows the text
// with its icon and puts the old value back; nothing here touches a window.
#include "core/shell/validateurs.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <limits>

#include <fmt/format.h>

#include "core/shell/messages.h"

namespace kestrel {

namespace {

Verdict refus(std::string message, Icone icone) { return Verdict{false, std::move(message), icone}; }

Verdict type_refuse() { return refus(msg::type_non_valide, Icone::critique); }

// Decimal text: optional spaces around, optional sign, digits with one decimal
// mark ('.' or the French ','), optional exponent. No "inf", "nan" or hex,
// which the C library would accept. Returns false when it is not that.
bool lit_decimal(const std::string& texte, double& x) {
    std::string t;
    t.reserve(texte.size());
    for (char c : texte) {
        if (c == ',') c = '.';
        if (!((c >= '0' && c <= '9') || c == '.' || c == '+' || c == '-' || c == 'e' || c == 'E' ||
              c == ' ' || c == '\t'))
            return false;
        t.push_back(c);
    }
    const char* debut = t.c_str();
    while (*debut == ' ' || *debut == '\t') ++debut;
    if (*debut == '\0') return false;
    char* fin = nullptr;
    errno = 0;
    const double v = std::strtod(debut, &fin);
    if (fin == debut) return false;
    while (*fin == ' ' || *fin == '\t') ++fin;
    if (*fin != '\0') return false;
    if (!std::isfinite(v) || (errno == ERANGE && std::fabs(v) > 1.0)) return false;
    x = v;
    return true;
}

}  // namespace

Verdict verif_double(const std::string& texte, double& valeur) {
    double x;
    if (!lit_decimal(texte, x)) return type_refuse();
    valeur = x;
    return {};
}

Verdict verif_simple(const std::string& texte, float& valeur) {
    double x;
    if (!lit_decimal(texte, x) || std::fabs(x) > FLT_MAX) return type_refuse();
    valeur = static_cast<float>(x);
    return {};
}

// Whole numbers only ("12", "-3", " +7 "): a fraction or an exponent is not
// an integer entry, and the value must fit 32 bits.
Verdict verif_entier(const std::string& texte, int32_t& valeur) {
    std::size_t i = 0, n = texte.size();
    while (i < n && (texte[i] == ' ' || texte[i] == '\t')) ++i;
    while (n > i && (texte[n - 1] == ' ' || texte[n - 1] == '\t')) --n;
    if (i == n) return type_refuse();
    bool negatif = false;
    if (texte[i] == '+' || texte[i] == '-') {
        negatif = texte[i] == '-';
        ++i;
    }
    if (i == n) return type_refuse();
    long long v = 0;
    for (; i < n; ++i) {
        const char c = texte[i];
        if (c < '0' || c > '9') return type_refuse();
        v = v * 10 + (c - '0');
        if (v > 2147483648LL) return type_refuse();
    }
    if (negatif) v = -v;
    if (v > std::numeric_limits<int32_t>::max()) return type_refuse();
    valeur = static_cast<int32_t>(v);
    return {};
}

// A limit is written in its shortest form that reads back to the same number,
// with a '.' decimal point and no trailing zeros: "360", "0.5", "1e-05".
std::string texte_limite(double x) { return fmt::format("{}", x); }

Verdict verif_bornes(double x, double min, double max, bool min_inclus, bool max_inclus) {
    // Written so that a NaN fails both tests.
    const bool bas_ok = x > min || (min_inclus && x == min);
    const bool haut_ok = x < max || (max_inclus && x == max);
    if (bas_ok && haut_ok) return {};
    // e.g. "0 <= Valeur < 360"
    std::string plage = texte_limite(min) + (min_inclus ? " <=" : " <") +
                        (max_inclus ? " Valeur <= " : " Valeur < ") + texte_limite(max);
    return refus(std::string(msg::hors_limite) + "\n" + plage, Icone::avertissement);
}

Verdict verif_max(double x, double max, bool max_inclus) {
    if (x < max || (max_inclus && x == max)) return {};
    return refus(std::string(msg::excessive) + (max_inclus ? "<= " : "< ") + texte_limite(max),
                 Icone::avertissement);
}

Verdict verif_min(double x, double min, bool min_inclus) {
    if (x > min || (min_inclus && x == min)) return {};
    return refus(std::string(msg::insuffisante) + (min_inclus ? ">= " : "> ") + texte_limite(min),
                 Icone::avertissement);
}

double borne(double x, double min, double max) {
    if (x > max)
        x = max;
    else if (x < min)
        x = min;
    return x;
}

}  // namespace kestrel

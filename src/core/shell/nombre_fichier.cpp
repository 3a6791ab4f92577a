#include "core/shell/nombre_fichier.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include <fmt/format.h>

namespace kestrel {

namespace {

// Significant digits (no point, no trailing zeros) and the decimal exponent of
// the first one: v = 0.d1d2d3... × 10^(expo + 1).
struct Decimal {
    std::string chiffres;
    int expo = 0;
};

Decimal decompose(double v, int precision) {
    // "%.*e" rounds correctly to the given digits: "1.234567e-05".
    char tampon[64];
    std::snprintf(tampon, sizeof tampon, "%.*e", precision - 1, std::fabs(v));
    Decimal d;
    const char* p = tampon;
    for (; *p && *p != 'e'; ++p)
        if (*p >= '0' && *p <= '9') d.chiffres += *p;
    d.expo = std::atoi(p + 1);
    while (d.chiffres.size() > 1 && d.chiffres.back() == '0') d.chiffres.pop_back();
    return d;
}

template <class T>
T relit(const Decimal& d) {
    std::string t = d.chiffres.substr(0, 1) + "." + d.chiffres.substr(1) + "e" + std::to_string(d.expo);
    if constexpr (sizeof(T) == sizeof(float))
        return std::strtof(t.c_str(), nullptr);
    else
        return std::strtod(t.c_str(), nullptr);
}

// Shortest digits (1..precision) that read back to v; the full precision when
// none does (a float may need 9 digits to be exact: 7 is what is kept).
template <class T>
Decimal plus_court(T v, int precision) {
    for (int n = 1; n < precision; ++n) {
        Decimal d = decompose(v, n);
        if (relit<T>(d) == std::fabs(v)) return d;
    }
    return decompose(v, precision);
}

std::string met_en_forme(bool negatif, const Decimal& d, int precision) {
    std::string s = negatif ? "-" : " ";
    const int n = static_cast<int>(d.chiffres.size());
    if (d.expo < -2 || d.expo >= precision) {
        s += d.chiffres[0];
        if (n > 1) {
            s += '.';
            s.append(d.chiffres, 1);
        }
        s += d.expo < 0 ? "E-" : "E+";
        s += fmt::format("{:02d}", std::abs(d.expo));
    } else if (d.expo < 0) {
        s += '.';
        s.append(static_cast<std::size_t>(-d.expo - 1), '0');
        s += d.chiffres;
    } else if (n <= d.expo + 1) {
        s += d.chiffres;
        s.append(static_cast<std::size_t>(d.expo + 1 - n), '0');
    } else {
        s.append(d.chiffres, 0, static_cast<std::size_t>(d.expo + 1));
        s += '.';
        s.append(d.chiffres, static_cast<std::size_t>(d.expo + 1));
    }
    return s + " ";
}

template <class T>
std::string texte_reel_t(T v, int precision) {
    if (v == 0) return " 0 ";
    if (!std::isfinite(v)) return std::isnan(v) ? " NaN " : (v < 0 ? "-Inf " : " Inf ");
    return met_en_forme(std::signbit(v), plus_court(v, precision), precision);
}

}  // namespace

std::string texte_entier(long long v) { return v < 0 ? fmt::format("{} ", v) : fmt::format(" {} ", v); }

std::string texte_reel(float v) { return texte_reel_t(v, 7); }

std::string texte_reel(double v) { return texte_reel_t(v, 15); }

std::string texte_booleen(int16_t v) { return v != 0 ? " 255 " : " 0 "; }

std::string texte_flux_solaire(double v) { return fmt::format("{:.4E}", v); }

}  // namespace kestrel

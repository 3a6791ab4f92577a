#include "core/shell/format_image.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

#include <fmt/format.h>

namespace kestrel {

namespace {

// x with n decimals, fixed or d.ddde±xx, correctly rounded: the exploitation
// tables format millions of cells, so no format-string parsing per cell.
std::string decimal_texte(double x, int n, std::chars_format forme) {
    char t[400];  // 309 integer digits of the largest double, a sign, the decimals
    const auto r = std::to_chars(t, t + sizeof t, x, forme, std::clamp(n, 0, 60));
    return std::string(t, r.ptr);
}

}  // namespace

std::string format_image(double x, std::string_view image) {
    const auto pos_exp = image.find_first_of("Ee");
    const std::string_view mantisse = image.substr(0, pos_exp);
    const auto point = mantisse.find('.');
    const std::string_view entiers = mantisse.substr(0, point);
    int decimales = 0;
    if (point != std::string_view::npos)
        for (char c : mantisse.substr(point + 1)) decimales += (c == '0' || c == '#');
    int min_entiers = 0;
    for (char c : entiers) min_entiers += (c == '0');

    if (pos_exp == std::string_view::npos) {
        std::string s = decimal_texte(x, decimales, std::chars_format::fixed);
        // "00" shows 5 as 05: pad the integer part to the '0' count.
        const std::size_t debut = (s[0] == '-') ? 1 : 0;
        const std::size_t fin_entiers = std::min(s.find('.'), s.size());
        if (fin_entiers - debut < static_cast<std::size_t>(min_entiers))
            s.insert(debut, min_entiers - (fin_entiers - debut), '0');
        // "#.00" shows .50 for 0.5: the leading zero is dropped when no '0' asks for it.
        if (min_entiers == 0) {
            const auto z = s.find("0.");
            if (z != std::string::npos && (z == 0 || s[z - 1] == '-')) s.erase(z, 1);
        }
        return s;
    }

    // Exponent part: letter, sign mode, minimum digits.
    const char lettre = image[pos_exp];
    const bool signe_toujours = pos_exp + 1 < image.size() && image[pos_exp + 1] == '+';
    int chiffres_exp = 0;
    for (char c : image.substr(pos_exp + 1)) chiffres_exp += (c == '0');

    // "%.{n}e" gives one digit before the point, as a "0.000E+00" picture wants.
    std::string s = decimal_texte(x, decimales, std::chars_format::scientific);
    const auto e = s.find('e');
    const int expo = std::atoi(s.c_str() + e + 1);
    std::string r = s.substr(0, e);
    r += lettre;
    if (expo < 0)
        r += '-';
    else if (signe_toujours)
        r += '+';
    r += fmt::format("{:0{}d}", std::abs(expo), chiffres_exp);
    return r;
}

std::string format_date(const Date& d, std::string_view image) {
    std::string r;
    bool apres_heure = false;
    for (std::size_t i = 0; i < image.size();) {
        const std::string_view reste = image.substr(i);
        if (reste.starts_with("yyyy")) {
            r += fmt::format("{:04d}", d.an);
            i += 4;
        } else if (reste.starts_with("dd")) {
            r += fmt::format("{:02d}", d.jour);
            i += 2;
        } else if (reste.starts_with("hh")) {
            r += fmt::format("{:02d}", d.heure);
            apres_heure = true;
            i += 2;
        } else if (reste.starts_with("mm")) {
            r += fmt::format("{:02d}", apres_heure ? d.minute : d.mois);
            i += 2;
        } else if (reste.starts_with("ss")) {
            r += fmt::format("{:02d}", d.seconde);
            i += 2;
        } else {
            r += image[i];
            ++i;
        }
    }
    return r;
}

}  // namespace kestrel

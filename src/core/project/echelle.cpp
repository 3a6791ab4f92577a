#include "core/project/echelle.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include <fmt/format.h>

#include "core/shell/format_image.h"

namespace kestrel {

void Echelle::arrondit() {
    if (!(max < 0) && !(min < 0)) min = 0;
    if (max < 0 && min < 0) max = 0;
    if ((max < 0) != (min < 0)) {
        const double m = std::max(std::fabs(max), std::fabs(min));
        max = std::copysign(m, max);
        min = std::copysign(m, min);
    }
    if (max != 0) max = arrondit_limite(max);
    if (min != 0) min = arrondit_limite(min);
}

double arrondit_limite(double x) {
    if (x == 0 || !std::isfinite(x)) return x;
    const std::string s = format_image(std::fabs(x), "0.00e+00");  // "3.20e+04"
    const double m = std::strtod(s.substr(0, 4).c_str(), nullptr);
    const std::string expo = s.substr(s.size() - 4);  // "e+04"
    const int chiffre = m <= 2 ? 2 : m <= 5 ? 5 : 10;
    // read back from its text so that 0.1 is the nearest double to a tenth
    const double r = std::strtod(fmt::format("{}{}", chiffre, expo).c_str(), nullptr);
    return x < 0 ? -r : r;
}

}  // namespace kestrel

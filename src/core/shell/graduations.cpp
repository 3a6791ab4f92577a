#include "core/shell/graduations.h"

#include <cmath>
#include <initializer_list>

namespace kestrel {

double pas_graduation(double etendue, int n_max) {
    if (!(etendue > 0) || !std::isfinite(etendue) || n_max < 1) return 1;
    const double brut = etendue / n_max;
    const double dix = std::pow(10.0, std::floor(std::log10(brut)));
    for (double m : {1.0, 2.0, 5.0, 10.0})
        // 1e-9: a range of exactly n_max round steps keeps that step
        if (m * dix >= brut * (1 - 1e-9)) return m * dix;
    return 10 * dix;
}

double premiere_graduation(double debut, double pas) {
    const double k = std::ceil(debut / pas - 1e-9);
    return k * pas;
}

}  // namespace kestrel

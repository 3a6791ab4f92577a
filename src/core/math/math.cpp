// Scalar helpers, the second Kepler solver and the angle guard. Angles in
// radians. The constants are the program's own digits (types.h), not the
// exact values of the standard library: results must match to the last bit.
#include "core/math/math.h"

#include <cmath>

#include "core/shell/types.h"

namespace kestrel {

double frac(double x) { return x - std::floor(x); }

double carre(double x) { return x * x; }

double atan_quad(double y, double x) {
    if (x == 0.0) return y <= 0.0 ? 9.42477796076937 / 2.0 : DEMI_PI;
    if (x > 0.0) return std::atan(y / x);
    return std::atan(y / x) + PI;
}

double atan2_v(double y, double x) {
    if (std::fabs(x) <= 1e-10) return 1.570796326794895;  // whatever the sign of y
    if (x >= 0.0) return std::atan(y / x);
    return y >= 0.0 ? std::atan(y / x) + PI : std::atan(y / x) - PI;
}

double arccos_p(double x) { return DEMI_PI + std::atan(-x / std::sqrt(1.0 - x * x)); }

double arccos_v(double x) {
    if (x == 1.0) return 0.0;
    if (x == -1.0) return PI;
    // The margin keeps the root real for |x| a hair above 1 (rounding in callers).
    return DEMI_PI + std::atan(-x / std::sqrt(1.0000000001 - x * x));
}

double arcsin_v(double x) {
    if (x == -1.0) return -DEMI_PI;
    if (x == 1.0) return DEMI_PI;
    return std::atan(x / std::sqrt(1.0 - x * x));
}

double modulo(double x, double m) {
    if (x > 0.0) return x - std::floor(std::fabs(x) / m) * m;
    if (x < 0.0) return x + std::floor(std::fabs(x) / m) * m + m;
    // x = 0 (either sign) has no branch of its own and yields an empty value,
    // which every caller reads as the number 0: we return +0.0. A NaN goes
    // through unchanged so that the run's finiteness check still sees it.
    if (x == 0.0) return 0.0;
    return x;
}

double kepler_inverse(double m, double e) {
    if (e < 1e-11) return m;
    // Also true for m in (pi, 2 pi): those mean anomalies come back unchanged.
    if (std::sin(m) < 1e-11) return m;
    const double S = std::sin(m);
    const double C = std::cos(m);
    const double D = std::sqrt(e * e + 1.0 - 2.0 * e * C);
    const double t = S * e / D;
    double E = t + m - (t * t * t * t * C / (6.0 * S)) * (1.0 - e * e);
    for (int passe = 0; passe < 10; ++passe) {
        const double E2 = E + (e * std::sin(E) + m - E) / (1.0 - e * std::cos(E));
        if (std::fabs(E2 - E) < 1e-11) break;
        E = E2;
    }
    return E;
}

void angle_garde(double& x) {
    if (!std::isfinite(x)) return;  // nothing to keep away from; the run's checks report it
    // Reduction by half-turns into (-pi/2, pi/2). Attitude angles are a few
    // turns at most; past the cap (|x| beyond ~3e5 rad) one remainder does it.
    double r = x;
    int passes = 0;
    while (r >= DEMI_PI && passes < 100000) {
        r -= PI;
        ++passes;
    }
    while (r <= -DEMI_PI && passes < 100000) {
        r += PI;
        ++passes;
    }
    if (passes >= 100000) r = std::remainder(x, PI);
    if (std::fabs(r) < 1e-12) {
        const double signe = r > 0.0 ? 1.0 : (r < 0.0 ? -1.0 : 0.0);
        x = signe * (std::fabs(x) - 1e-11);
    }
}

}  // namespace kestrel

// Voltage curves of one accumulator and its capacity corrections. A curve is
// a parabola up to point 1, a straight line from point 1 to point 2, then a
// parabola (discharge, to depth 1) or a cubic (charge, flat at point 3).
#include <algorithm>
#include <cmath>

#include "core/etat/etat.h"
#include "core/power/bat_curves.h"

namespace kestrel {

namespace {
// Point j with l = log10 of the current and dt = T - 25, shared by the four
// points of one evaluation.
PointCourbe point(const float pts[4][6], int j, double l, double dt) {
    const float* c = pts[j];
    return {(c[0] + c[1] * dt + c[2] * l) / 100, c[3] + c[4] * dt + c[5] * l};
}

// The straight part of a curve, from point 1 to point 2, abscissas clamped to 0..1.
struct Segment {
    double x1, x2, v1, v2;
};
Segment segment(const float pts[4][6], double l, double dt) {
    const PointCourbe p1 = point(pts, 1, l, dt), p2 = point(pts, 2, l, dt);
    return {std::clamp(p1.x, 0.0, 1.0), std::clamp(p2.x, 0.0, 1.0), p1.y, p2.y};
}
}  // namespace

PointCourbe point_courbe(const float pts[4][6], int j, double i, double t) {
    // decades of current; curves are given at 25 °C
    return point(pts, j, std::log10(i), t - 25);
}

double bat_cap_current(const PowerRecord& p, double i) {
    if (!(i > 0.1)) return p.bat_cmax;
    const double r = 1 - (1 - p.bat_c10) * std::log10(i);
    return std::min(r, static_cast<double>(p.bat_cmax));
}

double bat_cap_temp(const PowerRecord& p, double t) {
    const double c = p.bat_cmin_pct / 100.0;
    const double k = std::log((1 - c) * 1000) / (p.bat_t999 - p.bat_tmin);
    return (1 - c) * (1 - std::exp(-(t - p.bat_tmin) * k)) + c;
}

double bat_v_discharge(const PowerRecord& p, double i, double t, double soc) {
    if (!(soc > 0)) return 0;
    const double x = 1 - soc;  // depth of discharge
    const double l = std::log10(i), dt = t - 25;
    const auto [x1, x2, v1, v2] = segment(p.de_pt, l, dt);
    const double s = (v2 - v1) / (x2 - x1);

    double a, b, c;
    if (x < x1) {
        const double v0 = point(p.de_pt, 0, l, dt).y;
        a = ((x1 * s + v0) - v1) / x1 / x1;
        b = s - 2 * x1 * a;
        c = v0;
    } else if (x <= x2) {
        return (x - x1) * s + v1;
    } else {
        const double v3 = point(p.de_pt, 3, l, dt).y;
        a = ((v2 - v3) + (1 - x2) * s) / ((2 * x2 - 1) - x2 * x2);
        b = s - 2 * x2 * a;
        c = ((2 * x2 - 1) * a - s) + v3;
    }
    return a * x * x + b * x + c;
}

double bat_v_charge(Etat& etat, double i, double t, double soc) {
    const PowerRecord& p = etat.pwr;
    // A zero divisor, a log of a non-positive current or any non-finite value
    // is the numeric failure that the caller reports.
    bool faute = !(i > 0);
    auto div = [&faute](double n, double d) {
        if (d == 0) faute = true;
        return n / d;
    };
    double v = 0;
    if (!faute) {
        const double x = soc;
        const double l = std::log10(i), dt = t - 25;
        const auto [x1, x2, v1, v2] = segment(p.ch_pt, l, dt);
        const double s = div(v2 - v1, x2 - x1);
        if (x < x1) {
            const double v0 = point(p.ch_pt, 0, l, dt).y;
            const double a = div(div((x1 * s + v0) - v1, x1), x1);
            const double b = s - 2 * x1 * a;
            v = a * x * x + b * x + v0;
        } else if (x <= x2) {
            v = (x - x1) * s + v1;
        } else {
            // Cubic: value v2 and slope s at x2, value v3 and slope 0 at x3
            // (x3 is not clamped, and x beyond it stays on the cubic).
            const PointCourbe p3 = point(p.ch_pt, 3, l, dt);
            const double x3 = p3.x, v3 = p3.y;
            const double h = x2 - x3;
            const double a3 = div(s, h * h) - div(2 * (v2 - v3), h * h * h);
            const double a2 = div(v2 - v3, h * h) - a3 * (x2 + 2 * x3);
            const double a1 = -3 * x3 * x3 * a3 - 2 * x3 * a2;
            const double a0 = v3 - a3 * x3 * x3 * x3 - a2 * x3 * x3 - a1 * x3;
            v = a3 * x * x * x + a2 * x * x + a1 * x + a0;
        }
        if (!std::isfinite(v)) faute = true;
    }
    if (faute) {
        etat.alertes.incompat_charge = true;
        return 0;
    }
    return v;
}

}  // namespace kestrel

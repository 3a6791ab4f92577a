// The scale of an exploitation graph: limits that follow the values of a run,
// then rounded up to 2, 5 or 10 times a power of ten.
#pragma once

namespace kestrel {

struct Echelle {
    double max = 0;  // both start at 0, so the scale always holds 0
    double min = 0;

    void ajoute(double v) {
        if (v > max) max = v;
        if (v < min) min = v;
    }
    // After the run: a scale of one sign is anchored at 0, a scale with both
    // signs made symmetrical, then each non-zero limit rounded (arrondit_limite).
    void arrondit();
};

// The limit written as "0.00e+00": mantissa m up to 2 gives 2, up to 5 gives
// 5, else 10, times the power of ten of the exponent. Negative limits round
// on their magnitude. 3.2e+04 -> 5e+04, 2e+04 -> 2e+04, 7e-02 -> 0.1.
double arrondit_limite(double x);

}  // namespace kestrel

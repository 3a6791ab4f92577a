#include "core/power/albedo_sinus.h"

#include <cmath>

#include "core/power/rayonnement_terre.h"
#include "core/etat/power_record.h"

namespace kestrel {

double amplitude_max_sinus(double base) { return base > 0.5 ? 1.0 - base : base; }

Verdict modele_sinus(PowerRecord& p, const std::string& base, const std::string& amplitude, int mois) {
    float bf = 0, vf = 0;
    Verdict v = verif_simple(base, bf);
    if (v.ok) v = verif_simple(amplitude, vf);
    if (!v.ok) return v;
    // The limit is taken on the decimal texts, so that 0.4 at 0.6 is allowed
    // (the singles 1 - 0.6 and 0.4 differ in their last bit).
    double b = 0, a = 0;
    verif_double(base, b);
    verif_double(amplitude, a);
    // A negative amplitude is the same curve turned over: its size counts.
    v = verif_max(std::fabs(a), amplitude_max_sinus(b), true);
    if (!v.ok) return v;
    constexpr double PI_SUR_6 = 0.5235987755982984;
    for (int m = 0; m < 12; ++m) {
        const double x = a * std::sin((m - mois) * PI_SUR_6) + b;
        p.albedo[m] = arrondi_centieme(x);
    }
    return v;
}

}  // namespace kestrel

#include "core/power/rayonnement_terre.h"

#include <cmath>

#include "core/etat/power_record.h"
#include "core/shell/types.h"

namespace kestrel {

const std::array<double, 12> distance_soleil_mois{
    147136383.585747, 147734283.137167, 148774603.47896,  150094009.236035,
    151234136.704803, 151964678.668876, 152063368.430357, 151511718.826698,
    150436237.556895, 149163195.894725, 147961188.654898, 147231119.143355};

namespace {

double distance_element(int element) { return element == 0 ? distance_soleil_max : distance_soleil_min; }

}  // namespace

// What a box shows with "0.00" is what the record keeps.
float arrondi_centieme(double x) { return static_cast<float>(std::round(x * 100.0) / 100.0); }

float flux_solaire(double luminosite, double d) {
    return static_cast<float>(luminosite / 4.0 / PI / d / d / 1000000.0);
}

void modele_isotherme(PowerRecord& p) {
    for (std::size_t m = 0; m < 12; ++m)
        p.earth_ir[m] =
            arrondi_centieme((1.0 - p.albedo[m]) * flux_solaire(p.sun_power, distance_soleil_mois[m]) / 4.0);
}

Verdict saisit_flux(PowerRecord& p, int element, const std::string& texte) {
    float f = 0;
    Verdict v = verif_simple(texte, f);
    if (!v.ok) return v;
    const double minimum = flux_solaire(p.sun_power, distance_soleil_max);
    const double maximum = flux_solaire(p.sun_power, distance_soleil_min);
    v = element == 0 ? verif_max(f, maximum, true) : verif_min(f, minimum, true);
    if (!v.ok) return v;
    const double d = distance_element(element);
    p.sun_power = f * 4.0 * PI * d * d * 1000000.0;
    return v;
}

Verdict saisit_albedo(PowerRecord& p, int mois, const std::string& texte) {
    float a = 0;
    Verdict v = verif_simple(texte, a);
    if (v.ok) v = verif_bornes(a, 0.0, 1.0, true, true);
    if (v.ok) p.albedo.at(mois) = a;
    return v;
}

Verdict saisit_ir(PowerRecord& p, int mois, const std::string& texte) {
    float ir = 0;
    Verdict v = verif_simple(texte, ir);
    if (v.ok) v = verif_min(ir, 0.0, true);
    if (v.ok) p.earth_ir.at(mois) = ir;
    return v;
}

}  // namespace kestrel

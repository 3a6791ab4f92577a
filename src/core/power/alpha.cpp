// Ageing of the absorptivity of a coating since date_cell.
#include <cmath>

#include "core/power/alpha.h"
#include "core/etat/power_record.h"

namespace kestrel {

double alpha(const PowerRecord& p, float t, float a0, float alim, int32_t t99) {
    const double q = 1.0 - static_cast<double>(a0) / alim;
    const double taux = -std::log(q * 100) / t99;  // 1/h
    // The date arrives in single precision: its rounding is part of the model.
    // (rate * days) * 24, in this order: it fixes the last bits.
    return alim * (1 - q * std::exp(taux * (static_cast<double>(t) - p.date_cell) * 24));
}

double alpha_memo(PowerRecord& p, int slot, float t, float a0, float alim, int32_t t99) {
    PowerRecord::AlphaMemo& m = p.alpha_memo[slot];
    if (!(m.valide && m.t == t && m.a0 == a0 && m.alim == alim && m.t99 == t99 && m.date_cell == p.date_cell)) {
        m = {t, a0, alim, t99, p.date_cell, alpha(p, t, a0, alim, t99), true};
    }
    return m.valeur;
}

}  // namespace kestrel

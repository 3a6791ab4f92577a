// Ageing of the absorptivity of a surface.
#pragma once
#include <cstdint>

namespace kestrel {

struct PowerRecord;

// Absorptivity aged from a0 towards alim, 99 % of the way after t99 hours;
// t is the date (day count) rounded to single precision.
double alpha(const PowerRecord& p, float t, float a0, float alim, int32_t t99);
// The same, kept in p.alpha_memo[slot] for the next step at the same float date.
double alpha_memo(PowerRecord& p, int slot, float t, float a0, float alim, int32_t t99);

}  // namespace kestrel

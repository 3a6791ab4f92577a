// Axis ticks of the drawn curves: a round step (1, 2 or 5 times a power of
// ten) and the first tick of a range.
#pragma once

namespace kestrel {

// Smallest round step that cuts `etendue` (> 0) into at most `n_max` parts.
// A range that is zero, negative or not finite gets the step 1.
double pas_graduation(double etendue, int n_max);

// First multiple of `pas` that is not below `debut`.
double premiere_graduation(double debut, double pas);

}  // namespace kestrel

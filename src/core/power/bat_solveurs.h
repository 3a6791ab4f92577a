// Secant solvers for the inverse problems of one accumulator: the current
// (C units, multiples of bat_c) giving a voltage or a power.
#pragma once

namespace kestrel {

struct Etat;

// p is the power per accumulator divided by bat_c. A loop past 100000 passes
// records a non-convergence fault and returns.
double bat_i_from_v_charge(Etat& etat, double soc, double v, double i0, double t);
double bat_i_from_p_charge(Etat& etat, double soc, double p, double i0, double t);
double bat_i_from_p_discharge(Etat& etat, double soc, double p, double i0, double t);

}  // namespace kestrel

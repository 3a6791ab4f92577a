// One accumulator: voltage (V) against current in C units (multiples of
// bat_c), temperature (°C) and state of charge (0..1), the capacity factors,
// and the secant solvers for the inverse problems.
#pragma once

namespace kestrel {

struct Etat;
struct PowerRecord;

// Point j (0..3) of a curve table [4][6] at current i (C) and T (°C):
// x capacity fraction, y voltage. x is not clamped here.
struct PointCourbe {
    double x, y;
};
PointCourbe point_courbe(const float pts[4][6], int j, double i, double t);

double bat_cap_current(const PowerRecord& p, double i);  // ratio
double bat_cap_temp(const PowerRecord& p, double t);     // ratio
double bat_v_discharge(const PowerRecord& p, double i, double t, double soc);
// A numeric failure returns 0 and sets etat.alertes.incompat_charge.
double bat_v_charge(Etat& etat, double i, double t, double soc);

// Currents in C units. p is the power per accumulator divided by bat_c.
// A loop past 100000 passes records a non-convergence fault and returns.
double bat_i_from_v_charge(Etat& etat, double soc, double v, double i0, double t);
double bat_i_from_p_charge(Etat& etat, double soc, double p, double i0, double t);
double bat_i_from_p_discharge(Etat& etat, double soc, double p, double i0, double t);

}  // namespace kestrel

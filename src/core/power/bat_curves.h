// One accumulator: voltage (V) against current in C units (multiples of
// bat_c), temperature (°C) and state of charge (0..1), and the capacity
// factors. The inverse problems are in bat_solveurs.h.
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

}  // namespace kestrel

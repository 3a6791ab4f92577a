// Curves that the power settings draw, from the cell and battery models:
// current or power of one cell against its voltage at several temperatures,
// and the voltage of one accumulator against its state, by current at 25 °C
// or by temperature at 1C (the nominal capacity as a current).
#pragma once
#include <string>
#include <vector>

namespace kestrel {

struct PowerRecord;

struct PointXY {
    double x, y;
};
struct Serie {
    std::string nom;  // legend: "Tréf", "0.2C", "-50°C"...
    std::vector<PointXY> points;
};

// Temperatures (°C) of the cell chart after the reference one.
inline constexpr double ecarts_cellule[] = {-50, -25, 25, 50};

// One cell, voltage from 0 to Voc in 50 steps: x in V, y in A (courant) or W.
// The first series is at cel_tref, then cel_tref + each of ecarts_cellule.
std::vector<Serie> courbes_cellule(const PowerRecord& p, bool puissance);

// Currents (C units) of the charts at 25 °C, temperatures (°C) of those at 1C.
inline constexpr double courants_batterie[] = {0.2, 0.5, 1, 2};
inline constexpr double temperatures_batterie[] = {-50, -25, 0, 25, 50};

// Charge: x the state of charge in % (0 to 100 by 1); discharge: x the depth
// of discharge in % (0 to 99 by 1: at 100 % the accumulator is empty and the
// model gives 0 V). y in volts per accumulator.
std::vector<Serie> courbes_batterie(const PowerRecord& p, bool charge, bool par_courant);

}  // namespace kestrel

// Solar cells: the four cell values at a temperature, the current of a string
// and the efficiency of a panel on the bus. Efficiency is normalised by the
// solar constant 1368 W/m².
#pragma once

namespace kestrel {

struct Etat;
struct PowerRecord;

// The four cell values at a temperature (°C), with the end-of-life ratios
// when cel_opt_beol is set.
struct CelluleT {
    double isc, imp, voc, vmp;  // A, A, V, V
};
CelluleT cellule_a(const PowerRecord& p, double t_celsius);

// One-exponential law: current (A) of ns cells in series at v volts.
// Needs isc above imp and voc above vmp.
double courant_chaine(const CelluleT& c, double v, double ns);

// Efficiency of a panel at t_kelvin on the present bus voltage (regulated
// value, or bat_ns * bat_v); 0 when the bus stands above the string's Voc.
float cell_efficiency(const Etat& etat, double t_kelvin);

}  // namespace kestrel

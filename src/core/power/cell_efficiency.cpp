// One-exponential model of a cell string at the bus voltage.
#include <cmath>

#include "core/etat/etat.h"
#include "core/power/cell_efficiency.h"

namespace kestrel {

CelluleT cellule_a(const PowerRecord& p, double t_celsius) {
    const double dT = t_celsius - p.cel_tref;
    CelluleT c{dT * p.cel_disc + p.cel_isc, dT * p.cel_dimp + p.cel_imp, dT * p.cel_dvoc + p.cel_voc,
               dT * p.cel_dvmp + p.cel_vmp};
    if (p.cel_opt_beol != 0) {  // "EOL"
        c.voc *= p.cel_radvoc;
        c.vmp *= p.cel_radvmp;
        c.imp *= p.cel_radimp;
        c.isc *= p.cel_radisc;
    }
    return c;
}

double courant_chaine(const CelluleT& c, double v, double ns) {
    const double a = std::log(c.isc / (c.isc - c.imp));
    const double vt = (c.voc - c.vmp) / a;  // V, thermal voltage of the law
    const double i0 = c.isc / (std::exp(c.voc / vt) - 1);
    return c.isc - i0 * (std::exp(v / (ns * vt)) - 1);
}

float cell_efficiency(const Etat& etat, double t_kelvin) {
    const PowerRecord& p = etat.pwr;
    const CelluleT c = cellule_a(p, t_kelvin - 273.15);
    // A non-regulated bus sits at the battery's voltage.
    const double vb = p.gst_regulated != 0 ? static_cast<double>(p.gst_vregul) : p.bat_ns * p.bat_v;

    double courant = 0;  // A, whole generator
    if (!(vb > p.cel_ns * c.voc)) courant = p.cel_np * courant_chaine(c, vb, p.cel_ns);
    return static_cast<float>(10000 * courant * vb / 1368 / p.cel_surface / p.cel_np / p.cel_ns);
}

}  // namespace kestrel

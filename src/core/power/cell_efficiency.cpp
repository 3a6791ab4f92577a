// One-exponential model of a cell string at the bus voltage.
#include <cmath>

#include "core/etat.h"
#include "core/power/cellules.h"

namespace kestrel {

float cell_efficiency(const Etat& etat, double t_kelvin) {
    const PowerRecord& p = etat.pwr;
    const double dT = (t_kelvin - 273.15) - p.cel_tref;  // °C from the reference
    double voc = dT * p.cel_dvoc + p.cel_voc;
    double vmp = dT * p.cel_dvmp + p.cel_vmp;
    double imp = dT * p.cel_dimp + p.cel_imp;
    double isc = dT * p.cel_disc + p.cel_isc;
    if (p.cel_opt_beol != 0) {  // "EOL"
        voc *= p.cel_radvoc;
        vmp *= p.cel_radvmp;
        imp *= p.cel_radimp;
        isc *= p.cel_radisc;
    }
    // A non-regulated bus sits at the battery's voltage.
    const double vb = p.gst_regulated != 0 ? static_cast<double>(p.gst_vregul) : p.bat_ns * p.bat_v;

    double courant = 0;  // A, whole generator
    if (!(vb > p.cel_ns * voc)) {
        const double a = std::log(isc / (isc - imp));
        const double vt = (voc - vmp) / a;
        const double i0 = isc / (std::exp(voc / vt) - 1);
        courant = p.cel_np * (isc - i0 * (std::exp(vb / (p.cel_ns * vt)) - 1));
    }
    return static_cast<float>(10000 * courant * vb / 1368 / p.cel_surface / p.cel_np / p.cel_ns);
}

}  // namespace kestrel

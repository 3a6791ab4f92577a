// Electrical power of the panels: flux through the cell law times the
// efficiency at the panel's temperature of the previous step, times area.
#include "core/etat/etat.h"
#include "core/power/cell_efficiency.h"
#include "core/power/flux.h"
#include "core/power/generateurs.h"

namespace kestrel {

namespace {
// m², the cells of one panel
double aire_cellules(const PowerRecord& p) {
    return (static_cast<double>(p.cel_np) * p.cel_ns * p.cel_surface) / 10000;
}
}  // namespace

void generator_ext_panels(Etat& etat) {
    PowerRecord& p = etat.pwr;
    p.cell_eff[0] = cell_efficiency(etat, p.node_t[0]);
    p.pan_power[0] = cell_flux(etat, p.pan_angle, PI) * p.cell_eff[0] * aire_cellules(p);
    p.gen_power = 2 * p.pan_power[0];  // two identical panels
}

void generator_cylinder(Etat& etat) {
    PowerRecord& p = etat.pwr;
    // The strip area comes from the width alone; cell counts and height do not enter.
    const double bande = p.body_width * 0.17453292519943278;
    const LoiCellule loi = loi_cellule(p);
    incidences_bandes(p);
    p.gen_power = 0;
    for (int i = 0; i < 36; ++i) {
        p.cell_eff[i] = cell_efficiency(etat, p.node_t[i]);
        p.pan_power[i] = cell_flux_bande(p, loi, i) * p.cell_eff[i] * bande;
        p.gen_power += p.pan_power[i];
    }
}

void generator_faces(Etat& etat) {
    PowerRecord& p = etat.pwr;
    const double aire = aire_cellules(p);
    const LoiCellule loi = loi_cellule(p);
    p.gen_power = 0;
    for (int i = 0; i < p.nb_faces && i < 6; ++i) {
        p.cell_eff[i] = cell_efficiency(etat, p.node_t[i]);
        p.pan_power[i] = p.cell_eff[i] * cell_flux(etat, loi, normale(p.face_elev[i], p.face_azim[i])) * aire;
        p.gen_power += p.pan_power[i];
    }
}

}  // namespace kestrel

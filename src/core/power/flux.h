// Incidences and fluxes on a surface of normal (a, b) in the body frame:
// a elevation from the xy plane (pi/2 is +z), b azimuth, radians. They read
// the direction and flux fields that environment_update left. W/m².
#pragma once
#include "core/etat/power_record.h"

namespace kestrel {

struct Etat;
struct PowerRecord;

double incidence_sun(const Etat& etat, double a, double b);    // rad, 0..pi
double incidence_earth(const Etat& etat, double a, double b);  // rad, towards the Earth centre
// Derivative of the cell cosine with respect to the elevation a, at azimuth b,
// for a direction (z, sxy, az) of the local frame.
double cell_cosine_derivee(const Etat& etat, double a, double b, double z, double sxy, double az);
double cell_flux(const Etat& etat, double a, double b);          // sun + albedo through the cell law
double solar_flux_direct(const Etat& etat, double a, double b);  // plain cosine, 0 in eclipse
double albedo_flux(Etat& etat, double a, double b);
double solar_albedo_flux(Etat& etat, double a, double b);
double earth_ir_flux(Etat& etat, double a, double b);

// The view factor's geometry depends only on the satellite's position: built
// once per step (refreshing earth_half), then read for every surface.
struct VueTerre {
    double f0;  // view factor of a surface facing nadir, before the angle terms
    double L;   // natural log of the altitude in km
};
VueTerre vue_terre(Etat& etat);
// View factor of the Earth for a normal at `deg` degrees from nadir; 0 below
// 0.001.
double facteur_vue(const VueTerre& v, double deg);

// A surface of normal (a, b) with sin a and cos a taken once; sa is
// solar_albedo_flux and ir earth_ir_flux, sharing one Earth incidence and one
// view factor. Same values as the separate functions.
struct Normale {
    double a, sin_a, cos_a, b;
};
Normale normale(double a, double b);
struct FluxSurface {
    double sa, ir;  // W/m²
};
FluxSurface flux_surface(const Etat& etat, const VueTerre& v, const Normale& n);

// The cell law's parabola from inc_div and inc_max (rad), for a run of
// surfaces in one step; cell_cosine and cell_flux through it. The effective
// cosine of a cell: cosine up to inc_div, then a parabola joining it in value
// and slope that reaches 0 at inc_max; never negative.
struct LoiCellule {
    double d, m, A, B, C;
};
LoiCellule loi_cellule(const PowerRecord& p);
double cell_cosine(const LoiCellule& q, double theta);
double cell_flux(const Etat& etat, const LoiCellule& q, const Normale& n);

// The strips' incidences in p.bandes, computed again only when the
// directions changed; then cell_flux and flux_surface of strip i from them.
const PowerRecord::IncidencesBandes& incidences_bandes(PowerRecord& p);
double cell_flux_bande(const PowerRecord& p, const LoiCellule& q, int i);
FluxSurface flux_surface_bande(const PowerRecord& p, const VueTerre& v, int i);

}  // namespace kestrel

// Lumped thermal nodes (kelvin in node_t), explicit Euler over sim_step
// seconds; every derivative of a pass uses the temperatures at its start.
// Surface balances in W/m² over (mass per area * cp); the internal node in W.
// One source per configuration: thermal_ext_panels, thermal_cylinder,
// thermal_faces.
#pragma once
#include <tuple>

#include "core/etat/power_record.h"

namespace kestrel {

constexpr double SIGMA = 5.67e-08;  // W/m²/K⁴

// Where each configuration keeps its temperatures in PowerRecord::node_t.
// Cylinder and faces: the side walls from node 0 (36 strips, or nb_faces
// lateral faces out of room for 8), then top, bottom and the internal node.
struct PlanNoeuds {
    int parois;              // room for side nodes, 0..parois-1
    int haut, bas, interne;  // top, bottom, internal
    int nombre;              // nodes 0..nombre-1
};
inline constexpr PlanNoeuds NOEUDS_CYLINDRE{36, 36, 37, 38, 39};
inline constexpr PlanNoeuds NOEUDS_FACES{8, 8, 9, 10, 11};

// External panels: the panel (both sides) is node 0; node 1 has no
// temperature (its slot in the optical tables is the panel's rear); the six
// body faces +x, +y, -x, -y, +z, -z from node 2, then the internal node.
struct PlanNoeudsPanneaux {
    int panneau;
    int premiere_face, nb_faces;
    int interne;
    int nombre;  // nodes 0..nombre-1
};
inline constexpr PlanNoeudsPanneaux NOEUDS_PANNEAUX{0, 2, 6, 8, 9};

static_assert(NOEUDS_CYLINDRE.nombre == std::tuple_size_v<decltype(PowerRecord::node_t)>);

}  // namespace kestrel

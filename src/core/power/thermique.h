// Lumped thermal nodes (kelvin in node_t), explicit Euler over sim_step
// seconds; every derivative of a pass uses the temperatures at its start.
// Surface balances in W/m² over (mass per area * cp); the internal node in W.
// One source per configuration: thermal_ext_panels, thermal_cylinder,
// thermal_faces.
#pragma once

namespace kestrel {

constexpr double SIGMA = 5.67e-08;  // W/m²/K⁴

}  // namespace kestrel

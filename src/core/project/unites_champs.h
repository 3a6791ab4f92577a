// The unit of each settable project field, as the CSV headers write units
// ("°C", "W/m²", "j" for days, "°" for degrees, "-" for pure numbers, counts,
// flags, codes and texts), for the header of a parameter sweep.
#pragma once
#include <string_view>

namespace kestrel {

// Unit of field `nom` as `kestrel project show` names it ("bat_c", "md(0)",
// "orb_inclinaison"): an element takes its array's unit unless it has one of its
// own. Empty when `nom` is not a settable field.
std::string_view unite_champ(std::string_view nom);

}  // namespace kestrel

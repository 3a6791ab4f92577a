#include "core/project/unites_champs.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "core/project/reglage_champs.h"

namespace kestrel {

namespace {

struct UniteChamp {
    std::string_view nom;    // field, or one element of an array field
    std::string_view unite;
};

// In the order of the listing: .pwr, .att, .orb. Quantities stored as the user
// types them keep that unit (degrees, %, hours, days); the attitude rates are
// stored in rad/s though their boxes show deg/s.
constexpr UniteChamp UNITES[] = {
    // cells and generator
    {"cel_type", "-"}, {"cel_isc", "A"}, {"cel_imp", "A"}, {"cel_voc", "V"}, {"cel_vmp", "V"},
    {"cel_disc", "A/°C"}, {"cel_dimp", "A/°C"}, {"cel_dvoc", "V/°C"}, {"cel_dvmp", "V/°C"},
    {"cel_radisc", "-"}, {"cel_radimp", "-"}, {"cel_radvoc", "-"}, {"cel_radvmp", "-"}, {"cel_ns", "-"},
    {"cel_np", "-"}, {"cel_surface", "cm²"}, {"cel_tref", "°C"}, {"inc_div", "°"}, {"inc_max", "°"},
    // thermal, external panels: masses per area but the internal node's, a mass
    {"ext_area", "m²"}, {"body_face_area", "m²"}, {"date_cell", "j"}, {"ext_alpha0", "-"},
    {"ext_alpha_lim", "-"}, {"ext_eps", "-"}, {"ext_t99", "h"}, {"ext_cond", "W/m²/K"}, {"ext_rad", "-"},
    {"ext_mass", "kg/m²"}, {"ext_mass(8)", "kg"}, {"ext_cp", "J/kg/K"}, {"ext_t_init", "°C"},
    // thermal, panels on the faces
    {"fac_cond", "W/m²/K"}, {"fac_t_init", "°C"}, {"fac_alpha0", "-"}, {"fac_alpha_lim", "-"},
    {"fac_t99", "h"}, {"fac_eps", "-"}, {"fac_cp", "J/kg/K"}, {"fac_mass", "kg/m²"}, {"fac_rad", "-"},
    {"int_mass", "kg"}, {"int_cp", "J/kg/K"}, {"int_t_init", "°C"}, {"cyl_cond", "W/K"},
    // environment
    {"albedo", "-"}, {"earth_ir", "W/m²"}, {"sun_power", "W"},
    // power management: voltages and currents per accumulator
    {"gst_charge_init", "%"}, {"gst_vch_max", "V"}, {"gst_i_maint", "A"}, {"gst_ich_max", "A"},
    {"gst_k_recharge", "-"}, {"gst_rend_bat", "%"}, {"gst_rend_gs", "%"}, {"gst_vregul", "V"},
    {"p_demand", "W"}, {"p_dissip", "%"}, {"gst_regulated", "-"},
    // battery; the curve points mix units by coefficient, so none is claimed
    {"bat_type", "-"}, {"bat_ns", "-"}, {"bat_np", "-"}, {"bat_c", "Ah"}, {"ch_pt", "-"}, {"de_pt", "-"},
    {"bat_cmax", "-"}, {"bat_c10", "-"}, {"bat_cmin_pct", "%"}, {"bat_t999", "°C"}, {"bat_tmin", "°C"},
    {"bat_tau0", "j"}, {"bat_tau50", "j"},
    // geometry, panel drive, period
    {"opt_panel_ext", "-"}, {"opt_faces", "-"}, {"body_height", "m"}, {"body_width", "m"}, {"pan_fixed", "-"},
    {"pan_angle_init", "°"}, {"pan_tolerance", "°"}, {"pan_delay", "s"}, {"pan_speed", "°/s"},
    {"j_debut", "j"}, {"j_fin", "j"}, {"pas_sim", "s"},
    // attitude: mechanics
    {"I_corps", "kg m²"}, {"dim", "m"}, {"Masse", "kg"}, {"cm", "m"}, {"dext", "m"}, {"mext", "kg"},
    {"omega_init", "rad/s"},
    // actuators
    {"dip_tot", "A m²"}, {"dip_res", "A m²"}, {"dip_act", "A m²"}, {"dip_cmd", "-"}, {"jets", "N.m"},
    {"jet_cmd", "-"}, {"JR", "kg m²"}, {"OM_init", "rad/s"}, {"md", "kg"}, {"ld", "m"}, {"c", "N.s/m"},
    {"k", "N/m"},
    // totals and faces
    {"Mt", "kg"}, {"cm_total", "m"}, {"I", "kg m²"}, {"face_c", "m"}, {"sn", "-"}, {"st", "-"}, {"cr", "-"},
    {"cd", "-"},
    // orbit; the epoch year is a calendar year
    {"nom", "-"}, {"orb_inclinaison", "°"}, {"orb_ascension", "°"}, {"orb_excentricite", "-"},
    {"orb_argument", "°"}, {"orb_anomalie", "°"}, {"orb_moy_mvt", "tr/j"}, {"orb_an", "an"},
    {"orb_jour", "j"}, {"orb_demi", "km"}, {"reserve", "-"},
};

std::string_view cherche(std::string_view nom) {
    const auto it =
        std::find_if(std::begin(UNITES), std::end(UNITES), [&](const UniteChamp& u) { return u.nom == nom; });
    return it == std::end(UNITES) ? std::string_view{} : it->unite;
}

bool reglable(std::string_view nom) {
    static const std::vector<std::string> noms = [] {
        std::vector<std::string> v = noms_reglables();
        std::sort(v.begin(), v.end());
        return v;
    }();
    return std::binary_search(noms.begin(), noms.end(), nom, std::less<>{});
}

}  // namespace

std::string_view unite_champ(std::string_view nom) {
    if (!reglable(nom)) return {};
    const std::string_view propre = cherche(nom);  // an element with a unit of its own
    return propre.empty() ? cherche(nom.substr(0, nom.find('('))) : propre;
}

}  // namespace kestrel

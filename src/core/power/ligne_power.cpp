#include "core/power/ligne_power.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/etat/etat.h"
#include "core/shell/ligne_finie.h"

namespace kestrel {

namespace {

constexpr const char* SCALAIRES[22] = {
    "date",      "eclipse",   "flux_sun",  "flux_alb",  "flux_ir",   "pan_angle", "pan_target", "gen_power",
    "bat_soc",   "bat_v",     "bat_i",     "bat_p",     "p_payload", "p_excess",  "p_loss_ch",  "p_loss_de",
    "p_loss_gs", "p_loss_pl", "p_heat",    "t_bat",     "t_charge",  "t_discharge"};

// eclipse is -1 in the shadow, bat_soc a fraction, bat_v per accumulator,
// bat_i per string, t_charge and t_discharge running times.
constexpr const char* UNITES_SCALAIRES[22] = {
    "j", "-", "W/m²", "W/m²", "W/m²", "rad", "rad", "W", "-", "V", "A", "W",
    "W", "W", "W", "W", "W", "W", "W", "°C", "s", "s"};

}  // namespace

const char* unite_colonne_power(std::size_t i) {
    if (i < 22) return UNITES_SCALAIRES[i];
    if (i < 22 + 39) return "K";
    if (i < 22 + 39 + 36) return "W";
    return "-";
}

std::string nom_colonne_power(std::size_t i) {
    if (i < 22) return SCALAIRES[i];
    i -= 22;
    if (i < 39) return fmt::format("node_t_{}", i);
    i -= 39;
    if (i < 36) return fmt::format("pan_power_{}", i);
    return fmt::format("cell_eff_{}", i - 36);
}

void ligne_power(double date, const PowerRecord& p, LignePower& v) {
    const double s[22] = {date,
                          static_cast<double>(p.eclipse),
                          static_cast<double>(p.flux_sun),
                          p.flux_alb,
                          p.flux_ir,
                          p.pan_angle,
                          p.pan_target,
                          p.gen_power,
                          p.bat_soc,
                          p.bat_v,
                          p.bat_i,
                          p.bat_p,
                          p.p_payload,
                          p.p_excess,
                          p.p_loss_ch,
                          p.p_loss_de,
                          p.p_loss_gs,
                          p.p_loss_pl,
                          p.p_heat,
                          p.t_bat,
                          static_cast<double>(p.t_charge),
                          static_cast<double>(p.t_discharge)};
    auto fin = std::copy(std::begin(s), std::end(s), v.begin());
    fin = std::copy(p.node_t.begin(), p.node_t.end(), fin);
    fin = std::copy(p.pan_power.begin(), p.pan_power.end(), fin);
    std::transform(p.cell_eff.begin(), p.cell_eff.end(), fin, [](float x) { return static_cast<double>(x); });
}

bool ligne_power_finie(Etat& etat, double date, LignePower& v) {
    ligne_power(date, etat.pwr, v);
    return ligne_finie(etat.faute, date, v, nom_colonne_power);
}

}  // namespace kestrel

// The row a power run writes for each date: the date, then the record's
// outputs in a fixed order (the CSV of `kestrel power`). The row is made and
// checked here, so every caller writes the same numbers and none writes a
// number that is not finite.
#pragma once
#include <array>
#include <cstddef>
#include <string>

namespace kestrel {

struct Etat;
struct PowerRecord;

// date, eclipse, flux_sun, flux_alb, flux_ir, pan_angle, pan_target, gen_power,
// bat_soc, bat_v, bat_i, bat_p, p_payload, p_excess, p_loss_ch, p_loss_de,
// p_loss_gs, p_loss_pl, p_heat, t_bat, t_charge, t_discharge, node_t_0..38,
// pan_power_0..35, cell_eff_0..35; units those of the record.
inline constexpr std::size_t COLONNES_POWER = 22 + 39 + 36 + 36;
using LignePower = std::array<double, COLONNES_POWER>;

// Name of column i as the CSV header writes it.
std::string nom_colonne_power(std::size_t i);

// Unit of column i, as the record holds it: "j" (days since 1950), "W/m²",
// "rad", "W", "V", "A", "°C", "s", "K"; "-" for a pure number.
const char* unite_colonne_power(std::size_t i);

// The row of the record at `date` (days).
void ligne_power(double date, const PowerRecord& p, LignePower& v);

// The row of etat.pwr at `date`, false with a valeur_non_finie fault in
// etat.faute (column and date) when a value is not finite.
bool ligne_power_finie(Etat& etat, double date, LignePower& v);

}  // namespace kestrel

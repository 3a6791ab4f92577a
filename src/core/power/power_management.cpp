// Generator, battery and payload for one step: surplus with a full battery
// (A), surplus that charges it (B), shortage that draws on it (C); then the
// bus balance and the heat given to the internal node.
#include <cmath>
#include <cstdint>

#include "core/etat/etat.h"
#include "core/power/bat_curves.h"
#include "core/power/bat_solveurs.h"
#include "core/power/power_management.h"

namespace kestrel {

void power_management(Etat& etat) {
    PowerRecord& p = etat.pwr;
    const double dt = etat.session.pas_sim;  // s
    const int s = p.eclipse == VRAI ? 1 : 0;  // night values in eclipse
    const double demande = p.p_demand[s];     // W
    const double pg = p.gst_rend_gs * p.gen_power / 100;  // W reaching the payload
    const double c = p.bat_c;                 // Ah

    p.p_loss_ch = 0;
    p.p_loss_de = 0;
    p.bat_state_full = VRAI;
    p.p_loss_gs = (1 - p.gst_rend_gs / 100.0) * p.gen_power;

    if (static_cast<float>(pg) >= p.p_demand[s]) {
        if (p.bat_soc >= 1) {  // A: full, trickle only
            p.bat_p = 0;
            p.bat_i = p.gst_i_maint;
            p.t_charge = 0;
            p.t_discharge = 0;
        } else {  // B: charge with the surplus
            const double surplus = ((pg - demande) / p.bat_ns) / p.bat_np;  // W per accumulator
            // k * 3600 in double: the float setting is not rounded again here.
            double soc = p.bat_soc + dt * p.bat_i / (static_cast<double>(p.gst_k_recharge) * 3600 * c);
            p.t_charge += static_cast<int32_t>(dt);
            if (soc >= 1) {
                soc = 1;
                p.bat_state_full = FAUX;
                p.t_charge = 0;
            }
            p.bat_soc = soc;
            p.bat_i = c * bat_i_from_p_charge(etat, p.bat_soc, surplus / c, p.bat_i / c, p.t_bat);
            if (static_cast<float>(p.bat_i) > p.gst_ich_max) p.bat_i = p.gst_ich_max;
            p.bat_v = bat_v_charge(etat, p.bat_i / c, p.t_bat, p.bat_soc);
            if (static_cast<float>(p.bat_v) > p.gst_vch_max) {
                // The shunt holds the voltage; the current follows it.
                p.bat_v = p.gst_vch_max;
                p.bat_i = c * bat_i_from_v_charge(etat, p.bat_soc, p.bat_v, p.bat_i / c, p.t_bat);
            }
            p.t_discharge = 0;
            const int n = p.bat_ns * p.bat_np;
            p.bat_p = -n * p.bat_i * p.bat_v;
            p.p_loss_ch = std::fabs((p.gst_k_recharge - 1) * p.bat_p / p.gst_k_recharge);
        }
    } else {  // C: discharge, on the capacity corrected for temperature and current
        const double ft = bat_cap_temp(p, p.t_bat);
        const double fi = bat_cap_current(p, p.bat_i / c);
        p.bat_soc -= dt * p.bat_i / (fi * ft * 3600 * c);
        const double besoin = ((demande - pg) / p.bat_ns) / (p.gst_rend_bat / 100.0) / p.bat_np;
        p.bat_i = c * bat_i_from_p_discharge(etat, p.bat_soc, besoin / c, p.bat_i / c, p.t_bat);
        p.bat_v = bat_v_discharge(p, p.bat_i / c, p.t_bat, p.bat_soc);
        // The count of accumulators is a byte product here: 256 wraps to 0.
        const uint8_t n = static_cast<uint8_t>(p.bat_ns * p.bat_np);
        p.bat_p = n * p.bat_i * p.bat_v;
        p.t_discharge += static_cast<int32_t>(dt);
        if (!(p.bat_soc > 0)) p.bat_soc = 0;
        p.p_loss_de = (1 - p.gst_rend_bat / 100.0) * p.bat_p;
    }

    // Charge power counts in full; discharge power passes the battery efficiency.
    if (p.bat_p > 0)
        p.p_excess = p.gst_rend_bat * p.bat_p / 100 + pg - demande;
    else
        p.p_excess = pg + p.bat_p - demande;
    p.p_payload = p.p_excess < 0 ? demande + p.p_excess : demande;
    p.p_loss_pl = p.p_dissip[s] * p.p_payload / 100;
    p.p_heat = p.p_loss_de + p.p_loss_ch + p.p_loss_gs + p.p_loss_pl;
    if (p.p_excess > 0) p.p_heat += p.p_excess;  // unused power ends as heat
}

}  // namespace kestrel

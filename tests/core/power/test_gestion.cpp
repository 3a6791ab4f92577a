// The three cases of power management, their edges and the heat balance.
#include <gtest/gtest.h>

#include "core/power/batterie.h"
#include "core/power/gestion.h"
#include "core/etat.h"

namespace kestrel {
namespace {

// 10 accumulators of 10 Ah, 60 s steps, 50 W by day and 40 W at night,
// efficiencies 90 %, payload dissipation 15 %, battery at 25 °C.
Etat bus() {
    Etat e;
    e.session.pas_sim = 60;
    PowerRecord& p = e.pwr;
    p.p_demand = {50, 40};
    p.t_bat = 25;
    p.bat_i = 2.0;
    p.bat_v = 1.25;
    return e;
}

TEST(PowerManagement, CaseAFullBatteryTrickles) {
    Etat e = bus();
    PowerRecord& p = e.pwr;
    p.bat_soc = 1.0;
    p.gen_power = 100;  // Pg = 90 W
    p.t_charge = 300;
    p.t_discharge = 120;
    power_management(e);
    EXPECT_EQ(p.bat_soc, 1.0);  // the trickle does not count
    EXPECT_EQ(p.bat_i, static_cast<double>(p.gst_i_maint));
    EXPECT_EQ(p.bat_p, 0.0);
    EXPECT_EQ(p.t_charge, 0);
    EXPECT_EQ(p.t_discharge, 0);
    EXPECT_EQ(p.bat_state_full, VRAI);
    // losses 10 W in transfer, excess 90 - 50 = 40 W, payload 50 W dissipating 7.5 W
    EXPECT_NEAR(p.p_loss_gs, 10.0, 1e-6);
    EXPECT_NEAR(p.p_excess, 40.0, 1e-12);
    EXPECT_EQ(p.p_payload, 50.0);
    EXPECT_NEAR(p.p_loss_pl, 7.5, 1e-12);
    EXPECT_NEAR(p.p_heat, 10 + 7.5 + 40, 1e-6);
}

TEST(PowerManagement, CaseBChargesWithThePreviousCurrent) {
    Etat e = bus();
    PowerRecord& p = e.pwr;
    p.bat_soc = 0.5;
    p.gen_power = 100;  // surplus 40 W: 4 W per accumulator
    power_management(e);
    // soc' = 0.5 + 60 * 2 / (1.05 * 3600 * 10) with the old 2 A, the product
    // k * 3600 in double (rounding it to float moves soc by 6e-11).
    const double k = 1.05f;
    EXPECT_EQ(p.bat_soc, 0.5 + 60 * 2.0 / (k * 3600 * 10));
    EXPECT_EQ(p.t_charge, 60);
    EXPECT_EQ(p.t_discharge, 0);
    // The battery takes the surplus: 10 * i * v = 40 W, v on the charge curve.
    EXPECT_NEAR(-p.bat_p, 40.0, 1e-3);
    EXPECT_NEAR(p.bat_v, bat_v_charge(e, p.bat_i / 10, 25, p.bat_soc), 1e-12);
    EXPECT_NEAR(p.p_loss_ch, 40.0 * 0.05 / 1.05, 1e-3);
    EXPECT_NEAR(p.p_excess, 0.0, 1e-3);
    EXPECT_EQ(p.p_payload, 50.0);
}

TEST(PowerManagement, CaseBReachingFullAndTheLimits) {
    Etat e = bus();
    PowerRecord& p = e.pwr;
    p.bat_soc = 0.99999;
    p.t_charge = 600;
    p.gen_power = 100;
    p.gst_ich_max = 1.0f;   // A
    p.gst_vch_max = 1.45f;  // V; the curve at soc 1 and 0.1C gives 1.498: the shunt holds it
    p.gst_k_recharge = 1.0f;
    power_management(e);
    EXPECT_EQ(p.bat_soc, 1.0);
    EXPECT_EQ(p.bat_state_full, FAUX);
    EXPECT_EQ(p.t_charge, 0);
    EXPECT_NEAR(p.bat_v, 1.45, 1e-6);
    // and the current is the one the curve gives at that voltage, below the limit
    EXPECT_LT(p.bat_i, 1.0);
    EXPECT_NEAR(bat_v_charge(e, p.bat_i / 10, 25, 1.0), 1.45, 1e-5);
    EXPECT_EQ(p.p_loss_ch, 0.0);  // k = 1: no recharge loss
}

TEST(PowerManagement, GeneratorEqualToDemandIsASurplus) {
    Etat e = bus();
    PowerRecord& p = e.pwr;
    p.gst_rend_gs = 100;
    p.gen_power = 50;  // Pg = 50 W exactly
    p.bat_soc = 0.5;
    p.bat_i = 1e-5;    // 1e-6 C: i * v = 1.3e-6, within the tolerance of 0 W
    power_management(e);
    EXPECT_EQ(p.t_charge, 60);  // case B
    EXPECT_DOUBLE_EQ(p.bat_i, 1e-5);  // the first start point, returned as it is
    EXPECT_LT(p.bat_p, 0.0);
    EXPECT_NEAR(p.bat_soc, 0.5 + 60 * 1e-5 / 37800.0, 1e-15);
}

TEST(PowerManagement, CaseCDischargesOnTheEffectiveCapacity) {
    Etat e = bus();
    PowerRecord& p = e.pwr;
    p.eclipse = VRAI;  // night demand 40 W
    p.gen_power = 0;
    p.bat_soc = 0.5;
    p.t_discharge = 60;
    power_management(e);
    // ft(25 °C) = 0.9948563, fi(0.2C) = 1.2 (limited):
    // soc = 0.5 - 60 * 2 / (1.2 * 0.9948563 * 3600 * 10)
    EXPECT_NEAR(p.bat_soc, 0.5 - 120.0 / (1.2 * 0.9948563133 * 36000), 1e-9);
    // 40 W through 90 %: the battery gives 44.44 W
    EXPECT_NEAR(p.bat_p, 40.0 / 0.9, 1e-3);
    EXPECT_NEAR(p.bat_v, bat_v_discharge(p, p.bat_i / 10, 25, p.bat_soc), 1e-12);
    EXPECT_NEAR(p.p_loss_de, 4.0 / 0.9, 1e-3);
    EXPECT_NEAR(p.p_payload, 40.0, 1e-3);
    EXPECT_NEAR(p.p_heat, 4.0 / 0.9 + 6.0, 1e-3);
    EXPECT_EQ(p.t_discharge, 120);
}

TEST(PowerManagement, ShortageWithAnEmptyBattery) {
    Etat e = bus();
    PowerRecord& p = e.pwr;
    p.gen_power = 20;  // Pg = 18 W
    p.bat_soc = 0;
    p.bat_i = 0;
    power_management(e);
    EXPECT_EQ(p.bat_i, 0.0);
    EXPECT_EQ(p.bat_p, 0.0);
    EXPECT_EQ(p.bat_soc, 0.0);
    EXPECT_NEAR(p.p_payload, 18.0, 1e-6);
    EXPECT_NEAR(p.p_excess, 18.0 - 50.0, 1e-6);
}

TEST(PowerManagement, TwoHundredFiftySixAccumulatorsWrapInDischargeOnly) {
    Etat e = bus();
    PowerRecord& p = e.pwr;
    p.bat_ns = 128;
    p.bat_np = 2;
    p.bat_soc = 0.5;
    p.gen_power = 0;
    power_management(e);
    EXPECT_GT(p.bat_i, 0.0);
    EXPECT_EQ(p.bat_p, 0.0);  // 128 * 2 = 256 -> 0 as a byte
    EXPECT_NEAR(p.p_payload, 0.0, 1e-12);

    Etat f = bus();
    f.pwr.bat_ns = 128;
    f.pwr.bat_np = 2;
    f.pwr.bat_soc = 0.5;
    f.pwr.gen_power = 100;
    power_management(f);
    EXPECT_NEAR(f.pwr.bat_p, -256 * f.pwr.bat_i * f.pwr.bat_v, 1e-12);
    EXPECT_LT(f.pwr.bat_p, 0.0);
}

}  // namespace
}  // namespace kestrel

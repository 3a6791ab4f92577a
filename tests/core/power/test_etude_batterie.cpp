// Battery study: discharge through the eclipse, the empty accumulator, the
// recharge's coulomb balance, its end, its stop and its cap.
#include <gtest/gtest.h>

#include <cmath>

#include "core/power/etude_batterie.h"
#include "core/etat/power_record.h"
#include "outils_power.h"

namespace kestrel {
namespace {

// New-project laws at 25 °C: bat_cap_temp = 0.7 (1 - exp(-75 ln(700)/100)) + 0.3
// = 0.9948563133; bat_cap_current(1C) = 1, (0.5C) = 1 - 0.4 log10 0.5 = 1.1204119983.
constexpr double FT25 = 0.9948563133;
constexpr double FI05 = 1.1204119983;

EntreesBatterie courant_constant(double tecl, double i) {
    EntreesBatterie e;
    e.duree_eclipse = tecl;
    e.temperature = 25;
    e.k_recharge = 1;
    e.v_max = 2.0;  // above the whole charge curve at 0.5C (its top is 1.584 V): no limit
    e.i_charge = 0.5;
    e.puissance_constante = false;
    e.i_decharge = i;
    return e;
}

long compte(const ResultatBatterie& r, PhaseBatterie ph) {
    long n = 0;
    for (const auto& x : r.echantillons) n += x.phase == ph;
    return n;
}

TEST(BatteryStudy, ConstantCurrentDischargeThenRechargeWithKOfOnePutsBackTheChargeTaken) {
    PowerRecord p;
    const ResultatBatterie r = etude_batterie(p, courant_constant(10, 1.0));
    ASSERT_TRUE(r.termine);
    // 601 passes (t = 0..600) of 1 / FT25 / 3600 each: 0.1678076 taken, DOD Int(16.78) = 16.
    const double pris = 601 / (FT25 * 3600);
    EXPECT_EQ(r.dod, 16);
    EXPECT_EQ(compte(r, PhaseBatterie::decharge), 61);  // t = 0, 10, ..., 600
    // First pass: s = 1 - 1 / FT25 / 3600 = 0.9997207860; x = 1 - s on the first
    // parabola a = 3.9166667, b = -1.1875, c = 1.3: v = 1.2996687388.
    const EchantillonBatterie& premier = r.echantillons.front();
    essai::verifie({{"t", double(premier.t), 0, 0},
                    {"s", premier.s, 0.9997207860, 1e-9},
                    {"v", premier.v, 1.2996687388, 1e-6},
                    {"i", premier.i, 1.0, 0}});
    const EchantillonBatterie& fin_decharge = r.echantillons[60];
    essai::verifie({{"t fin", double(fin_decharge.t), 600, 0}, {"s fin", fin_decharge.s, 1 - pris, 1e-9}});

    // Recharge at 0.5C, k = 1: 0.5 / 3600 a second until s reaches 1, that is
    // ceil(0.1678076 * 7200) = ceil(1208.21) = 1209 s = 00:20:09.
    EXPECT_EQ(r.temps_recharge, 1209);
    EXPECT_EQ(texte_duree(r.temps_recharge), "00:20:09");
    const double rendu = r.temps_recharge * 0.5 / 3600;
    EXPECT_GE(rendu, pris);
    EXPECT_LT(rendu - pris, 0.5 / 3600);  // within one second's charge
    // Recharge rows continue the clock: first at t = 610 (passes 601..1809).
    const EchantillonBatterie& r1 = r.echantillons[61];
    EXPECT_EQ(r1.phase, PhaseBatterie::recharge);
    EXPECT_EQ(r1.t, 610);
    EXPECT_EQ(r.echantillons.back().t, 1800);
    EXPECT_GE(r.echantillons.back().s, 1 - 0.5 / 3600 * 10);
}

TEST(BatteryStudy, AnEclipseLongerThanTheChargeEmptiesTheAccumulatorAndRunsOnATrickle) {
    PowerRecord p;
    // 1C takes 1 / FT25 / 3600 a second: empty after 3581.48 s, so at pass t = 3581.
    for (bool puissance : {false, true}) {
        EntreesBatterie e = courant_constant(70, 1.0);
        e.puissance_constante = puissance;
        e.puissance = 1.2;  // about 1C at 1.2 V
        const ResultatBatterie r = etude_batterie(p, e);
        ASSERT_TRUE(r.termine) << puissance;
        EXPECT_EQ(r.dod, 100) << puissance;
        long vides = 0;
        for (const auto& x : r.echantillons) {
            if (x.phase != PhaseBatterie::decharge || x.s > 0) continue;
            ++vides;
            EXPECT_EQ(x.i, 0.01) << x.t;
            EXPECT_EQ(x.v, 0.0) << x.t;
        }
        if (!puissance) {
            EXPECT_EQ(vides, (4200 - 3590) / 10 + 1);  // t = 3590 .. 4200
        }
        EXPECT_GT(vides, 0);
        // From empty, k = 1 at 0.5C: 7200 s to put back the whole charge, give or take a second.
        EXPECT_NEAR(r.temps_recharge, 7200, 1) << puissance;
    }
}

TEST(BatteryStudy, ConstantPowerStartsFromTheDischargeCurrentAndHoldsThePower) {
    PowerRecord p;
    EntreesBatterie e = courant_constant(20, 0.5);
    e.puissance_constante = true;
    e.puissance = 0.6;
    const ResultatBatterie r = etude_batterie(p, e);
    ASSERT_TRUE(r.termine);
    // The first pass takes its charge at the discharge current 0.5C:
    // s = 1 - 0.5 / FT25 / FI05 / 3600 = 1 - 1.2460326e-4.
    EXPECT_NEAR(r.echantillons.front().s, 1 - 1.2460326e-4, 1e-10);
    // Every discharge row then holds i v = 0.6 V/h within the solver's tolerance.
    for (const auto& x : r.echantillons)
        if (x.phase == PhaseBatterie::decharge) {
            EXPECT_NEAR(x.i * x.v, 0.6, 1e-5) << x.t;
        }
}

TEST(BatteryStudy, TheMaximumVoltageCapsTheRechargeAndTheCurrentFalls) {
    PowerRecord p;
    EntreesBatterie e = courant_constant(30, 1.0);
    e.v_max = 1.45;
    const ResultatBatterie r = etude_batterie(p, e);
    ASSERT_TRUE(r.termine);
    bool limite = false;
    double i_avant = 0.5;
    for (const auto& x : r.echantillons) {
        if (x.phase != PhaseBatterie::recharge) continue;
        EXPECT_LE(static_cast<float>(x.v), 1.45f) << x.t;
        if (x.v == 1.45) {
            limite = true;
            EXPECT_LE(x.i, i_avant + 1e-12) << x.t;  // the current only comes down
            i_avant = x.i;
        }
    }
    EXPECT_TRUE(limite);
    EXPECT_LT(i_avant, 0.5);
}

TEST(BatteryStudy, ProgressStopAndTheCapOfAnEndlessRecharge) {
    PowerRecord p;
    // A small charge current still ends: 1 minute at 1C takes 61 / FT25 / 3600
    // = 0.0170321, put back at 1e-3 C in 61316 s.
    EntreesBatterie e = courant_constant(1, 1.0);
    e.i_charge = 1e-3;
    long dernier_d = -1, max_d = 0, dernier_c = 0, max_c = 0;
    ResultatBatterie r = etude_batterie(p, e, [&](const ProgressionBatterie& pr) {
        (pr.phase == PhaseBatterie::decharge ? dernier_d : dernier_c) = pr.valeur;
        (pr.phase == PhaseBatterie::decharge ? max_d : max_c) = pr.maximum;
    });
    ASSERT_TRUE(r.termine);
    EXPECT_NEAR(r.temps_recharge, 61316, 1);
    // Discharge bar Int(t / 60 * 100) reaches its maximum 100 at t = 60; the
    // recharge one runs from 100 to 100 + Int((1 - s0) * 100) = 101.
    EXPECT_EQ(dernier_d, 100);
    EXPECT_EQ(max_d, 100);
    EXPECT_EQ(max_c, 101);
    EXPECT_EQ(dernier_c, 101);

    // The stop flag set during the recharge ends it at the next second.
    bool stop = false;
    r = etude_batterie(
        p, e, [&](const ProgressionBatterie& pr) { stop = stop || pr.phase == PhaseBatterie::recharge; }, &stop);
    EXPECT_TRUE(r.arrete);
    EXPECT_FALSE(r.termine);
    EXPECT_FALSE(r.faute);
    EXPECT_EQ(r.echantillons.back().phase, PhaseBatterie::recharge);

    // At 1e-6 C the same charge would take 6e7 s: the cap ends it with its message.
    e.i_charge = 1e-6;
    r = etude_batterie(p, e);
    EXPECT_FALSE(r.termine);
    EXPECT_EQ(r.faute.code, CodeErreur::recharge_trop_longue);
    EXPECT_EQ(r.temps_recharge, 10000000);  // 2777 h 46 min 40 s
    EXPECT_NE(texte_erreur(r.faute).find("2777:46:40"), std::string::npos) << texte_erreur(r.faute);
}

TEST(BatteryStudy, InputsOutsideTheirRangesAreRefusedWithTheValidatorsWords) {
    PowerRecord p;  // bat_tmin = -50 °C
    struct Cas {
        const char* nom;
        void (*pose)(EntreesBatterie&);
        bool ok;
    };
    const Cas cas[] = {
        {"défauts", [](EntreesBatterie&) {}, true},
        {"éclipse nulle", [](EntreesBatterie& e) { e.duree_eclipse = 0; }, true},
        {"éclipse négative", [](EntreesBatterie& e) { e.duree_eclipse = -1; }, false},
        {"à bat_tmin", [](EntreesBatterie& e) { e.temperature = -50; }, true},
        {"sous bat_tmin", [](EntreesBatterie& e) { e.temperature = -50.5; }, false},
        {"k nul", [](EntreesBatterie& e) { e.k_recharge = 0; }, false},
        {"courant de charge nul", [](EntreesBatterie& e) { e.i_charge = 0; }, false},
        {"puissance excessive", [](EntreesBatterie& e) { e.puissance = 101; }, false},
    };
    for (const Cas& c : cas) {
        EntreesBatterie e;
        c.pose(e);
        const Verdict v = verifie_entrees(p, e);
        EXPECT_EQ(v.ok, c.ok) << c.nom;
        if (!c.ok) {
            EXPECT_EQ(v.message.rfind("Valeur hors limite !!", 0), 0u) << c.nom;
        }
    }
    // Durations: hours pass 99 rather than wrap.
    EXPECT_EQ(texte_duree(0), "00:00:00");
    EXPECT_EQ(texte_duree(3661), "01:01:01");
    EXPECT_EQ(texte_duree(360000), "100:00:00");
}

}  // namespace
}  // namespace kestrel

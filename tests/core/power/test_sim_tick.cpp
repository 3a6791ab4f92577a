// The complete simulation's tick driven with no clock: what a tick does by
// run state and counter, the once-a-second step, the reset on stop, real time.
#include <gtest/gtest.h>

#include <tuple>

#include "core/etat/etat.h"
#include "core/power/power_step.h"
#include "core/power/thermique.h"
#include "core/power/sim_tick.h"
#include "core/project/energie.h"

namespace {

using namespace kestrel;

constexpr int intervalle = 50;  // ms: a step every 1000 / 50 = 20 ticks

Etat etat_exemple() {
    Etat e;
    const Erreur err = charge_energie(e, KESTREL_SOURCE_DIR "/examples/panneaux_externes.pwr");
    EXPECT_FALSE(err) << texte_erreur(err);
    return e;
}

TEST(SimTick, DecisionByStateCounterAndDates) {
    // state, counter, real time, sim_date == start, reset already made, window just opened
    //   -> step, reset, geometry
    const std::tuple<int16_t, int, bool, bool, bool, bool, bool, bool, bool> table[] = {
        {SIM_MARCHE, 0, false, false, false, false, true, false, true},
        {SIM_MARCHE, 7, false, false, false, false, false, false, true},
        {SIM_MARCHE, 0, true, true, true, false, true, false, true},
        {SIM_ARRET, 0, false, false, false, false, false, true, false},
        {SIM_ARRET, 5, false, false, true, false, false, true, false},  // the start date moved: reset again
        {SIM_ARRET, 0, false, true, false, false, false, false, false},
        {SIM_ARRET, 0, false, true, false, true, false, true, false},   // opened at the start date
        {SIM_ARRET, 0, true, false, false, false, false, true, false},
        {SIM_ARRET, 0, true, false, true, false, false, false, false},  // real time: once only
        {SIM_PAUSE, 0, false, false, false, true, false, true, false},
        {SIM_MARCHE, 0, false, true, false, true, false, true, true},  // started before the first tick
        {7, 0, false, false, false, false, false, false, false},         // any other value pauses
    };
    for (const auto& [state, compteur, rt, egal, faite, ouvert, pas, reinit, geo] : table) {
        SimPower s{state, compteur, faite, ouvert};
        const double date = 100.0, depart = egal ? 100.0 : 99.0;
        const DecisionTick d = decide_tick(s, rt, date, depart);
        EXPECT_EQ(d.pas, pas) << state << " " << compteur;
        EXPECT_EQ(d.reinit, reinit) << state << " " << compteur << " rt " << rt << " faite " << faite;
        EXPECT_EQ(d.geometrie, geo) << state;
    }
}

TEST(SimTick, CounterWrapsOnceASecondWhateverTheInterval) {
    // interval, ticks per wall second: 1000/50 = 20, 1000/300 = 3 (integer), 1000/1000 = 1 and
    // 1000/2000 = 0 leave the counter at 0, so every tick steps.
    for (const auto& [ms, periode] : {std::pair{50, 20}, {300, 3}, {1000, 1}, {2000, 1}}) {
        int c = 0, retours = 0;
        for (int i = 0; i < 60; ++i) {
            c = compteur_suivant(c, ms);
            if (c == 0) ++retours;
            EXPECT_LT(c, periode);
        }
        EXPECT_EQ(retours, 60 / periode) << ms;
    }
}

TEST(SimTick, RunningTicksStepOncePerTwentyAndMatchPlainSteps) {
    Etat e = etat_exemple();
    SimPower sim;
    tick_power(e, sim, 0.0, intervalle);  // stopped away from the start: the reset
    Etat copie = e;                       // the same state, stepped by hand below
    const double depart = e.session.j_debut;
    EXPECT_EQ(e.session.j_courant, depart);

    sim.sim_state = SIM_MARCHE;
    int pas = 0;
    for (int i = 0; i < 5 * 20; ++i) pas += tick_power(e, sim, 0.0, intervalle).pas;
    EXPECT_EQ(pas, 5);
    for (int i = 0; i < 5; ++i) {
        copie.session.j_courant += copie.session.pas_sim / 86400.0;
        power_step(copie);
    }
    EXPECT_NEAR(e.session.j_courant, depart + 5 * e.session.pas_sim / 86400.0, 1e-9);
    // The view's geometry one interval ahead rewrites the environment only;
    // the power fields are those of the fifth step.
    for (const auto& [nom, a, b] : {std::tuple{"gen_power", e.pwr.gen_power, copie.pwr.gen_power},
                                    {"bat_p", e.pwr.bat_p, copie.pwr.bat_p},
                                    {"bat_soc", e.pwr.bat_soc, copie.pwr.bat_soc},
                                    {"p_excess", e.pwr.p_excess, copie.pwr.p_excess},
                                    {"internal node", e.pwr.node_t[NOEUDS_PANNEAUX.interne], copie.pwr.node_t[NOEUDS_PANNEAUX.interne]},
                                    {"pan_angle", e.pwr.pan_angle, copie.pwr.pan_angle}})
        EXPECT_EQ(a, b) << nom;
}

TEST(SimTick, PauseKeepsTheDateAndStopResetsOnceAtTheNextTick) {
    Etat e = etat_exemple();
    SimPower sim;
    tick_power(e, sim, 0.0, intervalle);
    sim.sim_state = SIM_MARCHE;
    for (int i = 0; i < 3 * 20; ++i) tick_power(e, sim, 0.0, intervalle);
    const double trois = e.session.j_debut + 3 * e.session.pas_sim / 86400.0;
    ASSERT_NEAR(e.session.j_courant, trois, 1e-9);

    sim.sim_state = SIM_PAUSE;
    for (int i = 0; i < 40; ++i) EXPECT_FALSE(tick_power(e, sim, 0.0, intervalle).pas);
    EXPECT_NEAR(e.session.j_courant, trois, 1e-9);
    sim.sim_state = SIM_MARCHE;  // a new start continues from the paused date
    sim.compteur = 0;
    tick_power(e, sim, 0.0, intervalle);
    EXPECT_NEAR(e.session.j_courant, trois + e.session.pas_sim / 86400.0, 1e-9);

    e.pwr.t_charge = 777;  // running timers, zeroed by the reset only
    e.pwr.t_discharge = 888;
    sim.sim_state = SIM_ARRET;  // the click: nothing moves yet
    EXPECT_NE(e.session.j_courant, e.session.j_debut);
    EXPECT_TRUE(tick_power(e, sim, 0.0, intervalle).reinit);
    EXPECT_EQ(e.session.j_courant, e.session.j_debut);
    // The reset steps once at the start date: the timers hold that one step only.
    EXPECT_LE(e.pwr.t_charge + e.pwr.t_discharge, e.session.pas_sim);
    for (int i = 0; i < 30; ++i) EXPECT_FALSE(tick_power(e, sim, 0.0, intervalle).reinit);
}

TEST(SimTick, RealTimeTakesTheClockAndResetsOnce) {
    Etat e = etat_exemple();
    e.session.temps_reel = VRAI;
    e.session.pas_sim = 1;
    const double horloge = 18710.25;  // a day count from the clock, after date_cell
    SimPower sim;
    EXPECT_TRUE(tick_power(e, sim, horloge, intervalle).reinit);
    EXPECT_EQ(e.session.j_courant, horloge);
    EXPECT_FALSE(tick_power(e, sim, horloge + 1e-6, intervalle).reinit);
    sim.sim_state = SIM_MARCHE;
    sim.compteur = 0;
    tick_power(e, sim, horloge + 0.01, intervalle);
    EXPECT_EQ(e.session.j_courant, horloge + 0.01);
}

TEST(SimTick, StartNeedsADateStrictlyAfterTheCells) {
    Etat e;
    e.pwr.date_cell = 17897;
    for (const auto& [debut, ok] : {std::pair{17897.0, false}, {17896.5, false}, {17897.0001, true}}) {
        e.session.j_debut = debut;
        EXPECT_EQ(depart_autorise(e), ok) << debut;
    }
}

TEST(SimTick, UnixSecondsToDayCount) {
    // 1950 -> 1970: 20 years with the leap days of 1952, 56, 60, 64, 68 = 7305 days.
    // 2001-03-21 00:00 UTC is 985132800 s = 11402 days after 1970: day 18707.
    EXPECT_EQ(jour_depuis_unix(0), 7305.0);
    EXPECT_EQ(jour_depuis_unix(985132800.0), 18707.0);
    EXPECT_DOUBLE_EQ(jour_depuis_unix(985132800.0 + 43200), 18707.5);
}

}  // namespace

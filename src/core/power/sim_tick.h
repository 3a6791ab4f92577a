// One tick of the complete simulation's timer, with no clock: the window reads
// the UTC time, lets pending events run, then calls tick_power. A step runs
// once per second of wall clock whatever the timer's interval; the view's
// geometry is brought forward at every tick while running.
#pragma once
#include <cstdint>

namespace kestrel {

struct Etat;

// sim_state: 1 stopped, 2 running, any other value paused.
inline constexpr int16_t SIM_ARRET = 1;
inline constexpr int16_t SIM_MARCHE = 2;
inline constexpr int16_t SIM_PAUSE = 3;

struct SimPower {
    int16_t sim_state = SIM_ARRET;
    int compteur = 0;             // ticks since the last step
    // Set by a reset and cleared by the next step: in real-time mode the date
    // after a reset is the clock, never the start date, so without it a
    // stopped real-time run would reset at every tick.
    bool reinit_faite = false;
    // Set when the window opens: the first tick resets, even at the start
    // date (a project load puts the date there with no working state) and
    // even when the run was started before that tick.
    bool ouverture = true;
};

struct DecisionTick {
    bool pas = false;        // advance the date, power_step, refresh the displays
    bool reinit = false;     // back to the start: power_state_init, timers at 0, power_step
    bool geometrie = false;  // environment_update for the view one interval ahead
};

// What a tick does for this run state, counter and dates.
DecisionTick decide_tick(const SimPower& sim, bool temps_reel, double sim_date, double sim_date_start);

// Counter after a tick: one more, back to 0 once 1000 / interval is not above it.
int compteur_suivant(int compteur, int intervalle_ms);

// Runs one tick on etat (session.j_courant is sim_date). maintenant: the UTC
// clock as a day count, used in real-time mode. Returns what was done.
DecisionTick tick_power(Etat& etat, SimPower& sim, double maintenant, int intervalle_ms);

// cmd_lance: true when sim_date_start is strictly after date_cell.
bool depart_autorise(const Etat& etat);

// Seconds since 1970-01-01 00:00 UTC to a day count since 1950-01-01
// (20 years with 5 leap days between the two: 7305 days).
double jour_depuis_unix(double secondes);

}  // namespace kestrel

#include "core/power/sim_tick.h"

#include "core/etat/etat.h"
#include "core/power/environnement.h"
#include "core/power/power_step.h"

namespace kestrel {

DecisionTick decide_tick(const SimPower& sim, bool temps_reel, double sim_date, double sim_date_start) {
    DecisionTick d;
    // A window just opened resets first, even if started before its first tick.
    if (sim.ouverture) {
        d.reinit = true;
        d.geometrie = sim.sim_state == SIM_MARCHE;
        return d;
    }
    if (sim.sim_state == SIM_MARCHE) {
        d.pas = sim.compteur == 0;
        d.geometrie = true;
    } else if (sim.sim_state == SIM_ARRET) {
        d.reinit = sim_date != sim_date_start && !(temps_reel && sim.reinit_faite);
    }
    return d;
}

int compteur_suivant(int compteur, int intervalle_ms) {
    ++compteur;
    if (!(1000 / intervalle_ms > compteur)) compteur = 0;
    return compteur;
}

DecisionTick tick_power(Etat& etat, SimPower& sim, double maintenant, int intervalle_ms) {
    Session& s = etat.session;
    const bool temps_reel = s.temps_reel == VRAI;
    const DecisionTick d = decide_tick(sim, temps_reel, s.j_courant, s.j_debut);
    if (d.pas) {
        // Real time takes the clock for the date; the models keep pas_sim as their step.
        s.j_courant = temps_reel ? maintenant : s.j_courant + s.pas_sim / 86400.0;
        power_step(etat);
        sim.reinit_faite = false;
    }
    if (d.reinit) {
        power_state_init(etat);
        etat.pwr.t_discharge = 0;
        etat.pwr.t_charge = 0;
        s.j_courant = temps_reel ? maintenant : s.j_debut;
        power_step(etat);
        sim.reinit_faite = true;
        sim.ouverture = false;
    }
    if (d.geometrie) environment_update(etat, s.j_courant + (intervalle_ms / 1000.0) / 86400.0);
    sim.compteur = compteur_suivant(sim.compteur, intervalle_ms);
    return d;
}

bool depart_autorise(const Etat& etat) { return etat.session.j_debut > etat.pwr.date_cell; }

double jour_depuis_unix(double secondes) { return secondes / 86400.0 + 7305.0; }

}  // namespace kestrel

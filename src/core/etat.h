// Etat: the one context a run works on. The GUI owns one; a test or a command
// line run makes its own. Every model takes it by reference; nothing global.
#pragma once
#include "core/attitude/attitude_record.h"
#include "core/orbit/orbite.h"
#include "core/power/power_record.h"
#include "core/shell/erreur.h"
#include "core/shell/session.h"

namespace kestrel {

struct Etat {
    Session session;
    Orbite orbite;
    SortiesOrbite orb;   // outputs of orb_position / sous_point at the last date asked
    Pointage pointage;
    PowerRecord pwr;
    AttitudeRecord att;

    // First numerical fault met by a model during a run (non-convergence,
    // shadow radius, non-finite value). Models set it and carry on with what
    // they have; the run loop checks it after each step and stops.
    Erreur faute;

    // A new project: every record at its defaults and the default period,
    // from the orbit epoch to one orbital period later.
    Etat();
};

// Epoch of the orbit as a day count: 1 January of orb_an 00:00 + orb_jour - 1.
double epoque_orbite(const Orbite& o);

// The start-up period: j_debut = epoch, j_fin = epoch + 1 / orb_moy_mvt.
void periode_par_defaut(Etat& etat);

// Records the first fault only; later ones are consequences.
void signale_faute(Etat& etat, CodeErreur code, double date, const char* detail);

}  // namespace kestrel

// Etat: the one context a run works on. The GUI owns one; a test or a command
// line run makes its own. Every model takes it by reference; nothing global.
#pragma once
#include "core/etat/attitude_record.h"
#include "core/etat/power_record.h"
#include "core/orbit/orbite.h"
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

    // The run's fault channel. `faute`: the first fault of a step (code, date,
    // column or field, value), recorded by a model or by the check of the row
    // (non-convergence, shadow radius, non-finite value); the model carries on
    // with what it has and the run loop stops after that step. `alertes`: what
    // the run goes on through. Both are emptied when a run starts.
    Erreur faute;
    Alertes alertes;

    // A new project: every record at its defaults and the default period,
    // from the orbit epoch to one orbital period later.
    Etat();
};

// Epoch of the orbit as a day count: 1 January of orb_an 00:00 + orb_jour - 1.
double epoque_orbite(const Orbite& o);

// The start-up period: j_debut = epoch, j_fin = epoch + 1 / orb_moy_mvt.
void periode_par_defaut(Etat& etat);

// Empties the fault channel: a run starts with no fault and no warning.
void vide_canal(Etat& etat);

// Records the first fault only; later ones are consequences.
bool signale_faute(Etat& etat, CodeErreur code, double date, const char* detail, double valeur = 0.0);

// The orbit spine and the frame turns under the names the models and windows
// use: each reads etat.orbite and etat.pointage, writes etat.orb and records a
// fault in etat.faute.
// Every field of etat.orb but the ground point, at date j.
void orb_position(Etat& etat, double j);
// Angles in degrees, d = epoch day from 0 (see orb_trajecto.h).
void orb_kepler(Etat& etat, double j, double a, double e, double i, double w, double om, double m0,
                double d, int an);
// Called on its own it has no date: a fault is dated with the step in progress.
void orb_cartesien(Etat& etat, double a, double e, double i, double w, double om, double& m);
// Earth centre to Sun at j, into etat.orb.soleil_pos.
void soleil_position(Etat& etat, double j);
// Ground point of pos (km, inertial) at j.
void sous_point(Etat& etat, double j, const Vec3& pos, double& lon, double& lat, double& alt);
// orb_position and the ground point into etat.orb: the orbit state at j.
void orbite_a_date(Etat& etat, double j);

// The turns of matrices.h with the orbit, satellite and pointing of etat.
void inertiel_vers_corps(const Etat& etat, const Vec3& v, Vec3& r);
void corps_vers_inertiel(const Etat& etat, const Vec3& v, Vec3& r);
void vers_orbital_u(const Etat& etat, Vec3& v);
double argument_latitude(const Etat& etat);
void euler_vers_inertiel(const Etat& etat, const Vec3& a, Vec3& b, Vec3& c);

}  // namespace kestrel

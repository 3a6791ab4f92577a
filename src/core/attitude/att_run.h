// An attitude run over the session's period, written step by step to the
// results file that the results windows read back.
//
// Results file (text, CR LF): four head lines, each a quoted label and its
// value separated by a comma ("#BeginTime(JulianDays)",18000.5), the third
// being the step in s and the fourth empty; then the 25 quoted column names;
// then one record of 25 comma-separated numbers for the initial state and one
// every Round(pas_ecriture) steps. Numbers are in their shortest form that
// reads back to the same double. Angles and rates in deg and deg/s, Euler
// rates and wheel speeds in rpm, torques in N.m.
#pragma once
#include <functional>
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

struct AttitudeRecord;
struct Etat;
struct TablesAtmosphere;

struct ParametresRun {
    double pas_ecriture = 1.0;  // a record every Round(n) steps, 1..32767
    std::string fichier;        // results path; empty: chemin_resultats()
    std::function<void(double)> progression;  // percent of the period done, 0..100
    std::function<void(const Etat&)> apres_pas;  // after each step that ran cleanly
};

struct BilanRun {
    std::string fichier;       // path actually written
    long pas = 0;              // steps run
    long enregistrements = 0;  // records written, the initial one included
};

// dossier_depart/temp/temp.tmp (temp/ created when missing); when that folder
// cannot be written, or is an installed data folder (…/share/kestrel), the
// per-user data folder ($XDG_DATA_HOME or ~/.local/share)/kestrel/temp/temp.tmp.
// Empty when neither can be made.
std::string chemin_resultats(const std::string& dossier_depart);

// From session.j_debut to session.j_fin by session.pas_sim seconds. Reads the
// atmosphere tables of session.dossier_depart first, into an object of its
// own: runs in parallel threads share nothing. Every step's record is checked
// before it is written: the run stops at the first numerical fault, the first
// column that is not finite, or a body turning by more than 2 rad in a step,
// with the fault (and its date) in etat.faute; what was written stays.
BilanRun att_run(Etat& etat, const ParametresRun& p);

// The body's rate |omega(0..2)|, rad/s, free of overflow for huge rates.
double vitesse_corps(const AttitudeRecord& a);

// One step of the run at `date` (days), dt in s: the orbit is brought to
// `date` unless the step before left it there (date_orbite: the date etat.orb
// stands at, NaN when unknown; updated), then attitude_step. The step ends
// with the orbit at its end date, which is the next step's date whenever the
// two sums agree to the bit: the orbit is then propagated once a step.
void pas_run(Etat& etat, double dt, double date, double& date_orbite, const TablesAtmosphere& tables);

}  // namespace kestrel

// The boxes of the orbit window's orbit and attitude pages as data: range kept
// by borne, display picture, and the step an entry runs (store, linked field).
// The window only reads the text and shows the record again.
#pragma once
#include <array>
#include <cstddef>

#include "core/shell/erreur.h"

namespace kestrel {

struct Etat;
struct Orbite;

struct CaseSaisie {
    const char* nom;    // object name of the box
    double min, max;    // range kept silently by borne
    const char* image;  // display picture
};

// norad_inclinaison .. norad_demi, in the order of the .orb record.
enum CaseOrbite : std::size_t { inclinaison, ascension, excentricite, argument, anomalie,
                                moy_mvt, an, jour, demi, nb_cases_orbite };
extern const std::array<CaseSaisie, nb_cases_orbite> cases_orbite;

// Value of the field behind box i.
double valeur_orbite(const Orbite& o, std::size_t i);
// An entry in box i: kept in range (the year keeps its integer part), stored;
// the mean motion and the semi-major axis each set the other.
void saisit_orbite(Orbite& o, std::size_t i, double valeur);

// txt_attx, txt_atty, txt_attz (orbital frame), txt_inerx, txt_inery,
// txt_inerz (inertial), txt_vspin; all in degrees but the spin in turns/min.
enum CasePointage : std::size_t { attx, atty, attz, inerx, inery, inerz, vspin, nb_cases_pointage };
extern const std::array<CaseSaisie, nb_cases_pointage> cases_pointage;

// orb_position at the orbit's epoch, for the pointing entries; a fault it
// meets (a satellite under the shadow radius) is not kept for the next run.
void place_a_epoque(Etat& etat);

// Value shown in box i (degrees, turns per minute).
double valeur_pointage(const Etat& etat, std::size_t i);
// An entry in box i, kept in range and stored. An inertial angle is kept in
// radians and turned by euler_vers_inertiel into the orbital angles, which
// take elements 0, 2, 1 of the first solution as x, y, z.
void saisit_pointage(Etat& etat, std::size_t i, double valeur);

// "Pointage soleil" at the orbit's epoch: the face of att.mode_pointage to
// the Sun. Its angles (yd 0, 2, 1) then go through the x, y, z boxes' step.
// A failure leaves the pointing as it was and comes back for its message.
Erreur saisit_pointage_soleil(Etat& etat);

}  // namespace kestrel

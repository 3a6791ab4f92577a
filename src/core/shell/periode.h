// The one check a run's period passes before any run starts (command line and
// windows alike): dates finite and within the calendar's range, a whole step
// of 1 s to one year, the end not before the start, a bounded number of steps,
// and an orbit whose mean motion is finite and positive. A refusal names the
// value and where it came from, so a bad file line can be found.
#pragma once
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

inline constexpr double JOUR_MIN = -18262.0;      // 1900-01-01, day count
inline constexpr double JOUR_MAX = 3000000.0;     // year 10163
inline constexpr double PAS_MAX = 86400.0 * 366;  // s, one leap year
inline constexpr double PAS_NOMBRE_MAX = 1e8;     // steps in one run

// Where each value came from, as the message shows it: "option --step",
// "fichier « a.pwr », ligne 279", "nouveau projet".
struct OriginesPeriode {
    std::string debut = "nouveau projet";
    std::string fin = "nouveau projet";
    std::string pas = "nouveau projet";
    std::string moy_mvt = "nouveau projet";
};

// "fichier « chemin », ligne n" for a text file, "…, octet n" for a record.
std::string origine_fichier(const std::string& chemin, long ligne);
std::string origine_octet(const std::string& chemin, long octet);

// The period of a project: from the .pwr's start, end and step lines when the
// project came from one (chemin_pwr), else the new project's.
OriginesPeriode origines_projet(const std::string& chemin_pwr);

// debut, fin: day counts; pas_s: s; moy_mvt: rev/day. The first failure found,
// mean motion first since the default end date is derived from it.
Erreur verifie_periode(double debut, double fin, double pas_s, double moy_mvt, const OriginesPeriode& o);

// Steps of the walk from debut to fin (both dates included, 0.1 s of slack at
// the end), as parcours_dates counts them.
double nombre_de_pas(double debut, double fin, double pas_s);

}  // namespace kestrel

#include "court.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "core/attitude/att_run.h"
#include "core/etat/etat.h"
#include "core/power/resume_power.h"
#include "core/shell/dossiers.h"
#include "core/shell/periode.h"

namespace kestrel::fuzz {

void exige(bool condition, const char* quoi) {
    if (condition) return;
    std::fprintf(stderr, "propriété non tenue : %s\n", quoi);
    std::abort();
}

void court_run(const Etat& lu) {
    const Session& s = lu.session;
    if (verifie_periode(s.j_debut, s.j_fin, s.pas_sim, lu.orbite.orb_moy_mvt, {})) return;
    static const std::string donnees = dossier_donnees(dossier_executable());

    Etat e = lu;
    e.session.dossier_depart = donnees;
    e.session.pas_sim = std::min(e.session.pas_sim, 3600);
    e.session.j_fin = std::min(s.j_fin, s.j_debut + 4.0 * e.session.pas_sim / 86400.0);  // five dates
    e.session.j_courant = e.session.j_debut;
    Etat a = e;

    run_power(e);
    ParametresRun p;
    p.fichier = "/dev/null";
    att_run(a, p);
}

}  // namespace kestrel::fuzz

#include "core/etat.h"

#include "core/shell/calendrier.h"

namespace kestrel {

Etat::Etat() { periode_par_defaut(*this); }

double epoque_orbite(const Orbite& o) {
    Date d;
    d.an = o.orb_an;
    d.mois = 1;
    d.jour = 1;
    return date_vers_jour(d) + o.orb_jour - 1.0;
}

void periode_par_defaut(Etat& etat) {
    etat.session.j_debut = epoque_orbite(etat.orbite);
    etat.session.j_fin = etat.session.j_debut + 1.0 / etat.orbite.orb_moy_mvt;
    etat.session.j_courant = etat.session.j_debut;
}

void signale_faute(Etat& etat, CodeErreur code, double date, const char* detail) {
    if (etat.faute) return;
    etat.faute.code = code;
    etat.faute.date = date;
    etat.faute.detail = detail ? detail : "";
}

}  // namespace kestrel

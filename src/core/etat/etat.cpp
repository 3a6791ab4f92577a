#include "core/etat/etat.h"

#include "core/orbit/matrices.h"
#include "core/orbit/orb_projection.h"
#include "core/orbit/orb_trajecto.h"
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

void vide_canal(Etat& etat) {
    etat.faute = {};
    etat.alertes = {};
}

bool signale_faute(Etat& etat, CodeErreur code, double date, const char* detail, double valeur) {
    return signale_faute(etat.faute, code, date, detail, valeur);
}

void orb_position(Etat& etat, double j) { orb_position(etat.orbite, j, etat.orb, etat.faute); }

void orb_kepler(Etat& etat, double j, double a, double e, double i, double w, double om, double m0,
                double d, int an) {
    orb_kepler(etat.orb, etat.faute, j, a, e, i, w, om, m0, d, an);
}

void orb_cartesien(Etat& etat, double a, double e, double i, double w, double om, double& m) {
    orb_cartesien(etat.orb, etat.faute, etat.session.j_courant, a, e, i, w, om, m);
}

void soleil_position(Etat& etat, double j) { etat.orb.soleil_pos = soleil_vecteur(j); }

void sous_point(Etat& etat, double j, const Vec3& pos, double& lon, double& lat, double& alt) {
    sous_point(j, pos, lon, lat, alt, etat.faute);
}

void orbite_a_date(Etat& etat, double j) { orbite_a_date(etat.orbite, j, etat.orb, etat.faute); }

void inertiel_vers_corps(const Etat& etat, const Vec3& v, Vec3& r) {
    inertiel_vers_corps(etat.orbite, etat.orb.sat_pos, etat.pointage, v, r);
}

void corps_vers_inertiel(const Etat& etat, const Vec3& v, Vec3& r) {
    corps_vers_inertiel(etat.orbite, etat.orb.sat_pos, etat.pointage, v, r);
}

void vers_orbital_u(const Etat& etat, Vec3& v) { vers_orbital_u(etat.orbite, etat.orb.anomalie_moy, v); }

double argument_latitude(const Etat& etat) { return argument_latitude(etat.orbite, etat.orb.anomalie_moy); }

void euler_vers_inertiel(const Etat& etat, const Vec3& a, Vec3& b, Vec3& c) {
    euler_vers_inertiel(etat.orbite, etat.orb.anomalie_moy, a, b, c);
}

}  // namespace kestrel

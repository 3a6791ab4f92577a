#include "core/shell/periode.h"

#include <cmath>
#include <string>

#include <fmt/format.h>

namespace kestrel {

namespace {

Erreur refus(CodeErreur code, const char* quoi, double valeur, const std::string& origine) {
    Erreur e;
    e.code = code;
    e.detail = quoi;
    e.valeur = valeur;
    e.origine = origine;
    return e;
}

}  // namespace

std::string origine_fichier(const std::string& chemin, long ligne) {
    return fmt::format("fichier « {} », ligne {}", chemin, ligne);
}

std::string origine_octet(const std::string& chemin, long octet) {
    return fmt::format("fichier « {} », octet {}", chemin, octet);
}

OriginesPeriode origines_projet(const std::string& chemin_pwr) {
    OriginesPeriode o;
    if (chemin_pwr.empty()) return o;
    // start, end and step are the .pwr's last three lines
    o.debut = origine_fichier(chemin_pwr, 277);
    o.fin = origine_fichier(chemin_pwr, 278);
    o.pas = origine_fichier(chemin_pwr, 279);
    return o;
}

double nombre_de_pas(double debut, double fin, double pas_s) {
    return std::floor((fin - debut + 0.1 / 86400.0) * 86400.0 / pas_s) + 1.0;
}

Erreur verifie_periode(double debut, double fin, double pas_s, double moy_mvt, const OriginesPeriode& o) {
    if (!std::isfinite(moy_mvt) || !(moy_mvt > 0))
        return refus(CodeErreur::moyen_mouvement, "moyen mouvement", moy_mvt, o.moy_mvt);
    const struct {
        const char* quoi;
        double v;
        const std::string& origine;
    } dates[] = {{"date de début", debut, o.debut}, {"date de fin", fin, o.fin}};
    for (const auto& d : dates) {
        if (!std::isfinite(d.v)) return refus(CodeErreur::periode_non_finie, d.quoi, d.v, d.origine);
        if (d.v < JOUR_MIN || d.v > JOUR_MAX) return refus(CodeErreur::date_hors_limites, d.quoi, d.v, d.origine);
    }
    if (!std::isfinite(pas_s)) return refus(CodeErreur::periode_non_finie, "pas", pas_s, o.pas);
    if (pas_s < 1 || pas_s > PAS_MAX || pas_s != std::floor(pas_s))
        return refus(CodeErreur::pas_hors_limites, "pas", pas_s, o.pas);
    if (fin < debut) {
        Erreur e = refus(CodeErreur::fin_avant_debut, "date de fin", fin, o.fin);
        e.date = debut;
        return e;
    }
    const double n = nombre_de_pas(debut, fin, pas_s);
    if (n > PAS_NOMBRE_MAX) {
        Erreur e = refus(CodeErreur::trop_de_pas, "", n, o.pas);
        e.detail = fmt::format("{:.10g}", pas_s);
        return e;
    }
    return {};
}

}  // namespace kestrel

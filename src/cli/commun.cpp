#include "cli/commun.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <fmt/format.h>

#include "core/project/energie.h"
#include "core/project/fichiers_binaires.h"
#include "core/project/tle.h"
#include "core/shell/calendrier.h"
#include "core/shell/messages.h"
#include "core/shell/periode.h"

namespace kestrel::cli {

const CLI::Validator& nombres_finis() {
    static const CLI::Validator v(
        [](std::string& texte) -> std::string {
            std::size_t debut = 0;
            while (true) {
                const std::size_t fin = std::min(texte.find(',', debut), texte.size());
                const std::string morceau = texte.substr(debut, fin - debut);
                char* reste = nullptr;
                const double x = std::strtod(morceau.c_str(), &reste);
                if (morceau.empty() || *reste != '\0' || !std::isfinite(x))
                    return "« " + texte_lisible(morceau, 40) + " » : un nombre fini est attendu";
                if (fin == texte.size()) return {};
                debut = fin + 1;
            }
        },
        "NOMBRE");
    return v;
}

void ajoute_option_unites(CLI::App* sub, bool& unites, const std::string& exemple) {
    sub->add_flag("--units", unites, "each column's unit in brackets in the CSV header (" + exemple + ")");
}

std::string colonne(std::string_view nom, std::string_view unite, bool unites) {
    std::string c(nom);
    if (unites) ((c += " [") += unite) += ']';
    if (c.find_first_of(",\"") == std::string::npos) return c;
    // "ch_pt(0,1)": quoted as one CSV cell, inner quotes doubled
    std::string q = "\"";
    for (char x : c) (x == '"' ? q += "\"\"" : q += x);
    return q + '"';
}

void ajoute_options_communes(CLI::App* sub, OptionsCommunes& o, double pas_defaut) {
    sub->add_option("--pwr", o.pwr, "power project (.pwr); default: a new project");
    sub->add_option("--att", o.att, "attitude project (.att); default: a new project");
    auto* orb = sub->add_option("--orb", o.orb, "orbit file (.orb); default: the new-project orbit");
    sub->add_option("--tle", o.tle,
                    "orbit from a two-line element set (.tle, .txt; an optional name line first), "
                    "in place of --orb. TLE elements are mean elements of another theory taken here as "
                    "Keplerian ones: positions drift from the real satellite's within hours")
        ->excludes(orb);
    sub->add_option("--start", o.start,
                    "start date: days since 1950-01-01 or YYYY-MM-DDThh:mm:ss; default: the orbit epoch");
    sub->add_option("--end", o.end, "end date, same forms; default: one orbital period after the epoch");
    sub->add_option("--step", o.step,
                    fmt::format("step in seconds; default: the project's, {} for a new one", pas_defaut))
        ->check(nombres_finis());
    sub->add_option("--out", o.out, "output file; default: standard output");
}

std::optional<double> lit_date(const std::string& texte) {
    if (texte.empty()) return std::nullopt;
    int a, mo, j, h, mi, s;
    char fin;
    if (std::sscanf(texte.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%c", &a, &mo, &j, &h, &mi, &s, &fin) == 6) {
        if (a < 1900 || a > 9999 || mo < 1 || mo > 12 || j < 1 || j > 31 || h < 0 || h > 23 || mi < 0 ||
            mi > 59 || s < 0 || s > 59)
            return std::nullopt;
        Date d;
        d.an = static_cast<int16_t>(a);
        d.mois = static_cast<int16_t>(mo);
        d.jour = static_cast<int16_t>(j);
        d.heure = static_cast<int16_t>(h);
        d.minute = static_cast<int16_t>(mi);
        d.seconde = static_cast<int16_t>(s);
        // A day the month does not have (30 February, 31 April) comes back as
        // another date: refused. 29 February follows the program's calendar.
        const double jour = date_vers_jour(d);
        Date retour;
        jour_vers_date(jour, retour);
        if (retour.an != d.an || retour.mois != d.mois || retour.jour != d.jour) return std::nullopt;
        return jour;
    }
    try {
        std::size_t n = 0;
        double v = std::stod(texte, &n);
        if (n != texte.size() || !std::isfinite(v) || v < JOUR_MIN || v > JOUR_MAX) return std::nullopt;
        return v;
    } catch (...) {
        return std::nullopt;
    }
}

int prepare_etat(const OptionsCommunes& o, Etat& etat, bool periode) {
    etat.session.dossier_depart = dossier_donnees(dossier_executable());
    auto echec = [](const Erreur& e, const std::string& chemin) {
        return signale(texte_lisible(chemin, 300) + ": " + texte_erreur(e), SORTIE_ECHEC);
    };
    OriginesPeriode origines;
    if (!o.orb.empty()) {
        if (Erreur e = charge_orbite(etat, o.orb)) return echec(e, o.orb);
        periode_par_defaut(etat);
        origines.moy_mvt = origine_octet(o.orb, 64);
        origines.debut = "époque de l'orbite, " + origine_octet(o.orb, 72);
        origines.fin = "une période orbitale après l'époque, " + origine_octet(o.orb, 64);
    }
    if (!o.tle.empty()) {
        std::string nom;
        if (FauteTle f = charge_tle(o.tle, etat.orbite, nom)) {
            return signale(texte_lisible(o.tle, 300) + ": " + texte_faute_tle(f), SORTIE_ECHEC);
        }
        periode_par_defaut(etat);
        origines.moy_mvt = "fichier « " + o.tle + " », ligne 2";
        origines.debut = "époque de l'orbite, fichier « " + o.tle + " », ligne 1";
        origines.fin = "une période orbitale après l'époque, fichier « " + o.tle + " », ligne 2";
    }
    if (!o.pwr.empty()) {
        if (Erreur e = charge_energie(etat, o.pwr)) return echec(e, o.pwr);
        const OriginesPeriode f = origines_projet(o.pwr);
        origines.debut = f.debut;
        origines.fin = f.fin;
        origines.pas = f.pas;
    }
    if (!o.att.empty()) {
        if (Erreur e = charge_attitude(etat, o.att)) return echec(e, o.att);
    }
    const struct {
        const std::string& texte;
        const char* option;
        double& date;
        std::string& origine;
    } dates[] = {{o.start, "--start", etat.session.j_debut, origines.debut},
                 {o.end, "--end", etat.session.j_fin, origines.fin}};
    for (const auto& d : dates) {
        if (d.texte.empty()) continue;
        auto v = lit_date(d.texte);
        if (!v)
            return signale(fmt::format("{} : date illisible « {} » (jours depuis 1950-01-01 ou "
                                       "AAAA-MM-JJThh:mm:ss)",
                                       d.option, texte_lisible(d.texte, 40)),
                           SORTIE_ARGUMENTS);
        d.date = *v;
        d.origine = std::string("option ") + d.option;
    }
    double pas = etat.session.pas_sim;
    if (o.step) {
        pas = *o.step;
        origines.pas = "option --step";
    }
    if (Erreur e = verifie_periode(etat.session.j_debut, etat.session.j_fin, pas, etat.orbite.orb_moy_mvt,
                                   origines);
        e && periode)
        return signale(texte_erreur(e), e.origine.rfind("option ", 0) == 0 ? SORTIE_ARGUMENTS : SORTIE_ECHEC);
    if (pas >= 1 && pas <= PAS_MAX) etat.session.pas_sim = static_cast<int32_t>(pas);
    etat.session.j_courant = etat.session.j_debut;
    return SORTIE_OK;
}

int signale(const std::string& message, int code) {
    std::string l;
    std::size_t debut = 0;
    for (std::size_t fin; (fin = message.find('\n', debut)) != std::string::npos; debut = fin + 1)
        l += texte_lisible(message.substr(debut, fin - debut), 2000) + '\n';
    l += texte_lisible(message.substr(debut), 2000);
    std::cerr << "kestrel: " << l << "\n";
    return code;
}

int rapporte_run(const Erreur& faute, const Alertes& alertes) {
    if (alertes.incompat_charge) signale(msg::incompat_charge, SORTIE_OK);
    return faute ? signale(texte_erreur(faute), SORTIE_ECHEC) : SORTIE_OK;
}

}  // namespace kestrel::cli

#include "cli/commun.h"

#include <cstdio>
#include <filesystem>

#include <fmt/format.h>

#include "core/project/projet.h"
#include "core/project/tle.h"
#include "core/shell/calendrier.h"

namespace kestrel::cli {

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
        ->check(CLI::PositiveNumber);
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
        if (n != texte.size() || !std::isfinite(v) || v < -18262.0 || v > 3000000.0) return std::nullopt;
        return v;
    } catch (...) {
        return std::nullopt;
    }
}

int prepare_etat(const OptionsCommunes& o, Etat& etat) {
    etat.session.dossier_depart = dossier_donnees(dossier_executable());
    auto echec = [](const Erreur& e, const std::string& chemin) {
        std::cerr << "kestrel: " << chemin << ": " << texte_erreur(e) << "\n";
        return SORTIE_ECHEC;
    };
    if (!o.orb.empty()) {
        if (Erreur e = charge_orbite(etat, o.orb)) return echec(e, o.orb);
        periode_par_defaut(etat);
    }
    if (!o.tle.empty()) {
        std::string nom;
        if (FauteTle f = charge_tle(o.tle, etat.orbite, nom)) {
            std::cerr << "kestrel: " << o.tle << ": " << texte_faute_tle(f) << "\n";
            return SORTIE_ECHEC;
        }
        periode_par_defaut(etat);
    }
    if (!o.pwr.empty()) {
        if (Erreur e = charge_energie(etat, o.pwr)) return echec(e, o.pwr);
    }
    if (!o.att.empty()) {
        if (Erreur e = charge_attitude(etat, o.att)) return echec(e, o.att);
    }
    if (!o.start.empty()) {
        auto d = lit_date(o.start);
        if (!d) {
            std::cerr << "kestrel: --start: date illisible « " << o.start
                      << " » (jours depuis 1950-01-01 ou AAAA-MM-JJThh:mm:ss)\n";
            return SORTIE_ARGUMENTS;
        }
        etat.session.j_debut = *d;
    }
    if (!o.end.empty()) {
        auto d = lit_date(o.end);
        if (!d) {
            std::cerr << "kestrel: --end: date illisible « " << o.end
                      << " » (jours depuis 1950-01-01 ou AAAA-MM-JJThh:mm:ss)\n";
            return SORTIE_ARGUMENTS;
        }
        etat.session.j_fin = *d;
    }
    if (etat.session.j_fin < etat.session.j_debut) {
        std::cerr << "kestrel: la date de fin précède la date de début\n";
        return SORTIE_ARGUMENTS;
    }
    if (o.step) {
        if (*o.step < 1 || *o.step > 86400.0 * 366 || *o.step != std::floor(*o.step)) {
            std::cerr << "kestrel: --step: un nombre entier de secondes entre 1 et 31622400 est attendu\n";
            return SORTIE_ARGUMENTS;
        }
        etat.session.pas_sim = static_cast<int32_t>(*o.step);
    }
    etat.session.j_courant = etat.session.j_debut;
    return SORTIE_OK;
}

std::string nombre(double x) { return fmt::format("{:.17g}", x); }

Sortie::Sortie(const std::string& chemin) {
    if (!chemin.empty()) {
        fichier_.open(chemin, std::ios::binary);
        ok_ = fichier_.is_open();
    }
}

}  // namespace kestrel::cli

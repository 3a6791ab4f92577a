// kestrel orbit: the satellite, the Sun and the ground point at each date of
// the period, one CSV row per date (inertial 1950 frame, km, km/s, rad).
#include <cmath>
#include <ctime>
#include <vector>
#include <sstream>
#include <string>

#include "cli/arguments.h"
#include "cli/commun.h"
#include "cli/export_orbite.h"
#include "cli/progression.h"
#include "cli/sortie.h"
#include "core/orbit/ligne_orbite.h"
#include "core/orbit/orb_projection.h"
#include "core/orbit/orb_trajecto.h"
#include "core/shell/parcours.h"

namespace kestrel::cli {

namespace {

// The column names, comma-separated, each with its unit in brackets if asked.
std::string entete(bool unites = false) {
    std::string l;
    for (std::size_t i = 0; i < std::size(COLONNES_ORBITE); ++i) {
        if (i) l += ',';
        l += colonne(COLONNES_ORBITE[i], UNITES_ORBITE[i], unites);
    }
    return l;
}

// Name of the orbit record, or the program's for an unnamed orbit.
std::string nom_objet(const Orbite& o) {
    std::string n(o.nom.begin(), o.nom.end());
    n.erase(n.find_last_not_of(' ') + 1);
    return n.empty() ? std::string("KESTREL") : n;
}

// The run kept in memory, then written as OEM or CZML (a fault writes nothing).
int exporte(Etat& etat, const std::string& format, Sortie& out) {
    std::vector<PointOrbite> points;
    LigneOrbite v;
    parcours_dates(etat.session.j_debut, etat.session.j_fin, etat.session.pas_sim, [&](double j) {
        orb_position(etat, j);
        if (etat.faute || !ligne_orbite_finie(etat.faute, j, etat.orb, v)) return false;
        points.push_back({j, etat.orb.sat_pos, etat.orb.sat_vit});
        return true;
    });
    if (etat.faute) {
        echec_run(etat.faute);
        return termine(out, SORTIE_ECHEC);
    }
    std::ostringstream texte;
    const std::string objet = nom_objet(etat.orbite);
    if (format == "oem") {
        const std::time_t t = std::time(nullptr);
        char maintenant[32];
        std::strftime(maintenant, sizeof maintenant, "%Y-%m-%dT%H:%M:%S", std::gmtime(&t));
        ecrit_oem(texte, objet, points, maintenant);
    } else {
        ecrit_czml(texte, objet, points, 86400.0 / etat.orbite.orb_moy_mvt, etat.session.pas_sim);
    }
    out << texte.str();
    return termine(out, SORTIE_OK);
}

}  // namespace

Commande enregistre_orbit(CLI::App& app) {
    auto options = std::make_shared<OptionsCommunes>();
    Commande c;
    c.app = app.add_subcommand("orbit", "Orbit over the period: one CSV row per date (or OEM, CZML)");
    // the details only under `kestrel orbit --help`, so the listing keeps one line each
    c.app->footer(
        "For each date: the satellite's position and velocity "
        "(km, km/s, inertial frame of 1950), the Sun's position (km), whether the satellite is in "
        "the Earth's shadow (-1 yes, 0 no), the mean anomaly (rad) and the point below it "
        "(longitude and latitude in radians, altitude in km). Writes one CSV row per date with the "
        "header " + entete() + ". Without --start and --end the period runs from the "
        "orbit's epoch to one orbital period later, every 120 s.");
    ajoute_options_communes(c.app, *options);
    auto format = std::make_shared<std::string>("csv");
    c.app->add_option("--format", *format,
                      "csv (default), oem (CCSDS Orbit Ephemeris Message, KVN, inertial frame of 1950) "
                      "or czml (CesiumJS, Earth-fixed positions)")
        ->check(parmi({"csv", "oem", "czml"}));
    auto unites = std::make_shared<bool>(false);
    ajoute_option_unites(c.app, *unites, "sat_x [km]");
    auto quiet = std::make_shared<bool>(false);
    c.app->add_flag("--quiet", *quiet, "no progress line");
    c.lance = [options, format, unites, quiet]() -> int {
        Etat etat;
        if (int r = prepare_etat(*options, etat); r != SORTIE_OK) return r;
        Sortie out(options->out);
        if (!out.ok()) return signale(out.message(), SORTIE_ECHEC);
        if (*format != "csv") return exporte(etat, *format, out);
        out << entete(*unites) << '\n';
        LigneOrbite v;
        Progression progres("orbit", *quiet);
        const double debut = etat.session.j_debut, fin = etat.session.j_fin;
        parcours_dates(debut, fin, etat.session.pas_sim, [&](double j) {
            progres.date(j, debut, fin);
            etat.session.j_courant = j;
            orbite_a_date(etat, j);
            if (etat.faute || !ligne_orbite_finie(etat.faute, j, etat.orb, v)) return false;
            out.ligne(v);
            return out.ok();
        });
        if (!etat.faute) progres.pourcent(100);
        progres.termine();
        if (etat.faute) {
            echec_run(etat.faute);
            return termine(out, SORTIE_ECHEC);
        }
        return termine(out, SORTIE_OK);
    };
    return c;
}

}  // namespace kestrel::cli

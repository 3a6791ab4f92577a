// kestrel attitude: the attitude run of the simulation window, without the
// window. Writes the results file (temp.tmp format) and reports progress on
// stderr for runs longer than a second.
#include <cmath>
#include <memory>
#include <vector>

#include "cli/arguments.h"
#include "cli/commun.h"
#include "cli/progression.h"
#include "core/attitude/att_run.h"
#include "core/shell/types.h"

namespace kestrel::cli {

namespace {

struct OptionsAttitude {
    OptionsCommunes com;
    double every = 1.0;           // pas_ecriture
    std::vector<double> rates;    // deg/s, body x, y, z
    std::vector<double> pointing; // deg, roll, pitch, yaw
    bool quiet = false;
};

bool tous_finis(const std::vector<double>& v) {
    for (double x : v)
        if (!std::isfinite(x)) return false;
    return true;
}

int lance_attitude(const OptionsAttitude& o) {
    if (!o.rates.empty() && (o.rates.size() != 3 || !tous_finis(o.rates))) {
        std::cerr << "kestrel: --rates: trois vitesses en deg/s sont attendues (psi,theta,phi)\n";
        return SORTIE_ARGUMENTS;
    }
    if (!o.pointing.empty() && (o.pointing.size() != 3 || !tous_finis(o.pointing))) {
        std::cerr << "kestrel: --pointing: trois angles en degrés sont attendus (roulis,tangage,lacet)\n";
        return SORTIE_ARGUMENTS;
    }

    Etat etat;
    if (int r = prepare_etat(o.com, etat)) return r;
    // a new project runs the attitude at 10 s unless a step was asked for
    if (!o.com.step && o.com.pwr.empty()) etat.session.pas_sim = 10;

    if (!o.rates.empty())
        for (int i = 0; i < 3; ++i) etat.att.omega_init[i] = o.rates[i] * PI / 180.0;
    if (!o.pointing.empty()) {
        Pointage& p = etat.pointage;
        p.att_roulis = o.pointing[0];
        p.att_tangage = o.pointing[1];
        p.att_lacet = o.pointing[2];
        p.phi = p.att_roulis;
        p.theta = p.att_tangage;
        p.psi = p.att_lacet;
    }

    ParametresRun params;
    params.pas_ecriture = o.every;
    params.fichier = o.com.out;

    Progression progres("attitude", o.quiet);
    params.progression = [&](double pc) { progres.pourcent(pc); };

    BilanRun b = att_run(etat, params);
    progres.termine();
    if (rapporte_run(etat.faute, etat.alertes) != SORTIE_OK) return SORTIE_ECHEC;
    if (!o.quiet)
        std::cerr << "kestrel: attitude: " << b.pas << " pas, " << b.enregistrements
                  << " enregistrements dans " << b.fichier << "\n";
    return SORTIE_OK;
}

}  // namespace

Commande enregistre_attitude(CLI::App& app) {
    auto o = std::make_shared<OptionsAttitude>();
    Commande c;
    c.app = app.add_subcommand("attitude", "Attitude over the period: the results file (temp.tmp format)");
    ajoute_options_communes(c.app, o->com, 10);
    c.app->get_option("--out")->description("results file; default: temp/temp.tmp beside the program");
    c.app->add_option("--every", o->every, "write a record every N steps (default 1)")
        ->check(nombres_finis())
        ->check(entre(1, 32767));
    c.app->add_option("--rates", o->rates, "initial body rates psi,theta,phi in deg/s")
        ->check(nombres_finis())
        ->delimiter(',')
        ->expected(1, 3);
    c.app->add_option("--pointing", o->pointing, "pointing roll,pitch,yaw in degrees")
        ->check(nombres_finis())
        ->delimiter(',')
        ->expected(1, 3);
    c.app->add_flag("--quiet", o->quiet, "no progress line");
    c.lance = [o] { return lance_attitude(*o); };
    return c;
}

}  // namespace kestrel::cli

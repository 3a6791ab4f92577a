// kestrel power: reset, then one power step per date as the exploitation
// window walks them; one CSV row per step, or a short summary.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>

#include <fmt/format.h>

#include "cli/options_power.h"
#include "cli/progression.h"
#include "cli/sortie.h"
#include "core/power/ligne_power.h"
#include "core/power/power_step.h"
#include "core/power/resume_power.h"
#include "core/shell/messages.h"

namespace kestrel::cli {

namespace {

void ecrit_entete(Sortie& out, bool unites) {
    std::string l;
    for (std::size_t i = 0; i < COLONNES_POWER; ++i) {
        if (i) l += ',';
        l += colonne(nom_colonne_power(i), unite_colonne_power(i), unites);
    }
    out << l << "\n";
}

void ecrit_resume(Sortie& out, const ResumePower& r, const Etat& etat) {
    out << fmt::format("Simulation du sous-système d'énergie : {} pas de {} s\n", r.pas, etat.session.pas_sim);
    out << fmt::format("Fraction en éclipse : {:.1f} %\n", 100.0 * r.fraction_eclipse());
    out << fmt::format("Charge batterie : min {:.1f} %, max {:.1f} %\n", 100 * r.soc_min, 100 * r.soc_max);
    out << fmt::format("Température batterie : min {:.2f} °C, max {:.2f} °C\n", r.tbat_min, r.tbat_max);
    out << fmt::format("Puissance générateur : min {:.2f} W, max {:.2f} W, moyenne {:.2f} W\n", r.pg_min,
                       r.pg_max, r.pg_moyenne());
    out << fmt::format("Bilan énergie batterie : {:.2f} Wh\n", r.bilan);
}

int lance_power(const OptionsPower& o) {
    Etat etat;
    if (int r = prepare_power(o, etat); r != SORTIE_OK) return r;

    Sortie out(o.communes.out);
    if (!out.ok()) return signale(out.message(), SORTIE_ECHEC);

    if (!o.resume) ecrit_entete(out, o.unites);
    Progression progres("power", o.quiet);
    const double debut = etat.session.j_debut, fin = etat.session.j_fin;
    // the row run_power made and checked is the one written
    const BilanPower bilan = run_power(etat, [&](double j, const LignePower& ligne) {
        if (!o.resume) out.ligne(ligne);
        progres.date(j, debut, fin);
        return out.ok();  // a failed write stops the run
    });
    if (!etat.faute) progres.pourcent(100);  // the last step may fall short of the end date
    progres.termine();
    if (rapporte_run(etat.faute, etat.alertes) != SORTIE_OK) return termine(out, SORTIE_ECHEC);
    if (o.resume) ecrit_resume(out, bilan.resume, etat);
    return termine(out, SORTIE_OK);
}

}  // namespace

int prepare_power(const OptionsPower& o, Etat& etat) {
    if (int r = prepare_etat(o.communes, etat); r != SORTIE_OK) return r;

    if (!o.pointage.empty()) {
        double v[3];
        char fin;
        if (std::sscanf(o.pointage.c_str(), "%lf,%lf,%lf%c", &v[0], &v[1], &v[2], &fin) != 3) {
            std::cerr << "kestrel: --pointing: trois angles en degrés attendus, « roulis,tangage,lacet »\n";
            return SORTIE_ARGUMENTS;
        }
        etat.pointage.att_roulis = v[0];
        etat.pointage.att_tangage = v[1];
        etat.pointage.att_lacet = v[2];
    }
    etat.pointage.vitesse_spin = o.spin;
    etat.pwr.cel_opt_beol = o.eol ? 1 : 0;

    // Thermal ageing counts from the cells' date: a run cannot start before it.
    if (!(etat.session.j_debut > etat.pwr.date_cell)) {
        std::cerr << msg::date_cellules << "\n";
        return SORTIE_ECHEC;
    }
    return SORTIE_OK;
}

void ajoute_options_power(CLI::App* sub, OptionsPower& o) {
    ajoute_options_communes(sub, o.communes);
    sub->add_flag("--eol", o.eol, "end-of-life cell values (\"EOL\")");
    sub->add_option("--pointing", o.pointage, "initial roll,pitch,yaw in degrees (yaw = initial spin angle)")
        ->check(nombres_finis());
    sub->add_option("--spin", o.spin, "spin rate, turns per minute")->check(nombres_finis());
}

Commande enregistre_power(CLI::App& app) {
    auto o = std::make_shared<OptionsPower>();
    Commande c;
    c.app = app.add_subcommand("power", "Power system over the period: one CSV row per date, or a summary");
    ajoute_options_power(c.app, *o);
    c.app->add_flag("--summary", o->resume, "a short French summary of the run instead of the rows");
    c.app->add_flag("--quiet", o->quiet, "no progress line");
    ajoute_option_unites(c.app, o->unites, "t_bat [°C]");
    c.lance = [o] { return lance_power(*o); };
    return c;
}

}  // namespace kestrel::cli

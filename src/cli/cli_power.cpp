// kestrel power: reset, then one power step per date as the exploitation
// window walks them; one CSV row per step, or a short summary.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>

#include <fmt/format.h>

#include "cli/options_power.h"
#include "cli/sortie.h"
#include "core/power/power.h"
#include "core/power/resume_power.h"
#include "core/shell/messages.h"

namespace kestrel::cli {

namespace {

void ecrit_entete(Sortie& out) {
    out << "date,eclipse,flux_sun,flux_alb,flux_ir,pan_angle,pan_target,gen_power,bat_soc,bat_v,bat_i,"
           "bat_p,p_payload,p_excess,p_loss_ch,p_loss_de,p_loss_gs,p_loss_pl,p_heat,t_bat,t_charge,"
           "t_discharge";
    for (int i = 0; i < 39; ++i) out << fmt::format(",node_t_{}", i);
    for (int i = 0; i < 36; ++i) out << fmt::format(",pan_power_{}", i);
    for (int i = 0; i < 36; ++i) out << fmt::format(",cell_eff_{}", i);
    out << "\n";
}

void ecrit_ligne(Sortie& out, double date, const PowerRecord& p) {
    std::string l;
    l.reserve(3000);
    auto ajoute = [&l](double x) {
        l += ',';
        l += nombre(x);
    };
    l += nombre(date);
    for (double x : {static_cast<double>(p.eclipse), static_cast<double>(p.flux_sun), p.flux_alb, p.flux_ir,
                     p.pan_angle, p.pan_target, p.gen_power, p.bat_soc, p.bat_v, p.bat_i, p.bat_p, p.p_payload,
                     p.p_excess, p.p_loss_ch, p.p_loss_de, p.p_loss_gs, p.p_loss_pl, p.p_heat, p.t_bat,
                     static_cast<double>(p.t_charge), static_cast<double>(p.t_discharge)})
        ajoute(x);
    for (double x : p.node_t) ajoute(x);
    for (double x : p.pan_power) ajoute(x);
    for (float x : p.cell_eff) ajoute(x);
    l += '\n';
    out << l;
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

    if (!o.resume) ecrit_entete(out);
    const BilanPower bilan = run_power(etat, [&](double j, const PowerRecord& p) {
        if (!o.resume) ecrit_ligne(out, j, p);
        return out.ok();  // a failed write stops the run
    });
    if (bilan.alerte_charge) std::cerr << msg::incompat_charge << "\n";
    if (etat.faute) {
        signale(texte_erreur(etat.faute), SORTIE_ECHEC);
        return termine(out, SORTIE_ECHEC);
    }
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
    c.app = app.add_subcommand("power", "Power system: one power_step per date, CSV rows");
    ajoute_options_power(c.app, *o);
    c.app->add_flag("--summary", o->resume, "a short French summary of the run instead of the rows");
    c.lance = [o] { return lance_power(*o); };
    return c;
}

}  // namespace kestrel::cli

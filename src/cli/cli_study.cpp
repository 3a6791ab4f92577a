// kestrel study battery | generator: the two sizing studies of the power
// windows, same loops, CSV out.
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include <fmt/format.h>

#include "cli/arguments.h"
#include "cli/commun.h"
#include "cli/progression.h"
#include "cli/sortie.h"
#include "core/power/etude_batterie.h"
#include "core/power/etude_generateur.h"

namespace kestrel::cli {

namespace {

struct OptionsBatterie {
    OptionsCommunes communes;
    EntreesBatterie e;
    std::string mode = "power";
    bool unites = false;
    bool quiet = false;
};

struct OptionsGenerateur {
    OptionsCommunes communes;
    std::string vue = "temperature";
    bool unites = false;
    bool quiet = false;
};

int lance_batterie(OptionsBatterie o) {
    Etat etat;
    // the study does not walk the project's period: only the files are read
    if (int r = prepare_etat(o.communes, etat, false); r != SORTIE_OK) return r;
    o.e.puissance_constante = o.mode == "power";
    if (Verdict v = verifie_entrees(etat.pwr, o.e); !v.ok) {
        std::string m = v.message;
        std::replace(m.begin(), m.end(), '\n', ' ');
        std::cerr << "kestrel: " << m << "\n";
        return SORTIE_ARGUMENTS;
    }
    Sortie out(o.communes.out);
    if (!out.ok()) return signale(out.message(), SORTIE_ECHEC);
    // each phase counts from 0 to its own maximum, as the window's bar does
    Progression progres("study battery", o.quiet);
    const ResultatBatterie r = etude_batterie(etat.pwr, o.e, [&](const ProgressionBatterie& x) {
        progres.pourcent(x.maximum > 0 ? 100.0 * static_cast<double>(x.valeur) / static_cast<double>(x.maximum)
                                       : 100.0);
    });
    progres.termine();

    out << fmt::format("DOD %,{}\n", r.dod);
    out << "Temps de recharge," << texte_duree(r.temps_recharge) << "\n";
    // time from the start of the discharge, state of charge as a fraction,
    // voltage per accumulator, current in C units
    if (o.unites)
        out << "t [s],phase [-],s [-],v [V],i [C]\n";
    else
        out << "t,phase,s,v,i\n";
    for (const EchantillonBatterie& x : r.echantillons) {
        out.entier(x.t) << ',' << static_cast<char>(x.phase) << ',';
        out.nombre(x.s) << ',';
        out.nombre(x.v) << ',';
        out.nombre(x.i) << '\n';
    }
    if (rapporte_run(r.faute, r.alertes) != SORTIE_OK) return termine(out, SORTIE_ECHEC);
    return termine(out, SORTIE_OK);
}

// Largest and smallest value of each column, NaN cells left out.
void ecrit_resume(const ResultatGenerateur& r, const TableGenerateur& t) {
    std::cerr << fmt::format("Simulation panneaux solaires : {} pas\n", r.dates.size());
    for (std::size_t c = 0; c < t.colonnes(); ++c) {
        double hi = -std::numeric_limits<double>::infinity(), lo = -hi;
        for (std::size_t l = 0; l < t.lignes(); ++l) {
            const double x = t.valeur(l, c);
            if (std::isnan(x)) continue;
            hi = std::max(hi, x);
            lo = std::min(lo, x);
        }
        if (hi < lo)
            std::cerr << fmt::format("{} : aucune valeur\n", t.titres[c]);
        else
            std::cerr << fmt::format("{} : max {:.3f} {}, min {:.3f} {}\n", t.titres[c], hi, t.unites[c], lo,
                                     t.unites[c]);
    }
}

int lance_generateur(const OptionsGenerateur& o) {
    Etat etat;
    if (int r = prepare_etat(o.communes, etat); r != SORTIE_OK) return r;
    const VueGenerateur vue = o.vue == "power"  ? VueGenerateur::puissance
                              : o.vue == "flux" ? VueGenerateur::flux
                                                : VueGenerateur::temperature;
    Sortie out(o.communes.out);
    if (!out.ok()) return signale(out.message(), SORTIE_ECHEC);
    Progression progres("study generator", o.quiet);
    const ResultatGenerateur r = etude_generateur(etat, [&](double pc) { progres.pourcent(pc); });
    progres.termine();
    if (r.faute.code == CodeErreur::date_cellules) return echec_run(r.faute);

    const TableGenerateur& t = r.table(vue);
    // the window's captions, "Panneau 1 (°C)"; with --units in brackets like every CSV
    out << (o.unites ? "date [j],eclipse [-]" : "date (j),eclipse");
    for (std::size_t c = 0; c < t.colonnes(); ++c)
        out << ',' << (o.unites ? colonne(t.titres[c], t.unites[c], true) : t.titres[c] + " (" + t.unites[c] + ')');
    out << '\n';
    for (std::size_t i = 0; i < t.lignes(); ++i) {
        out.nombre(r.dates[i]) << (r.eclipses[i] ? ",1" : ",0");
        for (std::size_t c = 0; c < t.colonnes(); ++c) {
            out << ',';
            if (const double x = t.valeur(i, c); !std::isnan(x)) out.nombre(x);
        }
        out << '\n';
    }
    ecrit_resume(r, t);
    if (rapporte_run(r.faute, r.alertes) != SORTIE_OK) return termine(out, SORTIE_ECHEC);
    return termine(out, SORTIE_OK);
}

}  // namespace

Commande enregistre_study(CLI::App& app) {
    Commande c;
    c.app = app.add_subcommand("study", "Battery and solar generator sizing studies");
    c.app->require_subcommand(1);

    auto b = std::make_shared<OptionsBatterie>();
    CLI::App* bat = c.app->add_subcommand(
        "battery", "One accumulator: eclipse discharge then recharge, 1 s steps, a row every 10 s");
    bat->add_option("--pwr", b->communes.pwr, "power project (.pwr) giving the battery laws; default: a new project");
    bat->add_option("--out", b->communes.out, "output file; default: standard output");
    bat->add_option("--tecl", b->e.duree_eclipse, "eclipse (discharge) duration, minutes")->capture_default_str();
    bat->add_option("--temp", b->e.temperature, "battery temperature, °C")->capture_default_str();
    bat->add_option("--k", b->e.k_recharge, "recharge coefficient (charge put back / charge taken)")
        ->capture_default_str();
    bat->add_option("--vmax", b->e.v_max, "maximum charge voltage per accumulator, V")->capture_default_str();
    bat->add_option("--ich", b->e.i_charge, "charge current, C units")->capture_default_str();
    bat->add_option("--mode", b->mode, "discharge at constant power or constant current")
        ->check(parmi({"power", "current"}))
        ->capture_default_str();
    bat->add_option("--power", b->e.puissance, "discharge power over Cnom, V/h (W per Ah)")->capture_default_str();
    bat->add_option("--current", b->e.i_decharge,
                    "discharge current, C units (first guess of the current at constant power)")
        ->capture_default_str();
    ajoute_option_unites(bat, b->unites, "v [V]");
    bat->add_flag("--quiet", b->quiet, "no progress line");

    auto g = std::make_shared<OptionsGenerateur>();
    CLI::App* gen =
        c.app->add_subcommand("generator", "power_step over the period, per-panel table of one view");
    ajoute_options_communes(gen, g->communes);
    gen->add_option("--view", g->vue, "temperature (°C), power (W) or flux (W/m²)")
        ->check(parmi({"temperature", "power", "flux"}))
        ->capture_default_str();
    ajoute_option_unites(gen, g->unites, "Panneau 1 [°C]");
    gen->add_flag("--quiet", g->quiet, "no progress line");

    c.lance = [b, g, bat, gen] {
        if (bat->parsed()) return lance_batterie(*b);
        if (gen->parsed()) return lance_generateur(*g);
        return SORTIE_ARGUMENTS;
    };
    return c;
}

}  // namespace kestrel::cli

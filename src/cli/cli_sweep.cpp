// kestrel sweep power: the same power run for every combination of the
// values given with --set, each case on its own copy of the project, on
// several threads; one CSV row of summary figures per case, in case order.
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <iostream>
#include <memory>
#include <thread>

#include "cli/arguments.h"
#include "cli/options_power.h"
#include "cli/progression.h"
#include "cli/sortie.h"
#include "core/attitude/resume_attitude.h"
#include "core/power/resume_power.h"
#include "core/project/balayage.h"
#include "core/project/reglage_champs.h"
#include "core/project/unites_champs.h"
#include "core/shell/messages.h"

namespace kestrel::cli {

namespace {

struct OptionsBalayage {
    std::vector<std::string> reglages;  // FIELD=values
    unsigned jobs = 0;                  // 0: all cores
    std::string cas;                    // "K:N"
    bool quiet = false;
    bool unites = false;                // --units
};

// --set texts read and checked against the base project; false after a message.
bool lit_reglages(const OptionsBalayage& o, const Etat& base, std::vector<Balayage>& b) {
    for (const std::string& r : o.reglages) {
        const auto egal = r.find('=');
        if (egal == std::string::npos || egal == 0) {
            std::cerr << "kestrel: --set « " << r << " » : CHAMP=valeurs attendu\n";
            return false;
        }
        Balayage s{r.substr(0, egal), {}};
        std::string erreur;
        s.valeurs = lit_valeurs(r.substr(egal + 1), erreur);
        if (s.valeurs.empty()) {
            std::cerr << "kestrel: --set " << s.nom << " : " << erreur << "\n";
            return false;
        }
        for (double v : s.valeurs) {
            if (std::string refus = verifie_champ(base, s.nom, v); !refus.empty()) {
                std::cerr << "kestrel: --set : " << refus << "\n";
                if (refus.rfind("champ inconnu", 0) == 0) {
                    std::cerr << "champs possibles :";
                    for (const std::string& n : noms_reglables()) std::cerr << ' ' << n;
                    std::cerr << "\n";
                }
                return false;
            }
        }
        b.push_back(std::move(s));
    }
    return true;
}

// "K:N" with 1 <= K <= N; false when unreadable.
bool lit_tranche(const std::string& texte, std::size_t& k, std::size_t& n) {
    char fin;
    long a, b;
    if (std::sscanf(texte.c_str(), "%ld:%ld%c", &a, &b, &fin) != 2 || b < 1 || a < 1 || a > b) return false;
    k = static_cast<std::size_t>(a);
    n = static_cast<std::size_t>(b);
    return true;
}

// Figures of one case as ",x,y,...", or empty when the run stopped on a fault
// (left in etat.faute).
using Figures = std::function<std::string(Etat&)>;

std::string ligne_du_cas(std::size_t i, const std::vector<double>& valeurs, const std::string& figures,
                         std::size_t nb_figures, const Erreur& faute) {
    std::string l = std::to_string(i + 1);
    for (double v : valeurs) (l += ',') += texte_nombre(v);
    if (!faute) return l + figures + ",\n";
    l += std::string(nb_figures, ',');
    std::string t = texte_erreur(faute);
    std::replace(t.begin(), t.end(), '"', '\'');
    return l + ",\"" + t + "\"\n";
}

// `colonnes`: the header cells of the figures, in their order.
int lance_balayage(const Etat& base, const std::string& chemin, const OptionsBalayage& o,
                   const std::vector<std::string>& colonnes, const Figures& figures) {
    std::vector<Balayage> balayages;
    if (!lit_reglages(o, base, balayages)) return SORTIE_ARGUMENTS;
    std::size_t k = 1, n = 1;
    if (!o.cas.empty() && !lit_tranche(o.cas, k, n)) {
        std::cerr << "kestrel: --cases « " << o.cas << " » : K:N attendu, 1 ≤ K ≤ N\n";
        return SORTIE_ARGUMENTS;
    }
    Sortie out(chemin);
    if (!out.ok()) return signale(out.message(), SORTIE_ECHEC);
    const std::size_t nb_figures = colonnes.size();
    if (k == 1) {
        out << colonne("case", "-", o.unites);
        for (const Balayage& s : balayages) out << ',' << colonne(s.nom, unite_champ(s.nom), o.unites);
        for (const std::string& c : colonnes) out << ',' << c;
        out << ',' << colonne("fault", "-", o.unites) << '\n';
    }
    const Tranche t = tranche(nb_cas(balayages), k, n);
    const unsigned jobs = o.jobs ? o.jobs : std::max(1u, std::thread::hardware_concurrency());
    std::size_t finis = 0;
    Progression progres("sweep", o.quiet);
    std::atomic<bool> echec{false};
    lance_cas(
        t, jobs,
        [&](std::size_t i) {
            Etat etat = base;
            const std::vector<double> v = valeurs_du_cas(balayages, i);
            for (std::size_t s = 0; s < v.size(); ++s) regle_champ(etat, balayages[s].nom, v[s]);
            const std::string f = figures(etat);
            if (etat.faute) echec = true;
            return ligne_du_cas(i, v, f, nb_figures, etat.faute);
        },
        [&](std::size_t, const std::string& ligne) {
            out << ligne;
            progres.compte(++finis, t.fin - t.debut);
        });
    progres.termine();
    return termine(out, echec ? SORTIE_ECHEC : SORTIE_OK);
}

// "steps" and the names of the summary's figures, in their order, each with its unit if asked.
template <std::size_t N>
std::vector<std::string> colonnes(const char* const (&noms)[N], const char* const (&unites)[N], bool avec) {
    std::vector<std::string> c{colonne("steps", "-", avec)};
    for (std::size_t i = 0; i < N; ++i) c.push_back(colonne(noms[i], unites[i], avec));
    return c;
}

int lance_balayage_power(const OptionsPower& op, const OptionsBalayage& o) {
    Etat base;
    if (int r = prepare_power(op, base); r != SORTIE_OK) return r;
    return lance_balayage(
        base, op.communes.out, o,
        colonnes(FIGURES_POWER, UNITES_FIGURES_POWER, o.unites),
        [](Etat& etat) {
            // a swept period or cells' date may break the ageing rule
            if (!(etat.session.j_debut > etat.pwr.date_cell)) {
                etat.faute = {CodeErreur::date_cellules, {}, etat.session.j_debut, 0};
                return std::string();
            }
            const ResumePower r = run_power(etat).resume;
            std::string l = "," + std::to_string(r.pas);
            for (double x : figures(r)) (l += ',') += texte_nombre(x);
            return l;
        });
}

int lance_balayage_attitude(const OptionsCommunes& oc, const OptionsBalayage& o) {
    Etat base;
    if (int r = prepare_etat(oc, base)) return r;
    if (!oc.step && oc.pwr.empty()) base.session.pas_sim = 10;  // as kestrel attitude
    return lance_balayage(base, oc.out, o, colonnes(FIGURES_ATTITUDE, UNITES_FIGURES_ATTITUDE, o.unites), [](Etat& etat) {
        const ResumeAttitude r = run_resume_attitude(etat);
        std::string l = "," + std::to_string(r.pas);
        for (double x : figures(r)) (l += ',') += texte_nombre(x);
        return l;
    });
}

void ajoute_options_balayage(CLI::App* sub, OptionsBalayage& o) {
    sub->add_option("--set", o.reglages,
                    "FIELD=v1,v2,... or FIELD=start:stop:count; field names as `kestrel project show` "
                    "prints them; repeat for a product of several fields")
        ->required();
    sub->add_option("--jobs", o.jobs, "threads (default: all cores)")->check(entre(1, 1024));
    sub->add_option("--cases", o.cas, "K:N: only the K-th of N equal slices of the cases (header in slice 1)");
    sub->add_flag("--quiet", o.quiet, "no progress line");
    ajoute_option_unites(sub, o.unites, "bat_c [Ah]");
}

}  // namespace

Commande enregistre_sweep(CLI::App& app) {
    auto op = std::make_shared<OptionsPower>();
    auto o = std::make_shared<OptionsBalayage>();
    Commande c;
    c.app = app.add_subcommand("sweep", "Parameter sweep: one row of summary figures per combination of values");
    c.app->require_subcommand(1);
    CLI::App* power = c.app->add_subcommand("power", "power runs, one row of summary figures per case");
    ajoute_options_power(power, *op);
    ajoute_options_balayage(power, *o);
    auto oa = std::make_shared<OptionsCommunes>();
    CLI::App* attitude = c.app->add_subcommand("attitude", "attitude runs, one row per case");
    ajoute_options_communes(attitude, *oa, 10);
    ajoute_options_balayage(attitude, *o);
    c.lance = [op, oa, o, power] {
        return power->parsed() ? lance_balayage_power(*op, *o) : lance_balayage_attitude(*oa, *o);
    };
    return c;
}

}  // namespace kestrel::cli

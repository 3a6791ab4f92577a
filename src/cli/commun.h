// What the sub-commands share: the project and period options, building the
// Etat from them, and dates on the command line.
#pragma once
#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "core/etat/etat.h"
#include "core/shell/dossiers.h"

namespace kestrel::cli {

// A registered sub-command and what runs it once parsed (returns the exit code).
struct Commande {
    CLI::App* app = nullptr;
    std::function<int()> lance;
};

Commande enregistre_orbit(CLI::App& app);
Commande enregistre_project(CLI::App& app);
Commande enregistre_power(CLI::App& app);
Commande enregistre_attitude(CLI::App& app);
Commande enregistre_exploit(CLI::App& app);
Commande enregistre_study(CLI::App& app);
Commande enregistre_sweep(CLI::App& app);

struct OptionsCommunes {
    std::string pwr, att, orb;  // project files; empty: new-project defaults
    std::string tle;            // two-line element set in place of --orb
    std::string start, end;     // day count or YYYY-MM-DDThh:mm:ss; empty: project period
    std::optional<double> step; // s; empty: project step (120 for a new project)
    std::string out;            // output file; empty: standard output
};

// Numbers written as the option's value, comma-separated where several are
// given: each must read whole as a finite number (nan and inf are refused at
// parsing, with a French line).
const CLI::Validator& nombres_finis();

// Adds --pwr --att --orb (or --tle) --start --end --step --out to a sub-command.
void ajoute_options_communes(CLI::App* sub, OptionsCommunes& o, double pas_defaut = 120);

// --units on a CSV sub-command; `exemple` shows one header cell ("t_bat [°C]").
void ajoute_option_unites(CLI::App* sub, bool& unites, const std::string& exemple);

// A header cell: the column's name, then its unit in brackets when asked;
// quoted when it holds a comma (array elements "ch_pt(0,1)").
std::string colonne(std::string_view nom, std::string_view unite, bool unites);

// Exit codes of the command line.
constexpr int SORTIE_OK = 0;
constexpr int SORTIE_ECHEC = 1;      // a run or a file failed
constexpr int SORTIE_ARGUMENTS = 2;  // bad arguments

// New-project Etat, then the files, then the period options, then the period
// check (unless periode is false: a command that does not walk the period).
// On failure prints one line on stderr and returns SORTIE_ECHEC or
// SORTIE_ARGUMENTS (a refused value that came from an option).
int prepare_etat(const OptionsCommunes& o, Etat& etat, bool periode = true);

// "12345.5" (day count) or "2001-03-21T13:12:00"; empty when unreadable.
std::optional<double> lit_date(const std::string& texte);

// "kestrel: message" on stderr, control characters shown as \xNN (the line
// breaks of the program's own texts kept). Returns code.
int signale(const std::string& message, int code);

// What a run left in its fault channel, in the words the windows use, one
// line each on stderr: the warning of the battery's charge curve, then the
// fault that ended the run. SORTIE_ECHEC after a fault, else SORTIE_OK.
int rapporte_run(const Erreur& faute, const Alertes& alertes = {});
inline int echec_run(const Erreur& faute) { return rapporte_run(faute); }

}  // namespace kestrel::cli

// What the sub-commands share: the project and period options, building the
// Etat from them, dates on the command line, and the CSV number form.
#pragma once
#include <CLI/CLI.hpp>

#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <string>

#include "core/etat.h"
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

struct OptionsCommunes {
    std::string pwr, att, orb;  // project files; empty: new-project defaults
    std::string tle;            // two-line element set in place of --orb
    std::string start, end;     // day count or YYYY-MM-DDThh:mm:ss; empty: project period
    std::optional<double> step; // s; empty: project step (120 for a new project)
    std::string out;            // output file; empty: standard output
};

// Adds --pwr --att --orb (or --tle) --start --end --step --out to a sub-command.
void ajoute_options_communes(CLI::App* sub, OptionsCommunes& o, double pas_defaut = 120);

// Exit codes of the command line.
constexpr int SORTIE_OK = 0;
constexpr int SORTIE_ECHEC = 1;      // a run or a file failed
constexpr int SORTIE_ARGUMENTS = 2;  // bad arguments

// New-project Etat, then the files, then the period options. On failure prints
// one line on stderr and returns SORTIE_ECHEC or SORTIE_ARGUMENTS.
int prepare_etat(const OptionsCommunes& o, Etat& etat);

// "12345.5" (day count) or "2001-03-21T13:12:00"; empty when unreadable.
std::optional<double> lit_date(const std::string& texte);

// Number with 17 significant digits (reads back to the same double).
std::string nombre(double x);

// Standard output, or the --out file. ok() is false when the file did not open.
class Sortie {
public:
    explicit Sortie(const std::string& chemin);
    std::ostream& flux() { return fichier_.is_open() ? fichier_ : std::cout; }
    bool ok() const { return ok_; }

private:
    std::ofstream fichier_;
    bool ok_ = true;
};

}  // namespace kestrel::cli

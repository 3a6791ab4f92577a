// The options of a power run (project, period, cells' end of life, pointing,
// spin), shared by `kestrel power` and `kestrel sweep power`.
#pragma once
#include "cli/commun.h"

namespace kestrel::cli {

struct OptionsPower {
    OptionsCommunes communes;
    bool eol = false;
    std::string pointage;  // "roulis,tangage,lacet", degrees
    double spin = 0;       // turns per minute
    bool resume = false;
    bool unites = false;  // --units: "name [unit]" in the CSV header
    bool quiet = false;   // --quiet: no progress line
};

// --pwr .. --out, --eol, --pointing, --spin.
void ajoute_options_power(CLI::App* sub, OptionsPower& o);

// The Etat of the run: prepare_etat, then the pointing, spin and cell options
// and the cells' date check. On failure prints one line and returns the exit code.
int prepare_power(const OptionsPower& o, Etat& etat);

}  // namespace kestrel::cli

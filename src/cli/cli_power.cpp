// Placeholder until the power sub-command lands.
#include "cli/commun.h"

namespace kestrel::cli {

Commande enregistre_power(CLI::App& app) {
    Commande c;
    c.app = app.add_subcommand("power", "(not available yet)");
    c.lance = [] {
        std::cerr << "kestrel: power: not available yet\n";
        return SORTIE_ECHEC;
    };
    return c;
}

}  // namespace kestrel::cli

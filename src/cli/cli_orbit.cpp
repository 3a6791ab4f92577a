// Placeholder until the orbit sub-command lands.
#include "cli/commun.h"

namespace kestrel::cli {

Commande enregistre_orbit(CLI::App& app) {
    Commande c;
    c.app = app.add_subcommand("orbit", "(not available yet)");
    c.lance = [] {
        std::cerr << "kestrel: orbit: not available yet\n";
        return SORTIE_ECHEC;
    };
    return c;
}

}  // namespace kestrel::cli

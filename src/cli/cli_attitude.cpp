// Placeholder until the attitude sub-command lands.
#include "cli/commun.h"

namespace kestrel::cli {

Commande enregistre_attitude(CLI::App& app) {
    Commande c;
    c.app = app.add_subcommand("attitude", "(not available yet)");
    c.lance = [] {
        std::cerr << "kestrel: attitude: not available yet\n";
        return SORTIE_ECHEC;
    };
    return c;
}

}  // namespace kestrel::cli

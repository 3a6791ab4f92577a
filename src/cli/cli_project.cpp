// Placeholder until the project sub-command lands.
#include "cli/commun.h"

namespace kestrel::cli {

Commande enregistre_project(CLI::App& app) {
    Commande c;
    c.app = app.add_subcommand("project", "(not available yet)");
    c.lance = [] {
        std::cerr << "kestrel: project: not available yet\n";
        return SORTIE_ECHEC;
    };
    return c;
}

}  // namespace kestrel::cli

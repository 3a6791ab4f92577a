// kestrel: runs the models without windows, for scripts, tests and benchmarks.
#include <csignal>
#include <iostream>
#include <vector>

#include "cli/arguments.h"
#include "cli/commun.h"

int main(int argc, char** argv) {
    using namespace kestrel::cli;
    // Past a file-size limit a write fails and is reported, instead of the
    // signal ending the program with the rows unaccounted for.
    std::signal(SIGXFSZ, SIG_IGN);
    CLI::App app{"KESTREL - small-satellite simulator, command line.\n"
                 "Runs the orbit, power and attitude models over a period and writes CSV."};
    app.set_version_flag("--version", std::string("kestrel ") + KESTREL_VERSION);
    app.require_subcommand(1);
    std::vector<Commande> commandes{enregistre_orbit(app), enregistre_project(app),
                                    enregistre_power(app), enregistre_attitude(app),
                                    enregistre_study(app), enregistre_exploit(app),
                                    enregistre_sweep(app)};
    refuse_non_finis(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForVersion& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        return signale(message_arguments(e) + " (voir " + aide(app) + ")", SORTIE_ARGUMENTS);
    }
    for (auto& c : commandes) {
        if (c.app->parsed()) return c.lance();
    }
    return SORTIE_ARGUMENTS;
}

// Two attitude runs in two threads write the same bytes as the same runs one
// after the other: the core keeps no state of its own between runs.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "core/attitude/att_run.h"
#include "core/etat/etat.h"

namespace kestrel {
namespace {

namespace fs = std::filesystem;

std::string nom(const std::string& cas) {
    return (fs::temp_directory_path() / ("kestrel_fils_" + cas + "_" + std::to_string(getpid()) + ".tmp"))
        .string();
}

std::string contenu(const std::string& chemin) {
    std::ifstream f(chemin, std::ios::binary);
    std::string s((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    fs::remove(chemin);
    return s;
}

// Two different satellites: a tumbling bare body, and one with wheels and
// dampers on a lower orbit (more air), a few hundred steps each.
Etat etat_cas(int k) {
    Etat e;
    e.session.dossier_depart = KESTREL_BIN_DIR;
    e.session.pas_sim = 2;
    e.session.j_fin = e.session.j_debut + 0.01;
    e.att.omega_init = {0.01 * (k + 1), -0.02, 0.005, 0, 0, 0};
    if (k == 1) {
        e.orbite.orb_demi = 6800;
        e.att.JR = {0.01, 0.01, 0};
        e.att.OM_init = {0.5, 0, 0.1};
        e.att.md = {0.1, 0.1, 0.1};
        e.att.ld = {0.3, 0.3, 0.3};
        e.att.c = {0.05, 0.05, 0.05};
        e.att.k = {0.01, 0.01, 0.01};
    }
    return e;
}

// the run's bilan, and its fault in `faute`
BilanRun lance(int k, const std::string& fichier, Erreur& faute) {
    Etat e = etat_cas(k);
    ParametresRun p;
    p.fichier = fichier;
    const BilanRun b = att_run(e, p);
    faute = e.faute;
    return b;
}

TEST(RunsParalleles, MemesOctetsQuUnApresLAutre) {
    std::string seul[2], fils[2];
    for (int k = 0; k < 2; ++k) {
        Erreur faute;
        const BilanRun b = lance(k, nom("seul" + std::to_string(k)), faute);
        ASSERT_FALSE(faute) << texte_erreur(faute);
        EXPECT_GT(b.enregistrements, 400);
        seul[k] = contenu(b.fichier);
    }
    ASSERT_NE(seul[0], seul[1]);

    BilanRun b[2];
    Erreur faute[2];
    std::thread t0([&] { b[0] = lance(0, nom("fil0"), faute[0]); });
    std::thread t1([&] { b[1] = lance(1, nom("fil1"), faute[1]); });
    t0.join();
    t1.join();
    for (int k = 0; k < 2; ++k) {
        ASSERT_FALSE(faute[k]) << texte_erreur(faute[k]);
        fils[k] = contenu(b[k].fichier);
        EXPECT_EQ(fils[k], seul[k]) << "run " << k;
    }
}

}  // namespace
}  // namespace kestrel

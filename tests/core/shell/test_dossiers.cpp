// Data folders: a build tree keeps the tables beside the programs, an installed
// tree keeps them in share/kestrel beside bin/. Scratch trees are made by hand.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/shell/dossiers.h"
#include "core/shell/erreur.h"

using namespace kestrel;
namespace fs = std::filesystem;

namespace {
fs::path arbre(const std::string& nom) {
    const fs::path p = fs::temp_directory_path() / ("kestrel_dossiers_" + std::to_string(::getpid())) / nom;
    fs::remove_all(p);
    fs::create_directories(p / "bin");
    fs::create_directories(p / "share" / "kestrel");
    return p;
}
void pose(const fs::path& dossier, std::initializer_list<const char*> fichiers) {
    for (const char* f : fichiers) std::ofstream(dossier / f) << "x\n";
}
}  // namespace

TEST(Dossiers, OrdreDeRecherche) {
    // /usr/bin/../share/kestrel is /usr/share/kestrel: listed once.
    EXPECT_EQ(dossiers_donnees("/usr/bin"), (std::vector<std::string>{"/usr/bin", "/usr/share/kestrel"}));
    EXPECT_EQ(dossiers_donnees("/opt/k/bin/"),
              (std::vector<std::string>{"/opt/k/bin", "/opt/k/share/kestrel", "/usr/share/kestrel"}));
}

TEST(Dossiers, PremierDossierQuiTientLesDeuxTables) {
    struct Cas {
        const char* nom;
        std::initializer_list<const char*> a_cote, partage;
        const char* attendu;  // "bin", "share" or "bin" again when nothing holds both
    };
    const Cas cas[] = {
        {"construction", {"flux_solaire.txt", "densite.txt"}, {"flux_solaire.txt", "densite.txt"}, "bin"},
        {"installe", {}, {"flux_solaire.txt", "densite.txt"}, "share"},
        {"une_seule_a_cote", {"densite.txt"}, {"flux_solaire.txt", "densite.txt"}, "share"},
        {"rien", {}, {"densite.txt"}, "bin"},
    };
    for (const Cas& c : cas) {
        const fs::path p = arbre(c.nom);
        pose(p / "bin", c.a_cote);
        pose(p / "share" / "kestrel", c.partage);
        const fs::path attendu = std::string(c.attendu) == "bin" ? p / "bin" : p / "share" / "kestrel";
        EXPECT_EQ(dossier_donnees((p / "bin").string()), attendu.string()) << c.nom;
    }
    // a folder named like a table is not a table
    const fs::path p = arbre("dossier_leurre");
    fs::create_directories(p / "bin" / "flux_solaire.txt");
    pose(p / "bin", {"densite.txt"});
    EXPECT_EQ(dossier_donnees((p / "bin").string()), (p / "bin").string());
    fs::remove_all(p.parent_path());
}

TEST(Dossiers, DossierInstalle) {
    for (const char* d : {"/usr/share/kestrel", "/usr/share/kestrel/", "/opt/k/bin/../share/kestrel"})
        EXPECT_TRUE(dossier_installe(d)) << d;
    for (const char* d : {"/usr/bin", "/home/u/kestrel/build/release/bin", "/usr/share/kestrel/examples",
                          "kestrel", ""})
        EXPECT_FALSE(dossier_installe(d)) << d;
}

TEST(Dossiers, LeMessageNommeLesDossiersCherches) {
    const std::string texte = texte_erreur(Erreur{CodeErreur::fichier_donnees, "densite.txt"});
    const std::string exe = dossier_executable();
    EXPECT_EQ(texte.rfind("Fichier de données introuvable ou illisible : densite.txt (dossiers cherchés : " + exe + ", ", 0), 0u)
        << texte;
    EXPECT_NE(texte.find("/usr/share/kestrel)"), std::string::npos) << texte;
}

// The attitude run and its results file: head, record count, wheel columns,
// failures.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/attitude/att_run.h"
#include "core/etat.h"

namespace kestrel {
namespace {

namespace fs = std::filesystem;

struct Fichier {
    std::vector<std::string> lignes;
    bool crlf = true;
};

Fichier lit(const std::string& chemin) {
    std::ifstream f(chemin, std::ios::binary);
    std::stringstream ss;
    ss << f.rdbuf();
    std::string tout = ss.str();
    Fichier r;
    std::size_t debut = 0;
    for (std::size_t p; (p = tout.find('\n', debut)) != std::string::npos; debut = p + 1) {
        if (p == 0 || tout[p - 1] != '\r') r.crlf = false;
        r.lignes.push_back(tout.substr(debut, p - debut - (p > debut && tout[p - 1] == '\r')));
    }
    if (debut != tout.size()) r.crlf = false;
    return r;
}

std::vector<std::string> champs(const std::string& l) {
    std::vector<std::string> v;
    std::stringstream ss(l);
    for (std::string c; std::getline(ss, c, ',');) v.push_back(c);
    return v;
}

// 95 s at 10 s steps: steps at 0, 10, ..., 90 s, ten in all
Etat etat_run() {
    Etat e;
    e.session.dossier_depart = KESTREL_BIN_DIR;
    e.session.j_debut = 18000.0;
    e.session.j_fin = 18000.0 + 95.0 / 86400;
    e.session.pas_sim = 10;
    return e;
}

std::string chemin_test(const char* nom) { return (fs::temp_directory_path() / nom).string(); }

TEST(AttRun, TeteEtNombreDEnregistrements) {
    Etat e = etat_run();
    ParametresRun p;
    p.fichier = chemin_test("kestrel_att_tete.tmp");
    std::vector<double> progres;
    p.progression = [&](double pc) { progres.push_back(pc); };
    BilanRun b = att_run(e, p);
    ASSERT_FALSE(b.erreur) << texte_erreur(b.erreur);
    EXPECT_EQ(b.pas, 10);
    EXPECT_EQ(b.enregistrements, 11);  // initial state + one a step

    Fichier f = lit(p.fichier);
    EXPECT_TRUE(f.crlf);
    ASSERT_EQ(f.lignes.size(), 5u + 11u);
    EXPECT_EQ(f.lignes[0], "\"#BeginTime(JulianDays)\",18000");
    EXPECT_EQ(f.lignes[1].rfind("\"#EndTime(JulianDays)\",18000.0010", 0), 0u);
    auto pas = champs(f.lignes[2]);
    ASSERT_EQ(pas.size(), 2u);
    EXPECT_EQ(pas[0], "\"#TimeStep(s)\"");
    EXPECT_NEAR(std::stod(pas[1]), 10.0, 1e-9);
    EXPECT_EQ(f.lignes[3], "");
    auto tete = champs(f.lignes[4]);
    ASSERT_EQ(tete.size(), 25u);
    EXPECT_EQ(tete[0], "\"j_courant\"");
    EXPECT_EQ(tete[8], "\"yd(2) * (180 / pi)\"");
    EXPECT_EQ(tete[24], "\"ctot(2)\"");
    // records: 25 numbers; the first at the start date, then the step dates
    auto r0 = champs(f.lignes[5]);
    ASSERT_EQ(r0.size(), 25u);
    EXPECT_EQ(std::stod(r0[0]), 18000.0);
    EXPECT_NEAR(std::stod(champs(f.lignes[15])[0]), 18000.0 + 90.0 / 86400, 1e-9);
    // progress from 0 towards 100: 0 at the first step, 90/95 at the last
    ASSERT_EQ(progres.size(), 10u);
    EXPECT_EQ(progres.front(), 0.0);
    EXPECT_NEAR(progres.back(), 100.0 * 90 / 95, 1e-3);
}

TEST(AttRun, UnEnregistrementTousLesNPas) {
    // every 3 steps: 3 of 10; every 2.5 rounds to 2 (ties to even): 5 of 10
    for (auto [n, attendu] : {std::pair{3.0, 1 + 3}, std::pair{2.5, 1 + 5}}) {
        Etat e = etat_run();
        ParametresRun p;
        p.pas_ecriture = n;
        p.fichier = chemin_test("kestrel_att_tous.tmp");
        BilanRun b = att_run(e, p);
        EXPECT_EQ(b.enregistrements, attendu) << n;
        EXPECT_EQ(lit(p.fichier).lignes.size(), static_cast<std::size_t>(5 + attendu)) << n;
    }
}

TEST(AttRun, DebutEgalFinUnSeulPas) {
    Etat e = etat_run();
    e.session.j_fin = e.session.j_debut;
    ParametresRun p;
    p.fichier = chemin_test("kestrel_att_un.tmp");
    BilanRun b = att_run(e, p);
    EXPECT_FALSE(b.erreur);
    EXPECT_EQ(b.pas, 1);
    EXPECT_EQ(lit(p.fichier).lignes.size(), 5u + 2u);
}

TEST(AttRun, ColonnesDesRoues) {
    // below 1e-4 rad/s the wheel columns are written as zeros; a wheel at
    // 1 rad/s on x writes om(0) = (1 - wx) 180 / pi
    Etat e = etat_run();
    e.att.OM_init = {0.5e-4, 0, 0};
    ParametresRun p;
    p.fichier = chemin_test("kestrel_att_roues.tmp");
    att_run(e, p);
    auto r = champs(lit(p.fichier).lignes[5]);
    EXPECT_EQ(r[19], "0");
    EXPECT_EQ(r[20], "0");
    EXPECT_EQ(r[21], "0");

    Etat f = etat_run();
    f.att.OM_init = {1.0, 0, 0};
    f.att.omega_init = {0.01, 0, 0, 0, 0, 0};
    att_run(f, p);
    r = champs(lit(p.fichier).lignes[5]);
    EXPECT_NEAR(std::stod(r[19]), 0.99 * 180 / 3.14159265358979, 1e-9);
    EXPECT_NEAR(std::stod(r[1]), 0.01 * 180 / 3.14159265358979, 1e-12);
}

TEST(AttRun, TablesAbsentesNommees) {
    Etat e = etat_run();
    e.session.dossier_depart = "/nonexistent-kestrel-folder";
    ParametresRun p;
    p.fichier = chemin_test("kestrel_att_absent.tmp");
    BilanRun b = att_run(e, p);
    EXPECT_EQ(b.erreur.code, CodeErreur::fichier_donnees);
    EXPECT_NE(texte_erreur(b.erreur).find("flux_solaire.txt"), std::string::npos);
}

TEST(AttRun, EtatNonFiniArreteLeRunEtGardeLeFichier) {
    // a damper with a zero total mass divides by zero at the first step
    Etat e = etat_run();
    e.att.md = {0.1, 0, 0};
    e.att.Mt = 0;
    e.att.omega_init = {0.1, 0.1, 0.1, 0, 0, 0};
    ParametresRun p;
    p.fichier = chemin_test("kestrel_att_nan.tmp");
    BilanRun b = att_run(e, p);
    EXPECT_EQ(b.erreur.code, CodeErreur::valeur_non_finie);
    EXPECT_EQ(b.erreur.date, 18000.0);
    EXPECT_EQ(lit(p.fichier).lignes.size(), 6u);  // head and the initial record
}

TEST(AttRun, CheminParDefautDansTemp) {
    const fs::path d = fs::temp_directory_path() / "kestrel_att_depart";
    fs::remove_all(d);
    fs::create_directories(d);
    EXPECT_EQ(chemin_resultats(d.string()), (d / "temp" / "temp.tmp").string());
    EXPECT_TRUE(fs::is_directory(d / "temp"));
}

}  // namespace
}  // namespace kestrel

// The attitude run and its results file: head, record count, wheel columns,
// failures.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <limits>
#include <tuple>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/attitude/att_run.h"
#include "core/attitude/resume_attitude.h"
#include "core/etat/etat.h"

namespace kestrel {
namespace {

namespace fs = std::filesystem;

// A scratch name of this process's own: ctest runs the cases in parallel.
const std::string FICHIER = (fs::temp_directory_path() / ("kestrel_att_" + std::to_string(getpid()) + ".tmp")).string();

// The file's lines without their CRLF; crlf is false if any line ends otherwise.
// The file is removed once read.
struct Fichier {
    std::vector<std::string> lignes;
    bool crlf = true;
};
Fichier lit() {
    Fichier r;
    {
        std::ifstream f(FICHIER, std::ios::binary);
        for (std::string l; std::getline(f, l); r.lignes.push_back(l)) {
            if (f.eof() || l.empty() || l.back() != '\r') r.crlf = false;
            else l.pop_back();
        }
    }
    fs::remove(FICHIER);
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

// the run's bilan with the fault it left in the state
struct Issue : BilanRun {
    Erreur erreur;
};

Issue lance(Etat e, ParametresRun p = {}) {
    p.fichier = FICHIER;
    Issue r{att_run(e, p), {}};
    r.erreur = e.faute;
    return r;
}

TEST(AttRun, TeteEtNombreDEnregistrements) {
    ParametresRun p;
    std::vector<double> progres;
    p.progression = [&](double pc) { progres.push_back(pc); };
    Issue b = lance(etat_run(), p);
    ASSERT_FALSE(b.erreur) << texte_erreur(b.erreur);
    EXPECT_EQ(b.pas, 10);
    EXPECT_EQ(b.enregistrements, 11);  // initial state + one a step
    Fichier f = lit();
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
    // every 3 steps: 3 of 10; every 2.5 rounds to 2 (ties to even): 5 of 10;
    // start equal to end: a single step, two records
    for (auto [n, attendu] : {std::pair{3.0, 1 + 3}, std::pair{2.5, 1 + 5}}) {
        ParametresRun p;
        p.pas_ecriture = n;
        EXPECT_EQ(lance(etat_run(), p).enregistrements, attendu) << n;
        EXPECT_EQ(lit().lignes.size(), static_cast<std::size_t>(5 + attendu)) << n;
    }
    Etat e = etat_run();
    e.session.j_fin = e.session.j_debut;
    Issue b = lance(e);
    EXPECT_FALSE(b.erreur);
    EXPECT_EQ(b.pas, 1);
    EXPECT_EQ(lit().lignes.size(), 5u + 2u);
}

TEST(AttRun, ColonnesDesRoues) {
    // below 1e-4 rad/s the wheel columns are written as zeros; a wheel at
    // 1 rad/s on x writes om(0) = (1 - wx) 180 / pi
    Etat e = etat_run();
    e.att.OM_init = {0.5e-4, 0, 0};
    lance(e);
    auto r = champs(lit().lignes[5]);
    EXPECT_EQ(std::vector(r.begin() + 19, r.begin() + 22), std::vector<std::string>(3, "0"));
    e.att.OM_init = {1.0, 0, 0};
    e.att.omega_init = {0.01, 0, 0, 0, 0, 0};
    lance(e);
    r = champs(lit().lignes[5]);
    EXPECT_NEAR(std::stod(r[19]), 0.99 * 180 / 3.14159265358979, 1e-9);
    EXPECT_NEAR(std::stod(r[1]), 0.01 * 180 / 3.14159265358979, 1e-12);
}

TEST(AttRun, ArretSurValeurNonFinie) {
    // a damper with a zero total mass divides by zero at the first step: the
    // run stops and keeps the file with its head and the initial record
    Etat e = etat_run();
    e.att.md = {0.1, 0, 0};
    e.att.Mt = 0;
    e.att.omega_init = {0.1, 0.1, 0.1, 0, 0, 0};
    const Issue b = lance(e);
    EXPECT_EQ(b.erreur.code, CodeErreur::valeur_non_finie);
    EXPECT_EQ(b.erreur.date, 18000.0);
    EXPECT_EQ(lit().lignes.size(), 6u);
}

TEST(AttRun, CheminParDefautDansTemp) {
    const fs::path d = fs::temp_directory_path() / ("kestrel_att_depart_" + std::to_string(getpid()));
    fs::create_directories(d);
    EXPECT_EQ(chemin_resultats(d.string()), (d / "temp" / "temp.tmp").string());
    EXPECT_TRUE(fs::is_directory(d / "temp"));
    // an installed data folder is never written, even when it could be (root):
    // the results go to $XDG_DATA_HOME/kestrel/temp
    const fs::path installe = d / "share" / "kestrel";
    fs::create_directories(installe);
    const char* ancien = std::getenv("XDG_DATA_HOME");
    const std::string sauve = ancien ? ancien : "";
    ::setenv("XDG_DATA_HOME", (d / "donnees").c_str(), 1);
    EXPECT_EQ(chemin_resultats(installe.string()), (d / "donnees" / "kestrel" / "temp" / "temp.tmp").string());
    EXPECT_FALSE(fs::exists(installe / "temp"));
    if (ancien) ::setenv("XDG_DATA_HOME", sauve.c_str(), 1); else ::unsetenv("XDG_DATA_HOME");
    fs::remove_all(d);
}

TEST(AttRun, ArretAvantUnPasDePlusDeDeuxRadians) {
    // A jet torque on x far above the others (ctot is a few 1e-5 N.m), diagonal
    // inertia: wx grows by dt jets / Ixx each step, to within 1e-3 rad/s. With jets = -0.015 Ixx and
    // dt = 10 s, wx = 0.15 rad/s after the first step (1.5 rad a step: written)
    // and 0.3 rad/s after the second (3 rad a step): the run stops there, at
    // the second step's date, with the head, the initial record and one more.
    Etat e = etat_run();
    e.att.jets = {-0.015 * e.att.I(0, 0), 0, 0};
    const Issue b = lance(e);
    EXPECT_EQ(b.erreur.code, CodeErreur::rotation_trop_rapide);
    EXPECT_EQ(b.erreur.date, 18000.0 + 10.0 / 86400);
    EXPECT_NEAR(b.erreur.valeur, 0.3, 1e-3);
    EXPECT_EQ(b.erreur.pas, 10.0);
    EXPECT_EQ(b.enregistrements, 2);
    EXPECT_EQ(lit().lignes.size(), 5u + 2u);
}

TEST(AttRun, TeteNonFinieRienNEstEcrit) {
    // an end date that is not finite: not even the head is written
    Etat e = etat_run();
    e.session.j_fin = std::numeric_limits<double>::infinity();
    const Issue b = lance(e);
    EXPECT_EQ(std::tuple(b.erreur.code, b.erreur.detail, b.erreur.date),
              std::tuple(CodeErreur::valeur_non_finie, std::string("#EndTime(JulianDays)"), 18000.0));
    EXPECT_EQ(b.enregistrements, 0);
    EXPECT_EQ(b.pas, 0);
    EXPECT_TRUE(lit().lignes.empty());
}


TEST(AttRun, FiguresDuBalayage) {
    // the period of etat_run: 95 s at 10 s, 10 steps. A spin of 0.1 rad/s about
    // the principal axis x stays as it is to within the small torques:
    // 0.1 x 180 / pi = 5.7296 deg/s
    Etat e = etat_run();
    e.att.omega_init = {0.1, 0, 0, 0, 0, 0};
    ResumeAttitude r = run_resume_attitude(e);
    EXPECT_FALSE(e.faute) << texte_erreur(e.faute);
    EXPECT_EQ(r.pas, 10);
    EXPECT_NEAR(r.vitesse_max, 5.7296, 0.01);
    // the jets of ArretAvantUnPasDePlusDeDeuxRadians: one clean step, then the fault
    e = etat_run();
    e.att.jets = {-0.015 * e.att.I(0, 0), 0, 0};
    r = run_resume_attitude(e);
    EXPECT_EQ(e.faute.code, CodeErreur::rotation_trop_rapide);
    EXPECT_EQ(r.pas, 1);
}

}  // namespace
}  // namespace kestrel

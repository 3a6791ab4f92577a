// Solar generator study: the date test, the columns of each configuration,
// the walk of the period, what each row holds, progress and stop.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/etat/etat.h"
#include "core/power/etude_generateur.h"
#include "outils_power.h"

namespace kestrel {
namespace {

// One hour from the default epoch at 600 s: dates start + k * 600 s, k = 0..6.
Etat etat_une_heure() {
    Etat e;
    e.session.j_fin = e.session.j_debut + 1.0 / 24;
    e.session.pas_sim = 600;
    return e;
}

std::vector<std::string> panneaux(int n, std::vector<std::string> fin = {}) {
    std::vector<std::string> v;
    for (int i = 1; i <= n; ++i) v.push_back("Panneau " + std::to_string(i));
    v.insert(v.end(), fin.begin(), fin.end());
    return v;
}

TEST(GeneratorStudy, AStartNotAfterTheCellsDateIsRefusedWithItsMessage) {
    Etat e = etat_une_heure();
    for (double debut : {double(e.pwr.date_cell), e.pwr.date_cell - 0.5}) {
        e.session.j_debut = debut;
        e.pwr.node_t[0] = 123;  // untouched: nothing runs
        const ResultatGenerateur r = etude_generateur(e);
        EXPECT_EQ(r.faute.code, CodeErreur::date_cellules) << debut;
        EXPECT_TRUE(r.dates.empty());
        EXPECT_EQ(e.pwr.node_t[0], 123);
    }
}

TEST(GeneratorStudy, ColumnsFollowTheConfiguration) {
    struct Cas {
        const char* nom;
        int16_t ext, faces;
        int n;
    };
    const Cas cas[] = {{"panneaux externes", VRAI, 0, 1}, {"quatre faces", FAUX, 0, 4},
                       {"six faces", FAUX, 1, 6},          {"cylindre", FAUX, 2, 36}};
    for (const Cas& c : cas) {
        Etat e = etat_une_heure();
        if (c.ext == FAUX) essai::pose_faces(e.pwr, c.faces);
        const ResultatGenerateur r = etude_generateur(e);
        ASSERT_FALSE(r.faute) << c.nom << " " << texte_erreur(r.faute);
        EXPECT_EQ(r.panneaux, c.n) << c.nom;
        EXPECT_EQ(r.temperature.titres, panneaux(c.n, {"Maximum", "Minimum"})) << c.nom;
        EXPECT_EQ(r.puissance.titres, panneaux(c.n)) << c.nom;
        EXPECT_EQ(r.puissance.unites, std::vector<std::string>(c.n, "W")) << c.nom;
        if (c.ext == VRAI)
            EXPECT_EQ(r.flux.titres, (std::vector<std::string>{
                                         "Incidence solaire", "Incidence albédo", "Flux solaire direct",
                                         "Flux albédo", "Flux solaire + albédo", "Flux cellules",
                                         "Orientation courante", "Orientation optimale"}));
        else
            EXPECT_EQ(r.flux.titres, panneaux(c.n)) << c.nom;
        // Seven dates, every table with a full row at each.
        ASSERT_EQ(r.dates.size(), 7u) << c.nom;
        for (std::size_t k = 0; k < 7; ++k) EXPECT_NEAR(r.dates[k], e.session.j_debut + k * 600 / 86400.0, 1e-9);
        for (const TableGenerateur* t : {&r.temperature, &r.puissance, &r.flux})
            EXPECT_EQ(t->lignes(), 7u) << c.nom;
    }
}

TEST(GeneratorStudy, RowsHoldTheStepsTemperaturesPowersAndFluxes) {
    // Six faces: the last row is the record as the last step left it.
    Etat e = etat_une_heure();
    essai::pose_faces(e.pwr, 1);
    essai::pose_cellules(e.pwr);
    const ResultatGenerateur r = etude_generateur(e);
    ASSERT_FALSE(r.faute);
    const std::size_t l = r.dates.size() - 1;
    double somme = 0;
    for (int i = 0; i < 6; ++i) {
        EXPECT_NEAR(r.temperature.valeur(l, i), e.pwr.node_t[i] - 273.15, 1e-12) << i;
        EXPECT_LE(r.temperature.valeur(l, i), r.temperature.valeur(l, 6));
        EXPECT_GE(r.temperature.valeur(l, i), r.temperature.valeur(l, 7));
        EXPECT_GE(r.flux.valeur(l, i), 0);
        somme += r.puissance.valeur(l, i);
    }
    EXPECT_NEAR(somme, e.pwr.gen_power, 1e-9);  // the generator is the sum of its faces

    // External panels: the sun-plus-albedo flux is the sum of its two parts,
    // incidences lie in 0..180 deg, the present angle is pan_angle in degrees.
    Etat x = etat_une_heure();
    essai::pose_cellules(x.pwr);
    const ResultatGenerateur rx = etude_generateur(x);
    ASSERT_FALSE(rx.faute);
    for (std::size_t k = 0; k < rx.dates.size(); ++k) {
        const TableGenerateur& f = rx.flux;
        EXPECT_NEAR(f.valeur(k, 4), f.valeur(k, 2) + f.valeur(k, 3), 1e-9) << k;
        for (int c : {0, 1}) {
            EXPECT_GE(f.valeur(k, c), 0) << k;
            EXPECT_LE(f.valeur(k, c), 180) << k;
        }
    }
    const std::size_t lx = rx.dates.size() - 1;
    EXPECT_NEAR(rx.flux.valeur(lx, 6), x.pwr.pan_angle * 180 / PI, 1e-9);
    EXPECT_NEAR(2 * rx.puissance.valeur(lx, 0), x.pwr.gen_power, 1e-9);  // two identical wings
}

TEST(GeneratorStudy, ProgressRisesToAHundredAndTheStopEndsAfterTheStep) {
    Etat e = etat_une_heure();
    std::vector<double> pas;
    ResultatGenerateur r = etude_generateur(e, [&](double p) { pas.push_back(p); });
    // (k * 600) / 3600 * 100 for k = 0..6
    const std::vector<double> attendu{0, 100.0 / 6, 200.0 / 6, 50, 400.0 / 6, 500.0 / 6, 100};
    ASSERT_EQ(pas.size(), attendu.size());
    for (std::size_t k = 0; k < pas.size(); ++k) EXPECT_NEAR(pas[k], attendu[k], 1e-6) << k;
    EXPECT_FALSE(r.arrete);

    bool stop = false;
    r = etude_generateur(e, [&](double p) { stop = p >= 30; }, &stop);
    EXPECT_TRUE(r.arrete);
    EXPECT_EQ(r.dates.size(), 3u);  // the step at 33 % still lands in the table
    EXPECT_EQ(r.temperature.lignes(), 3u);
}

}  // namespace
}  // namespace kestrel

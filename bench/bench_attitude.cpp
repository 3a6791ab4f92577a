// A simulated day of the attitude system at 1 s steps: the whole run with
// every step written to the results file, and the same steps without it.
#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "core/attitude/att_run.h"
#include "core/attitude/atmosphere.h"
#include "core/attitude/attitude_init.h"
#include "core/attitude/attitude_step.h"
#include "core/etat/etat.h"
#include "memoire.h"

namespace {

using namespace kestrel;

// The data files sit beside the benchmark binary.
std::string dossier_binaire() {
    std::error_code ec;
    auto p = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::string(".") : p.parent_path().string();
}

Etat etat_jour() {
    Etat e;
    e.session.dossier_depart = dossier_binaire();
    e.session.j_debut = epoque_orbite(e.orbite);
    e.session.j_fin = e.session.j_debut + 1.0;
    e.session.pas_sim = 1;
    // Default satellite but for its residual dipole: with it, the uncontrolled
    // body spins up under the magnetic torque until explicit 1 s steps diverge
    // (some 6 h into the day); without it the day runs to its end.
    e.att.dip_res = {};
    return e;
}

void BM_jour_avec_fichier(benchmark::State& state) {
    const std::string chemin = (std::filesystem::temp_directory_path() / "kestrel_bench_att.tmp").string();
    long pas = 0;
    for (auto _ : state) {
        Etat e = etat_jour();
        ParametresRun p;
        p.fichier = chemin;
        BilanRun b = att_run(e, p);
        if (e.faute) state.SkipWithError(texte_erreur(e.faute).c_str());
        pas = b.pas;
    }
    state.counters["pas_par_s"] = benchmark::Counter(static_cast<double>(pas), benchmark::Counter::kIsIterationInvariantRate);
    bench::rapporte_memoire(state);
}

void BM_jour_sans_fichier(benchmark::State& state) {
    long pas = 0;
    for (auto _ : state) {
        Etat e = etat_jour();
        attitude_init(e);
        pas = 0;
        const double fin = e.session.j_fin, dj = 1.0 / 86400;
        double date_orbite = std::nan("");
        TablesAtmosphere tables;
        if (Erreur err = charge_tables_atmosphere(e.session.dossier_depart, tables))
            state.SkipWithError(texte_erreur(err).c_str());
        for (double j = e.session.j_debut; j <= fin; j += dj) {
            pas_run(e, 1.0, j, date_orbite, tables);
            ++pas;
        }
        benchmark::DoNotOptimize(e.att.omega);
    }
    state.counters["pas_par_s"] = benchmark::Counter(static_cast<double>(pas), benchmark::Counter::kIsIterationInvariantRate);
    bench::rapporte_memoire(state);
}

}  // namespace

BENCHMARK(BM_jour_avec_fichier)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(BM_jour_sans_fichier)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

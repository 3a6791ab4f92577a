// A simulated year of the power system at 60 s steps in each layout,
// reported as simulated seconds per wall second, with the peak memory.
#include <benchmark/benchmark.h>

#include "core/etat/etat.h"
#include "core/power/power_step.h"
#include "core/shell/parcours.h"
#include "memoire.h"

namespace {

using namespace kestrel;

// Cells above the battery bus so that every model of the step has work.
void prepare(Etat& e, int couche) {
    PowerRecord& p = e.pwr;
    p.cel_voc = 2.6f;
    p.cel_vmp = 2.3f;
    p.cel_ns = 7;
    p.cel_np = 8;
    p.cel_surface = 30;
    p.pan_speed = 1.0f;
    p.p_demand = {30, 25};
    p.fac_cond = {3, 3, 3};
    p.ext_cond = {3, 3, 3, 3, 3, 3};
    if (couche > 0) {
        p.opt_panel_ext = FAUX;
        p.opt_faces = static_cast<int16_t>(couche - 1);
        p.nb_faces = couche == 1 ? 4 : (couche == 2 ? 6 : 0);
        for (int i = 0; i < p.nb_faces; ++i) p.face_azim[i] = i * (361 / p.nb_faces) * DEG_RAD;
    }
    e.session.pas_sim = 60;
}

void annee(benchmark::State& state) {
    const int couche = static_cast<int>(state.range(0));
    double secondes = 0;
    for (auto _ : state) {
        Etat e;
        prepare(e, couche);
        power_state_init(e);
        const long n = parcours_dates(e.session.j_debut, e.session.j_debut + 365, 60, [&](double j) {
            e.session.j_courant = j;
            power_step(e);
            return !e.faute;
        });
        benchmark::DoNotOptimize(e.pwr.bat_soc);
        if (e.faute) state.SkipWithError("fault during the year");
        secondes += 60.0 * n;
    }
    state.counters["s_simulees_par_s"] = benchmark::Counter(secondes, benchmark::Counter::kIsRate);
    kestrel::bench::rapporte_memoire(state);
}

}  // namespace

BENCHMARK(annee)->Arg(0)->Name("annee_panneaux_externes")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(annee)->Arg(1)->Name("annee_quatre_faces")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(annee)->Arg(2)->Name("annee_six_faces")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(annee)->Arg(3)->Name("annee_cylindre")->Unit(benchmark::kMillisecond)->Iterations(1);

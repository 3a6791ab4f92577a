// The two sizing studies: battery passes per wall second (the recharge cap
// must stay a matter of seconds), and a week of the generator study at 60 s
// in each layout with the memory its tables take.
#include <benchmark/benchmark.h>

#include "core/etat/etat.h"
#include "core/power/etude_batterie.h"
#include "core/power/etude_generateur.h"
#include "memoire.h"

namespace {

using namespace kestrel;

// 1 min of eclipse at 1C, then a recharge at 1e-6 C that runs into the cap.
void recharge_plafonnee(benchmark::State& state) {
    PowerRecord p;
    EntreesBatterie e;
    e.duree_eclipse = 1;
    e.puissance_constante = false;
    e.i_decharge = 1;
    e.i_charge = 1e-6;
    double passes = 0;
    for (auto _ : state) {
        const ResultatBatterie r = etude_batterie(p, e);
        benchmark::DoNotOptimize(r.echantillons.data());
        passes += static_cast<double>(r.temps_recharge) + 61;
    }
    state.counters["passes_par_s"] = benchmark::Counter(passes, benchmark::Counter::kIsRate);
    kestrel::bench::rapporte_memoire(state);
}

void semaine(benchmark::State& state) {
    const int couche = static_cast<int>(state.range(0));
    double lignes = 0;
    for (auto _ : state) {
        Etat e;
        if (couche > 0) {
            e.pwr.opt_panel_ext = FAUX;
            e.pwr.opt_faces = static_cast<int16_t>(couche - 1);
            e.pwr.nb_faces = couche == 1 ? 4 : (couche == 2 ? 6 : 0);
            for (int i = 0; i < e.pwr.nb_faces; ++i) e.pwr.face_azim[i] = i * (361 / e.pwr.nb_faces) * DEG_RAD;
        }
        e.session.j_fin = e.session.j_debut + 7;
        e.session.pas_sim = 60;
        const ResultatGenerateur r = etude_generateur(e);
        if (r.faute) state.SkipWithError("fault during the week");
        lignes += static_cast<double>(r.dates.size());
    }
    state.counters["s_simulees_par_s"] = benchmark::Counter(lignes * 60, benchmark::Counter::kIsRate);
    kestrel::bench::rapporte_memoire(state);
}

}  // namespace

BENCHMARK(recharge_plafonnee)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(semaine)->Arg(0)->Name("generateur_semaine_panneaux_externes")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(semaine)->Arg(1)->Name("generateur_semaine_quatre_faces")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(semaine)->Arg(3)->Name("generateur_semaine_cylindre")->Unit(benchmark::kMillisecond)->Iterations(1);

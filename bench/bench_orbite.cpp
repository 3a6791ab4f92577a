// One orb_position + sous_point pair, the orbit work of every simulation step.
// Global operator new is counted so that a heap allocation inside the pair
// shows in the "allocations" counter (it must stay 0).
#include <atomic>
#include <cstdlib>
#include <new>

#include <benchmark/benchmark.h>

#include "core/etat/etat.h"
#include "core/orbit/orb_projection.h"
#include "core/orbit/orb_trajecto.h"
#include "memoire.h"

namespace {
std::atomic<long> allocations{0};
}  // namespace

// The replacements below pair malloc with free on purpose; g++ cannot see
// that new and delete are both replaced and warns.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"

void* operator new(std::size_t n) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* p = std::malloc(n ? n : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace {

void orbite_et_sous_point(benchmark::State& state, double excentricite) {
    kestrel::Etat etat;
    etat.orbite.orb_inclinaison = 98.0;
    etat.orbite.orb_excentricite = excentricite;
    double j = etat.session.j_debut;
    const double pas = 60.0 / 86400.0;
    long avant = allocations.load();
    for (auto _ : state) {
        kestrel::orbite_a_date(etat, j);
        benchmark::DoNotOptimize(etat.orb);
        j += pas;
    }
    state.counters["allocations"] = static_cast<double>(allocations.load() - avant);
    state.counters["fautes"] = etat.faute ? 1 : 0;
    kestrel::bench::rapporte_memoire(state);
}

void BM_orbite_circulaire(benchmark::State& state) { orbite_et_sous_point(state, 0.0); }
void BM_orbite_excentrique(benchmark::State& state) { orbite_et_sous_point(state, 0.1); }

}  // namespace

BENCHMARK(BM_orbite_circulaire);
BENCHMARK(BM_orbite_excentrique);

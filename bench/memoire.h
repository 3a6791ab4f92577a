// Peak resident memory of the benchmark process, reported as a counter.
#pragma once
#include <sys/resource.h>

#include <benchmark/benchmark.h>

namespace kestrel::bench {

// Peak resident set size so far, MiB.
inline double pic_memoire_mib() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return static_cast<double>(u.ru_maxrss) / 1024.0;
}

inline void rapporte_memoire(benchmark::State& state) {
    state.counters["pic_MiB"] = pic_memoire_mib();
}

}  // namespace kestrel::bench

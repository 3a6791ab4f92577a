// What a fuzz input goes through once its file was read: the period check
// that every run passes, then a few steps of the power run and of the
// attitude run from the state the file left, as `kestrel power` and
// `kestrel attitude` would start them.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace kestrel {
struct Etat;
}

namespace kestrel::fuzz {

inline std::string octets(const uint8_t* d, std::size_t n) { return {reinterpret_cast<const char*>(d), n}; }

// Nothing runs when the period is refused. The step is held to an hour so
// that an input costs milliseconds: a power step of a year holds 31 million
// one-second thermal passes, which is slow, not wrong.
void court_run(const Etat& lu);

// Stops the fuzzer on a broken property (the input is kept as a finding).
void exige(bool condition, const char* quoi);

}  // namespace kestrel::fuzz

// Parameter sweeps: the values of each swept field, the Cartesian product of
// them as numbered cases, the K-th of N slices of those cases, and a pool of
// threads that works the cases out of order but hands their results back in
// case order.
#pragma once
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace kestrel {

struct Balayage {
    std::string nom;              // field name as `kestrel project show` prints it
    std::vector<double> valeurs;  // in the order given
};

// "v1,v2,..." or "start:stop:count" (count values evenly spaced, ends
// included). Empty with `erreur` set when the text reads as neither.
std::vector<double> lit_valeurs(const std::string& texte, std::string& erreur);

// Number of cases of the product (1 for no sweep at all).
std::size_t nb_cas(const std::vector<Balayage>& b);

// Values of case `i` (0-based), one per sweep; the last sweep varies fastest.
std::vector<double> valeurs_du_cas(const std::vector<Balayage>& b, std::size_t i);

// Cases [debut, fin) of slice k (1-based) of n equal slices of `total`;
// the n slices end to end give 0 .. total.
struct Tranche { std::size_t debut = 0, fin = 0; };
Tranche tranche(std::size_t total, std::size_t k, std::size_t n);

// Runs calcule(i) for every i of the slice on `jobs` threads (at least 1) and
// calls rend(i, result) on the calling thread in increasing i, each as soon
// as it and every earlier case are done. calcule must touch no shared state.
void lance_cas(Tranche t, unsigned jobs, const std::function<std::string(std::size_t)>& calcule,
               const std::function<void(std::size_t, const std::string&)>& rend);

}  // namespace kestrel

#include "cli/progression.h"

#include <unistd.h>

#include <chrono>
#include <cmath>
#include <iostream>

namespace kestrel::cli {

namespace {

double secondes() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

Progression::Progression(std::string titre, bool quiet)
    : Progression(std::move(titre), !quiet && ::isatty(STDERR_FILENO), secondes, std::cerr) {}

Progression::Progression(std::string titre, bool actif, Horloge horloge, std::ostream& flux)
    : titre_(std::move(titre)), actif_(actif), horloge_(std::move(horloge)), flux_(&flux) {
    if (actif_) depart_ = horloge_();
}

void Progression::montre(const std::string& texte) {
    if (!affichee_ && horloge_() - depart_ < 1.0) return;
    affichee_ = true;
    *flux_ << '\r' << titre_ << " : " << texte << std::flush;
}

void Progression::pourcent(double pc) {
    if (!actif_ || finie_ || !(pc >= 0)) return;
    const long n = pc >= 100 ? 100 : static_cast<long>(pc);
    if (n == dernier_) return;  // the clock is read only when the line would change
    dernier_ = n;
    montre(std::to_string(n) + " %");
}

void Progression::compte(std::size_t n, std::size_t total) {
    if (!actif_ || finie_ || static_cast<long>(n) == dernier_) return;
    dernier_ = static_cast<long>(n);
    montre(std::to_string(n) + " / " + std::to_string(total) + " cas");
}

void Progression::termine() {
    if (finie_) return;
    finie_ = true;
    if (affichee_) *flux_ << '\n' << std::flush;
}

}  // namespace kestrel::cli

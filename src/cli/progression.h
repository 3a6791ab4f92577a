// The progress line of a long run on standard error, rewritten in place
// ("\rpower : 42 %"). It appears once the run has lasted a second, and never
// with --quiet or when standard error is not a terminal (a log file or a pipe
// gets no carriage returns). Ends with a line break when it was shown.
#pragma once
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

namespace kestrel::cli {

class Progression {
public:
    using Horloge = std::function<double()>;  // s, any origin

    // Standard error, the steady clock, shown only on a terminal and without --quiet.
    Progression(std::string titre, bool quiet);
    // For tests: `actif` stands for "a terminal and no --quiet".
    Progression(std::string titre, bool actif, Horloge horloge, std::ostream& flux);
    ~Progression() { termine(); }
    Progression(const Progression&) = delete;
    Progression& operator=(const Progression&) = delete;

    // Share done, 0..100; the line changes with its whole part.
    void pourcent(double pc);
    // Date j of a run from debut to fin (days).
    void date(double j, double debut, double fin) {
        pourcent(fin > debut ? 100.0 * (j - debut) / (fin - debut) : 100.0);
    }
    // "n / total cas", for runs counted in cases.
    void compte(std::size_t n, std::size_t total);
    // Ends the line if it was shown (once); the next message starts on its own line.
    void termine();

    bool affichee() const { return affichee_; }

private:
    // The line `texte` once the run has lasted a second.
    void montre(const std::string& texte);

    std::string titre_;
    bool actif_;
    Horloge horloge_;
    std::ostream* flux_;
    double depart_ = 0;
    long dernier_ = -1;  // last whole percent or count shown
    bool affichee_ = false, finie_ = false;
};

}  // namespace kestrel::cli

// Where a sub-command writes its rows: standard output or the --out file,
// through one buffer. The first write failure is kept; ferme() flushes and
// closes, checking each, and reports a failure with the file's name. What was
// written before a failure stays.
#pragma once
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace kestrel::cli {

class Sortie {
public:
    // Empty path: standard output. A file that cannot be created leaves ok() false.
    explicit Sortie(const std::string& chemin);
    ~Sortie();
    Sortie(const Sortie&) = delete;
    Sortie& operator=(const Sortie&) = delete;

    Sortie& operator<<(std::string_view s);
    Sortie& operator<<(char c) { return *this << std::string_view(&c, 1); }

    // No failure so far (opening included). A run stops writing once false.
    bool ok() const { return erreur_ == 0; }
    // « path » or "la sortie standard", for messages.
    std::string nom() const;
    // The French sentence for the failure met, empty when none.
    std::string message() const;
    // Flushes and closes; false after any failure. Safe to call twice.
    bool ferme();

private:
    void echec(int e);

    std::string chemin_;
    std::FILE* f_ = nullptr;
    std::unique_ptr<char[]> tampon_;
    int erreur_ = 0;  // errno of the first failure, 0 while all went well
    bool ouverte_ = false;  // the file (or stdout) was there to write to
};

// ferme(), then on failure the message on stderr. Returns the exit code.
int termine(Sortie& s, int code_si_ok);

}  // namespace kestrel::cli

// Where a sub-command writes its rows: standard output or the --out file,
// through one buffer. Numbers go straight into that buffer in the shortest
// form that reads back to the same double. The first write failure is kept;
// ferme() flushes and closes, checking each, and reports a failure with the
// file's name. What was written before a failure stays.
#pragma once
#include <cmath>
#include <cstdio>
#include <memory>
#include <span>
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
    Sortie& operator<<(char c) {
        if (n_ == TAILLE) vide();
        tampon_[n_++] = c;
        return *this;
    }
    // Shortest text that reads back as x ("0.1", "-0", "1e+300"); no locale.
    Sortie& nombre(double x);
    Sortie& entier(long long n);
    // One CSV row: the numbers comma-separated, then a line break.
    Sortie& ligne(std::span<const double> v);

    // For a row written in place: room for n more bytes (n <= TAILLE), where
    // to write them, then avance() past what was written.
    char* place(std::size_t n) {
        if (TAILLE - n_ < n) vide();
        return tampon_.get() + n_;
    }
    void avance(const char* fin) { n_ = static_cast<std::size_t>(fin - tampon_.get()); }

    // No failure so far (opening included). A run stops writing once false.
    bool ok() const { return erreur_ == 0; }
    // « path » or "la sortie standard", for messages.
    std::string nom() const;
    // The French sentence for the failure met, empty when none.
    std::string message() const;
    // Flushes and closes; false after any failure. Safe to call twice.
    bool ferme();

    static constexpr std::size_t TAILLE = 1 << 16;  // bytes held before a write

private:
    void echec(int e);
    void vide();  // hands the buffer to the file

    std::string chemin_;
    std::FILE* f_ = nullptr;
    std::unique_ptr<char[]> tampon_;
    std::size_t n_ = 0;     // bytes waiting in tampon_
    int erreur_ = 0;        // errno of the first failure, 0 while all went well
    bool ouverte_ = false;  // the file (or stdout) was there to write to
};

// ferme(), then on failure the message on stderr. Returns the exit code.
int termine(Sortie& s, int code_si_ok);

// Room that ecrit_nombre() may need: "-2.2250738585072014e-308" is 24 characters.
constexpr std::size_t LARGEUR_NOMBRE = 32;

char* ecrit_nombre_non_nul(char* p, double x);

// Writes at p the shortest text that reads back as x ("0.1", "-0", "1e+300",
// no locale) and returns its end. Zero, most cells of a power row, inline.
inline char* ecrit_nombre(char* p, double x) {
    if (x != 0) return ecrit_nombre_non_nul(p, x);
    if (std::signbit(x)) *p++ = '-';
    *p++ = '0';
    return p;
}

// The same text as a string.
std::string texte_nombre(double x);

}  // namespace kestrel::cli

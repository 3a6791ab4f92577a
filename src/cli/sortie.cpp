#include "cli/sortie.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <iostream>

#include <fmt/format.h>

#include "cli/commun.h"
#include "core/shell/erreur.h"

namespace kestrel::cli {

Sortie::Sortie(const std::string& chemin) : chemin_(chemin), tampon_(new char[TAILLE]) {
    errno = 0;
    f_ = chemin.empty() ? stdout : std::fopen(chemin.c_str(), "wb");
    if (!f_) {
        echec(errno ? errno : EIO);
        return;
    }
    ouverte_ = true;
}

Sortie::~Sortie() { ferme(); }

void Sortie::echec(int e) {
    if (erreur_ == 0) erreur_ = e ? e : EIO;
}

void Sortie::vide() {
    if (n_ == 0) return;
    if (f_ && ok()) {
        errno = 0;
        if (std::fwrite(tampon_.get(), 1, n_, f_) != n_) echec(errno);
    }
    n_ = 0;
}

Sortie& Sortie::operator<<(std::string_view s) {
    if (s.size() > TAILLE - n_) {
        vide();
        if (s.size() > TAILLE) {  // a large block goes to the file as it is
            if (f_ && ok()) {
                errno = 0;
                if (std::fwrite(s.data(), 1, s.size(), f_) != s.size()) echec(errno);
            }
            return *this;
        }
    }
    std::memcpy(tampon_.get() + n_, s.data(), s.size());
    n_ += s.size();
    return *this;
}

Sortie& Sortie::nombre(double x) {
    avance(ecrit_nombre(place(LARGEUR_NOMBRE), x));
    return *this;
}

Sortie& Sortie::ligne(std::span<const double> v) {
    // written in place, in one piece when the buffer holds it whole
    const std::size_t par_bloc = TAILLE / (LARGEUR_NOMBRE + 1);
    for (std::size_t debut = 0; debut < v.size(); debut += par_bloc) {
        const std::size_t n = std::min(par_bloc, v.size() - debut);
        char* c = place(n * (LARGEUR_NOMBRE + 1) + 1);
        for (std::size_t i = debut; i < debut + n; ++i) {
            if (i) *c++ = ',';
            c = ecrit_nombre(c, v[i]);
        }
        avance(c);
    }
    return *this << '\n';
}

Sortie& Sortie::entier(long long n) {
    char* p = place(LARGEUR_NOMBRE);
    avance(std::to_chars(p, p + LARGEUR_NOMBRE, n).ptr);
    return *this;
}

std::string Sortie::nom() const {
    return chemin_.empty() ? std::string("la sortie standard") : "« " + texte_lisible(chemin_, 300) + " »";
}

std::string Sortie::message() const {
    if (ok()) return {};
    if (!ouverte_) return fmt::format("impossible de créer {} : {}", nom(), cause_systeme(erreur_));
    return fmt::format("erreur d'écriture dans {} : {}", nom(), cause_systeme(erreur_));
}

bool Sortie::ferme() {
    if (!f_) return ok();
    vide();
    errno = 0;
    if (std::fflush(f_) != 0 || std::ferror(f_)) echec(errno);
    errno = 0;
    // stdout is closed too: a failure of the last write shows only there
    if (std::fclose(f_) != 0) echec(errno);
    f_ = nullptr;
    return ok();
}

int termine(Sortie& s, int code_si_ok) {
    if (s.ferme()) return code_si_ok;
    std::cerr << "kestrel: " << s.message() << "\n";
    return code_si_ok == SORTIE_OK ? SORTIE_ECHEC : code_si_ok;
}

char* ecrit_nombre_non_nul(char* p, double x) {
    // Whole numbers of at most four digits have the same shortest text as an
    // int, which costs a fraction of the float path. Past four digits "1e+04"
    // can be as short, so to_chars decides.
    if (x > -10000 && x < 10000 && x == static_cast<double>(static_cast<int>(x)))
        return std::to_chars(p, p + LARGEUR_NOMBRE, static_cast<int>(x)).ptr;
    return std::to_chars(p, p + LARGEUR_NOMBRE, x).ptr;
}

std::string texte_nombre(double x) {
    char t[LARGEUR_NOMBRE];
    return std::string(t, ecrit_nombre(t, x));
}

}  // namespace kestrel::cli

#include "cli/sortie.h"

#include <cerrno>
#include <iostream>

#include <fmt/format.h>

#include "cli/commun.h"
#include "core/shell/erreur.h"

namespace kestrel::cli {

namespace {
constexpr std::size_t TAILLE = 1 << 16;
}  // namespace

Sortie::Sortie(const std::string& chemin) : chemin_(chemin), tampon_(new char[TAILLE]) {
    errno = 0;
    f_ = chemin.empty() ? stdout : std::fopen(chemin.c_str(), "wb");
    if (!f_) {
        echec(errno ? errno : EIO);
        return;
    }
    ouverte_ = true;
    std::setvbuf(f_, tampon_.get(), _IOFBF, TAILLE);
}

Sortie::~Sortie() { ferme(); }

void Sortie::echec(int e) {
    if (erreur_ == 0) erreur_ = e ? e : EIO;
}

Sortie& Sortie::operator<<(std::string_view s) {
    if (!f_ || !ok() || s.empty()) return *this;
    errno = 0;
    if (std::fwrite(s.data(), 1, s.size(), f_) != s.size()) echec(errno);
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

}  // namespace kestrel::cli

#include "core/shell/lecture_fichier.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace kestrel {

namespace {

Erreur refus(CodeErreur code, const std::string& chemin, double valeur = 0.0) {
    Erreur e;
    e.code = code;
    e.detail = chemin;
    e.valeur = valeur;
    return e;
}

// The kind of file from its mode; aucune for a plain file within the size.
Erreur examine(const struct stat& st, const std::string& chemin, std::size_t max) {
    if (S_ISDIR(st.st_mode)) return refus(CodeErreur::fichier_dossier, chemin);
    if (S_ISCHR(st.st_mode) || S_ISBLK(st.st_mode)) return refus(CodeErreur::fichier_peripherique, chemin);
    if (S_ISFIFO(st.st_mode)) return refus(CodeErreur::fichier_tube, chemin);
    if (!S_ISREG(st.st_mode)) return refus(CodeErreur::fichier_special, chemin);
    if (static_cast<std::size_t>(st.st_size) > max)
        return refus(CodeErreur::fichier_trop_gros, chemin, static_cast<double>(st.st_size));
    return {};
}

// The descriptor closed on every way out.
struct Descripteur {
    int fd;
    ~Descripteur() {
        if (fd >= 0) ::close(fd);
    }
};

}  // namespace

bool refus_fichier(const Erreur& e) {
    switch (e.code) {
        case CodeErreur::fichier_dossier:
        case CodeErreur::fichier_peripherique:
        case CodeErreur::fichier_tube:
        case CodeErreur::fichier_special:
        case CodeErreur::fichier_trop_gros: return true;
        default: return false;
    }
}

Erreur lit_fichier_projet(const std::string& chemin, std::string& contenu, std::size_t max) {
    contenu.clear();
    const auto illisible = [&] { return refus(CodeErreur::fichier_illisible, chemin, errno ? errno : EIO); };
    // Look before opening: opening a device can already have an effect, and
    // a pipe with no writer would hold a plain open forever.
    struct stat st {};
    if (::stat(chemin.c_str(), &st) != 0) return illisible();
    if (Erreur e = examine(st, chemin, max)) return e;
    // Non-blocking in case the path was swapped for a pipe since; the second
    // look is on what was really opened.
    Descripteur f{::open(chemin.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)};
    if (f.fd < 0) return illisible();
    if (::fstat(f.fd, &st) != 0) return illisible();
    if (Erreur e = examine(st, chemin, max)) return e;

    // Read in pieces up to one past the cap: a file that grows while read
    // (or a size the system does not know, as in /proc) is still bounded.
    std::string lu;
    char tampon[1 << 16];
    while (lu.size() <= max) {
        const ssize_t k = ::read(f.fd, tampon, sizeof tampon);
        if (k < 0 && errno == EINTR) continue;
        if (k < 0) return illisible();
        if (k == 0) break;
        lu.append(tampon, static_cast<std::size_t>(k));
    }
    if (lu.size() > max) return refus(CodeErreur::fichier_trop_gros, chemin, static_cast<double>(lu.size()));
    contenu = std::move(lu);
    return {};
}

}  // namespace kestrel

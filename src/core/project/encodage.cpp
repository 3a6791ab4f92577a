#include "core/project/encodage.h"

#include <iconv.h>

#include <cerrno>

namespace kestrel {

namespace {

// One iconv pass over the whole text. remplace: on an invalid input byte,
// write "?" and go on; otherwise give up.
std::optional<std::string> convertit(const char* vers, const char* depuis, const std::string& texte,
                                     bool remplace) {
    iconv_t cd = iconv_open(vers, depuis);
    if (cd == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
    std::string sortie(texte.size() * 3 + 16, '\0');
    char* entree = const_cast<char*>(texte.data());
    std::size_t reste_entree = texte.size();
    char* ecrit = sortie.data();
    std::size_t reste_sortie = sortie.size();
    bool ok = true;
    while (reste_entree > 0) {
        if (iconv(cd, &entree, &reste_entree, &ecrit, &reste_sortie) != static_cast<std::size_t>(-1)) break;
        if ((errno == EILSEQ || errno == EINVAL) && remplace && reste_sortie > 0) {
            *ecrit++ = '?';
            --reste_sortie;
            ++entree;
            --reste_entree;
            continue;
        }
        ok = false;
        break;
    }
    iconv_close(cd);
    if (!ok) return std::nullopt;
    sortie.resize(sortie.size() - reste_sortie);
    return sortie;
}

}  // namespace

std::optional<std::string> vers_cp1252(const std::string& utf8) {
    return convertit("WINDOWS-1252", "UTF-8", utf8, false);
}

std::string depuis_cp1252(const std::string& cp1252) {
    auto r = convertit("UTF-8", "WINDOWS-1252", cp1252, true);
    return r ? *r : cp1252;
}

}  // namespace kestrel

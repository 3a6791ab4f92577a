#include "core/attitude/page_resultats.h"

#include <charconv>
#include <cmath>
#include <fstream>

namespace kestrel {

bool lit_page_resultats(const std::string& chemin, int page, PageResultats& p) {
    p = {};
    std::ifstream f(chemin, std::ios::binary);
    if (!f) return false;
    std::string ligne;
    for (int i = 0; i < 5 && std::getline(f, ligne); ++i) {
    }
    for (long i = 0; i < static_cast<long>(page) * PageResultats::lignes && std::getline(f, ligne); ++i) {
    }
    while (p.n < PageResultats::lignes && std::getline(f, ligne)) {
        if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
        if (ligne.empty()) break;
        const char* c = ligne.data();
        const char* fin = c + ligne.size();
        auto& rangee = p.v[p.n];
        for (int k = 0; k < PageResultats::colonnes && c < fin; ++k) {
            while (c < fin && *c == ' ') ++c;
            const auto r = std::from_chars(c, fin, rangee[k]);
            c = r.ptr;
            while (c < fin && *c != ',') ++c;
            if (c < fin) ++c;  // the comma
        }
        ++p.n;
    }
    return true;
}

int pages_resultats(double debut, double fin, double pas_j) {
    return static_cast<int>(std::nearbyint((fin - debut) / pas_j / 1000 + 1));
}

int max_defilement(double debut, double fin, double pas_j, int pages) {
    return static_cast<int>(std::nearbyint((fin - debut) / pas_j / 1000 / pages));
}

}  // namespace kestrel

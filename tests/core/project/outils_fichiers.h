// Small helpers shared by the project-file tests.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

namespace kestrel::essai {

// A fresh folder per test and per process (two builds may run the same
// test at once), removed at the end.
struct DossierTemporaire {
    std::filesystem::path chemin;
    explicit DossierTemporaire(const std::string& nom)
        : chemin(std::filesystem::temp_directory_path() /
                 ("kestrel_essai_" + nom + "_" + std::to_string(::getpid()))) {
        std::filesystem::remove_all(chemin);
        std::filesystem::create_directories(chemin);
    }
    ~DossierTemporaire() {
        std::error_code ec;
        std::filesystem::remove_all(chemin, ec);
    }
    std::string operator/(const std::string& f) const { return (chemin / f).string(); }
};

inline std::string lit_octets(const std::string& chemin) {
    std::ifstream f(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

inline void ecrit_octets(const std::string& chemin, const std::string& octets) {
    std::ofstream(chemin, std::ios::binary | std::ios::trunc) << octets;
}

// Lines without their CR LF ends.
inline std::vector<std::string> lignes(const std::string& texte) {
    std::vector<std::string> r;
    for (std::size_t a = 0, b = 0; a < texte.size(); a = b + 2) {
        b = std::min(texte.find("\r\n", a), texte.size());
        r.push_back(texte.substr(a, b - a));
    }
    return r;
}

// A named field against its hand-worked value, compared exactly: float and
// 16-bit fields widen to double without loss, so a float field is written
// against a float literal.
struct Valeur {
    template <class L, class A>
    Valeur(const char* n, L l, A a) : nom(n), lu(static_cast<double>(l)), attendu(static_cast<double>(a)) {}
    const char* nom;
    double lu, attendu;
};
inline void attend(std::initializer_list<Valeur> valeurs) {
    for (const auto& v : valeurs) EXPECT_EQ(v.lu, v.attendu) << v.nom;
}

}  // namespace kestrel::essai

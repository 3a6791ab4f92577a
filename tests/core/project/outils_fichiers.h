// Small file helpers shared by the project-file tests.
#pragma once
#include <unistd.h>

#include <filesystem>
#include <fstream>
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
    std::ofstream f(chemin, std::ios::binary | std::ios::trunc);
    f.write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

// Lines without their CR LF ends.
inline std::vector<std::string> lignes(const std::string& texte) {
    std::vector<std::string> r;
    std::size_t a = 0;
    while (a < texte.size()) {
        auto b = texte.find("\r\n", a);
        if (b == std::string::npos) b = texte.size();
        r.push_back(texte.substr(a, b - a));
        a = b + 2;
    }
    return r;
}

inline std::string joint(const std::vector<std::string>& l) {
    std::string t;
    for (const auto& s : l) t += s + "\r\n";
    return t;
}

}  // namespace kestrel::essai

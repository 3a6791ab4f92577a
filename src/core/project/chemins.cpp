#include <filesystem>

#include "core/project/chemins.h"

namespace kestrel {

bool fichier_existe(const std::string& chemin) {
    std::error_code ec;
    const auto st = std::filesystem::status(chemin, ec);
    if (ec) return false;
    return std::filesystem::exists(st) && !std::filesystem::is_directory(st);
}

std::string extrait_nom_fichier(const std::string& chemin) {
    const auto a = chemin.find_first_not_of(' ');
    if (a == std::string::npos) return {};
    const auto b = chemin.find_last_not_of(' ');
    std::string nom = chemin.substr(a, b - a + 1);
    // Both separators: the files may come from either kind of system.
    const auto sep = nom.find_last_of("\\/");
    if (sep != std::string::npos) nom.erase(0, sep + 1);
    const auto point = nom.rfind('.');
    if (point != std::string::npos) nom.erase(point);
    return nom;
}

}  // namespace kestrel

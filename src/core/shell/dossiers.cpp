#include "core/shell/dossiers.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace kestrel {

std::string dossier_executable() {
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec || !exe.has_parent_path()) return fs::current_path(ec).string();
    return exe.parent_path().string();
}

std::vector<std::string> dossiers_donnees(const std::string& dossier_exe) {
    const fs::path exe = dossier_exe.empty() ? fs::path(".") : fs::path(dossier_exe);
    const fs::path candidats[] = {exe, (exe / ".." / "share" / "kestrel").lexically_normal(),
                                  fs::path("/usr/share/kestrel")};
    std::vector<std::string> dossiers;
    for (const fs::path& c : candidats) {
        std::string s = c.string();
        // "a/b/" and "a/b" are the same folder
        while (s.size() > 1 && s.back() == '/') s.pop_back();
        if (std::find(dossiers.begin(), dossiers.end(), s) == dossiers.end()) dossiers.push_back(s);
    }
    return dossiers;
}

std::string dossier_donnees(const std::string& dossier_exe) {
    for (const std::string& d : dossiers_donnees(dossier_exe)) {
        std::error_code ec;
        if (fs::is_regular_file(fs::path(d) / "flux_solaire.txt", ec) &&
            fs::is_regular_file(fs::path(d) / "densite.txt", ec))
            return d;
    }
    return dossier_exe;
}

bool dossier_installe(const std::string& dossier) {
    const fs::path p = fs::path(dossier).lexically_normal();
    const fs::path d = p.has_filename() ? p : p.parent_path();  // "…/kestrel/" too
    return d.filename() == "kestrel" && d.parent_path().filename() == "share";
}

std::string liste_dossiers_cherches() {
    std::string liste;
    for (const std::string& d : dossiers_donnees(dossier_executable())) {
        if (!liste.empty()) liste += ", ";
        liste += d;
    }
    return liste;
}

}  // namespace kestrel

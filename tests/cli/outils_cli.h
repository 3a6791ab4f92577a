// Runs the built `kestrel` as a user would. Every test process gets its own
// scratch folder, so test cases that ctest runs side by side never share a file.
#pragma once
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace kestrel::test {

namespace fs = std::filesystem;

// Exit code, standard output, standard error.
struct Resultat { int code = -1; std::string out, err; };

inline std::string lit_fichier(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

// Empty folder private to this test process, removed when the process ends.
inline fs::path dossier_test() {
    static const struct Dossier {
        fs::path p = fs::temp_directory_path() / ("kestrel_test_" + std::to_string(::getpid()));
        Dossier() { fs::remove_all(p); fs::create_directories(p); }
        ~Dossier() { std::error_code ec; fs::remove_all(p, ec); }
    } d;
    return d.p;
}

// Empty sub-folder `nom` of the process's folder (emptied again at each call).
inline fs::path dossier_vide(const std::string& nom) {
    const fs::path p = dossier_test() / nom;
    fs::remove_all(p);
    fs::create_directories(p);
    return p;
}

// `kestrel arguments` with standard output sent to `sortie` (e.g. /dev/full);
// standard error captured.
inline Resultat lance_vers(const std::string& arguments, const fs::path& sortie, const std::string& exe = KESTREL_EXE) {
    const fs::path err = dossier_test() / "stderr.txt";
    const std::string cmd = "\"" + exe + "\" " + arguments + " > \"" + sortie.string() + "\" 2> \"" + err.string() + "\"";
    const int s = std::system(cmd.c_str());
    return {WIFEXITED(s) ? WEXITSTATUS(s) : -1, {}, lit_fichier(err)};
}

// `exe arguments`, both streams captured.
inline Resultat lance(const std::string& arguments, const std::string& exe = KESTREL_EXE) {
    const fs::path out = dossier_test() / "stdout.txt";
    Resultat r = lance_vers(arguments, out, exe);
    r.out = lit_fichier(out);
    return r;
}

inline std::vector<std::string> decoupe(const std::string& texte, char sep) {
    std::vector<std::string> v;
    std::istringstream f(texte);
    for (std::string x; std::getline(f, x, sep);) v.push_back(x);
    return v;
}
inline std::vector<std::string> lignes(const std::string& texte) { return decoupe(texte, '\n'); }
inline std::vector<std::string> champs(const std::string& ligne) { return decoupe(ligne, ','); }

// A run's expected exit code and a part of its one-line message.
struct Attendu {
    std::string arguments;
    int code;
    std::string message;  // a part of stderr
    std::string sortie = "";  // where standard output goes (e.g. /dev/full); empty: captured
};

// The run ends with its code and one message on one line, bounded in time: a
// run that would wait forever is ended after 20 s (exit 124).
inline void verifie_une_ligne(const Attendu& a) {
    const std::string commande = std::string("20 \"") + KESTREL_EXE + "\" " + a.arguments;
    const Resultat r = a.sortie.empty() ? lance(commande, "timeout") : lance_vers(commande, a.sortie, "timeout");
    EXPECT_EQ(r.code, a.code) << a.arguments << "\n" << r.err;
    EXPECT_NE(r.err.find(a.message), std::string::npos) << a.arguments << "\n" << r.err;
    const auto m = r.err.find("kestrel: ");
    EXPECT_EQ(r.err.find("kestrel: ", m + 1), std::string::npos) << r.err;
    EXPECT_EQ(r.err.find('\n', m), r.err.size() - 1) << r.err;
}

}  // namespace kestrel::test

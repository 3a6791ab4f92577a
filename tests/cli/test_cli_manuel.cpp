// The manual page follows the help: every sub-command that `kestrel --help`
// lists has its section in packaging/man/kestrel.1 ("kestrel orbit",
// "kestrel project new"...), and the options of its --help and of that section
// are the same. A new option or sub-command fails here until the page says it.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "outils_cli.h"

using namespace kestrel::test;

namespace {

// The sub-commands listed under "Subcommands:" of a help text.
std::vector<std::string> sous_commandes(const std::string& aide) {
    std::vector<std::string> noms;
    bool dedans = false;
    for (const std::string& l : lignes(aide)) {
        if (l.rfind("Subcommands:", 0) == 0) { dedans = true; continue; }
        if (!dedans) continue;
        std::smatch m;
        if (std::regex_search(l, m, std::regex("^  ([a-z][a-z0-9_-]*)( |$)"))) noms.push_back(m[1]);
        else if (!l.empty() && l[0] != ' ') dedans = false;
    }
    return noms;
}

// Long options written in a text: "--name" in help, "\-\-name" in troff.
std::set<std::string> options(const std::string& texte, const std::string& tiret) {
    std::set<std::string> o;
    const std::regex motif(tiret + tiret + "([a-z][a-z0-9-]*(\\\\-[a-z0-9]+)*)");
    for (auto it = std::sregex_iterator(texte.begin(), texte.end(), motif); it != std::sregex_iterator(); ++it) {
        std::string nom = (*it)[1];
        for (std::size_t p; (p = nom.find("\\-")) != std::string::npos;) nom.replace(p, 2, "-");
        o.insert(nom);
    }
    o.erase("help");  // every sub-command has it; the page says it once
    return o;
}

// The section ".SS "kestrel <chemin>"" of the page, up to the next heading.
std::string section(const std::string& page, const std::string& chemin) {
    const std::string titre = ".SS \"kestrel " + chemin + "\"\n";
    const std::size_t debut = page.find(titre);
    if (debut == std::string::npos) return {};
    std::size_t fin = page.find("\n.S", debut + titre.size());
    return page.substr(debut + titre.size(), fin == std::string::npos ? std::string::npos : fin - debut - titre.size());
}

}  // namespace

TEST(Manuel, ChaqueSousCommandeEtSesOptions) {
    const std::string page = lit_fichier(fs::path(KESTREL_SOURCE_DIR) / "packaging" / "man" / "kestrel.1");
    ASSERT_FALSE(page.empty());
    std::vector<std::string> a_voir = sous_commandes(lance("--help").out);
    ASSERT_GE(a_voir.size(), 4u);  // orbit, project, power, attitude at least
    int sections = 0;
    while (!a_voir.empty()) {
        const std::string chemin = a_voir.back();
        a_voir.pop_back();
        const std::string aide = lance(chemin + " --help").out;
        const std::vector<std::string> filles = sous_commandes(aide);
        if (!filles.empty()) {  // a group such as "project": its members have the sections
            for (const std::string& f : filles) a_voir.push_back(chemin + " " + f);
            continue;
        }
        const std::string s = section(page, chemin);
        ASSERT_FALSE(s.empty()) << "packaging/man/kestrel.1 : ajouter la section .SS \"kestrel " << chemin << "\"";
        EXPECT_EQ(options(s, "\\\\-"), options(aide, "-"))
            << "packaging/man/kestrel.1 : les options de « kestrel " << chemin << " » diffèrent de son --help";
        ++sections;
    }
    EXPECT_GE(sections, 5);
    // the options of the program itself
    EXPECT_NE(page.find("\\-\\-version"), std::string::npos);
}

#include "cli/arguments.h"

#include <cmath>
#include <cstdlib>
#include <regex>
#include <sstream>

#include <fmt/format.h>

#include "cli/commun.h"
#include "core/shell/erreur.h"

namespace kestrel::cli {

namespace {

// What the user typed, quoted, escaped and cut.
std::string cite(const std::string& s) { return "« " + texte_lisible(s, 60) + " »"; }

// A bound written by the parser ("32767.000000", "179769313…000.000000") as
// people write it.
std::string borne(const std::string& texte) { return nombre_lisible(std::strtod(texte.c_str(), nullptr)); }

// The parser's check messages that reach us in English, after "NAME: ".
std::string controle(const std::string& nom, const std::string& m) {
    std::smatch r;
    if (std::regex_match(m, r, std::regex("Value (.*) not in range (\\S+) to (\\S+)")))
        return fmt::format("{} : {} hors de [{}, {}]", nom, cite(r[1]), borne(r[2]), borne(r[3]));
    if (std::regex_match(m, r, std::regex("(.*) not in \\{(.*)\\}")))
        return fmt::format("{} : {} n'est pas parmi {}", nom, cite(r[1]), r[2].str());
    if (std::regex_match(m, r, std::regex("Value (.*) could not be converted")))
        return fmt::format("{} : valeur illisible {}", nom, cite(r[1]));
    return fmt::format("{} : {}", nom, m);
}

// The parser lists the extra arguments last first.
std::string dans_l_ordre(const std::string& inverses) {
    std::vector<std::string> mots;
    std::istringstream f(inverses);
    for (std::string m; std::getline(f, m, ' ');) mots.push_back(m);
    std::string r;
    for (auto m = mots.rbegin(); m != mots.rend(); ++m) r += (r.empty() ? "" : " ") + *m;
    return r;
}

struct Forme {
    std::regex motif;
    std::string (*texte)(const std::smatch&);
};

// The parser's sentences, most specific first; its own English text is only
// a last resort.
const std::vector<Forme>& formes() {
    static const std::vector<Forme> f{
        {std::regex("The following arguments? (?:was|were) not expected: (.*)"),
         [](const std::smatch& r) { return "argument inconnu ou en trop : " + cite(dans_l_ordre(r[1])); }},
        {std::regex("A subcommand(?: is required)?"),
         [](const std::smatch&) { return std::string("une sous-commande est attendue"); }},
        {std::regex("(.*) is required"), [](const std::smatch& r) { return r[1].str() + " est obligatoire"; }},
        {std::regex("Expected (?:exactly|at least) (\\d+) arguments? to (\\S+), got (\\d+)"),
         [](const std::smatch& r) {
             return fmt::format("{} : {} valeur(s) attendue(s), {} reçue(s)", r[2].str(), r[1].str(), r[3].str());
         }},
        {std::regex("(\\S+): At (?:least|Most) (\\d+) required but received (\\d+)"),
         [](const std::smatch& r) {
             return fmt::format("{} : {} valeur(s) attendue(s), {} reçue(s)", r[1].str(), r[2].str(), r[3].str());
         }},
        {std::regex("(\\S+): (\\d+) required .* missing"),
         [](const std::smatch& r) { return fmt::format("{} : {} valeur(s) attendue(s)", r[1].str(), r[2].str()); }},
        {std::regex("Could not convert: (\\S+) = (.*)"),
         [](const std::smatch& r) { return r[1].str() + " : valeur illisible " + cite(r[2]); }},
        {std::regex("The value (.*) is not an allowed value for (\\S+)"),
         [](const std::smatch& r) { return r[2].str() + " : valeur illisible " + cite(r[1]); }},
        {std::regex("(\\S+): too many inputs for a flag"),
         [](const std::smatch& r) { return r[1].str() + " ne prend pas de valeur"; }},
        {std::regex("(\\S+) excludes (\\S+)"),
         [](const std::smatch& r) { return r[1].str() + " et " + r[2].str() + " s'excluent : l'un ou l'autre"; }},
        {std::regex("(\\S+) requires (\\S+)"),
         [](const std::smatch& r) { return r[1].str() + " demande aussi " + r[2].str(); }},
    };
    return f;
}

}  // namespace

std::string message_arguments(const CLI::ParseError& e) {
    const std::string m = e.what();
    std::smatch r;
    if (dynamic_cast<const CLI::ValidationError*>(&e)) {
        // "NAME: message", the message ours (French) or the parser's check
        if (std::regex_match(m, r, std::regex("(-{0,2}[A-Za-z0-9_-]+): ([\\s\\S]*)"))) return controle(r[1], r[2]);
    }
    for (const Forme& f : formes())
        if (std::regex_match(m, r, f.motif)) return f.texte(r);
    return "arguments refusés : " + texte_lisible(m, 200);
}

std::string aide(CLI::App& app) {
    std::string c = "kestrel";
    for (CLI::App* a = &app; a;) {
        CLI::App* suivante = nullptr;
        for (CLI::App* sous : a->get_subcommands({}))
            if (sous->parsed()) suivante = sous;
        if (suivante) c += " " + suivante->get_name();
        a = suivante;
    }
    return c + " --help";
}

CLI::Validator entre(double min, double max) {
    return CLI::Validator(
        [min, max](std::string& texte) -> std::string {
            char* reste = nullptr;
            const double x = std::strtod(texte.c_str(), &reste);
            if (texte.empty() || *reste != '\0' || !(x >= min && x <= max))
                return fmt::format("{} hors de [{}, {}]", cite(texte), nombre_lisible(min), nombre_lisible(max));
            return {};
        },
        fmt::format("[{}, {}]", nombre_lisible(min), nombre_lisible(max)));
}

CLI::Validator parmi(std::vector<std::string> mots) {
    std::string liste;
    for (const auto& m : mots) liste += (liste.empty() ? "" : ", ") + m;
    return CLI::Validator(
        [mots, liste](std::string& texte) -> std::string {
            for (const auto& m : mots)
                if (texte == m) return {};
            return cite(texte) + " n'est pas parmi " + liste;
        },
        "{" + liste + "}");
}

void refuse_non_finis(CLI::App& app) {
    // no description: the help of the option stays as its author wrote it
    CLI::Validator fini = nombres_finis();
    fini.description("");
    for (CLI::Option* o : app.get_options())
        if (o->get_type_name().rfind("FLOAT", 0) == 0) o->check(fini);
    for (CLI::App* sous : app.get_subcommands({})) refuse_non_finis(*sous);
}

}  // namespace kestrel::cli

// Bad arguments: exit 2 and one French line each, numbers as people write
// them, what the user typed quoted with its control characters escaped, and
// the help of the sub-command being read.
#include <gtest/gtest.h>

#include <string>

#include "cli/outils_cli.h"

using namespace kestrel::test;

namespace {

// The parser's own English words, which must never reach the user.
void sans_anglais(const std::string& err) {
    for (const char* mot : {"Value", "range", "xpected", "required", "not in", "Could not", "excludes", "FAILED"})
        EXPECT_EQ(err.find(mot), std::string::npos) << mot << " dans : " << err;
}

}  // namespace

TEST(CliArguments, UneLigneFrancaiseParFaute) {
    for (const Attendu& a : std::initializer_list<Attendu>{
             {"", 2, "une sous-commande est attendue (voir kestrel --help)"},
             {"orbit --bogus x y", 2, "argument inconnu ou en trop : « --bogus x y » (voir kestrel orbit --help)"},
             {"orbit --step", 2, "--step : 1 valeur(s) attendue(s)"},
             {"project show", 2, "file est obligatoire (voir kestrel project show --help)"},
             {"orbit --orb a.orb --tle b.tle", 2, " s'excluent : l'un ou l'autre"},
             {"orbit --format xml", 2, "--format : « xml » n'est pas parmi csv, oem, czml"},
             {"study generator --view couleur", 2, "--view : « couleur » n'est pas parmi temperature, power, flux"},
             // bounds as written, not "1.000000 to 32767.000000"
             {"attitude --every 0", 2, "--every : « 0 » hors de [1, 32767] (voir kestrel attitude --help)"},
             {"sweep power --set cel_isc=1 --jobs 2000", 2, "--jobs : « 2000 » hors de [1, 1024]"},
         }) {
        verifie_une_ligne(a);
        sans_anglais(lance(a.arguments).err);
    }
}

TEST(CliArguments, CaracteresDeControleEchappesEtValeursCoupees) {
    // ESC and a bell in an option's value are shown as \x1b and \x07
    verifie_une_ligne({"orbit --format \"$(printf 'a\\033[31mb\\007')\"", 2, "« a\\x1b[31mb\\x07 »"});
    verifie_une_ligne({"orbit \"$(printf 'x\\ty')\"", 2, "« x\\x09y »"});
    // a 500-character value is cut at 60 characters
    const Resultat r = lance("orbit --format " + std::string(500, 'z'));
    EXPECT_EQ(r.code, 2);
    EXPECT_NE(r.err.find("« " + std::string(60, 'z') + "… »"), std::string::npos) << r.err;
    EXPECT_LT(r.err.size(), 200u) << r.err;
}

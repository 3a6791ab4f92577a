// Project files named on the command line that are not small plain files: a
// 2 MiB file, a folder, a named pipe, an endless device (also behind a link
// named as a project). Each is refused before any read, exit 1, with its
// reason; none may hang (every run is bounded by a timeout).
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <bit>
#include <cstdint>
#include <string>

#include "cli/outils_cli.h"

using namespace kestrel::test;

namespace {

const std::string dossier = "Lecture refusée : c'est un dossier, pas un fichier";
const std::string peripherique = "Lecture refusée : c'est un périphérique, pas un fichier ordinaire";
const std::string tube = "Lecture refusée : c'est un tube nommé (FIFO), pas un fichier ordinaire";

}  // namespace

TEST(CliFichiers, FichierDeDeuxMioRefuse) {
    const fs::path d = dossier_vide("gros");
    // 2 MiB = 2 x 1048576 = 2097152 bytes of blanks and line ends
    std::string t;
    while (t.size() < 2097152) t += "              \r\n";
    for (const char* nom : {"g.pwr", "g.att", "g.orb", "g.tle"}) std::ofstream(d / nom, std::ios::binary) << t;
    const std::string trop = "Lecture refusée : 2097152 octets, quand un fichier de projet en compte au plus 1048576";
    for (const Attendu& a : std::initializer_list<Attendu>{
             {"project show " + (d / "g.pwr").string(), 1, trop},
             {"power --summary --pwr " + (d / "g.pwr").string(), 1, trop},
             {"attitude --quiet --out /dev/null --att " + (d / "g.att").string(), 1, trop},
             {"orbit --orb " + (d / "g.orb").string(), 1, trop},
             {"orbit --tle " + (d / "g.tle").string(), 1, trop},
         })
        verifie_une_ligne(a);
}

TEST(CliFichiers, DossierPeripheriqueEtTubeRefuses) {
    const fs::path d = dossier_vide("sortes");
    const std::string rep = (d / "rep.pwr").string();
    fs::create_directory(rep);
    const std::string fifo = (d / "f.pwr").string();
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const std::string alea = (d / "alea.pwr").string();
    fs::create_symlink("/dev/urandom", alea);
    for (const Attendu& a : std::initializer_list<Attendu>{
             {"project show " + rep, 1, rep + ": " + dossier},
             {"orbit --orb " + rep, 1, dossier},
             {"attitude --quiet --out /dev/null --att " + rep, 1, dossier},
             {"orbit --tle " + rep, 1, "Erreur de lecture du TLE : fichier « " + rep + " » : " + dossier},
             // an endless stream behind a link named as a project
             {"project show " + alea, 1, alea + ": " + peripherique},
             {"power --summary --pwr /dev/urandom", 1, peripherique},
             {"orbit --orb /dev/zero", 1, peripherique},
             // a pipe that nobody writes to: a blocking open would wait forever
             {"project show " + fifo, 1, tube},
             {"power --summary --pwr " + fifo, 1, tube},
             {"attitude --quiet --out /dev/null --att " + fifo, 1, tube},
             {"orbit --tle " + fifo, 1, tube},
         })
        verifie_une_ligne(a);
}

TEST(CliFichiers, EpoqueDe1e308EnUnMessageCourt) {
    // A new .orb with its epoch day (f64 at byte 74) set to 1e308: the start
    // date is refused in a line of readable size, the number as 1e+308.
    const fs::path d = dossier_vide("epoque");
    const std::string orb = (d / "e.orb").string();
    ASSERT_EQ(lance("project new --orb " + orb).code, 0);
    std::string o = lit_fichier(orb);
    const auto b = std::bit_cast<std::uint64_t>(1e308);
    for (int i = 0; i < 8; ++i) o[74 + i] = static_cast<char>(b >> (8 * i));
    std::ofstream(orb, std::ios::binary) << o;
    for (const char* commande : {"orbit", "power --summary", "attitude --quiet --out /dev/null"}) {
        const Resultat r = lance(std::string(commande) + " --orb " + orb);
        EXPECT_EQ(r.code, 1) << commande;
        EXPECT_NE(r.err.find("date de début 1e+308 (époque de l'orbite, fichier « " + orb + " », octet 72)"),
                  std::string::npos)
            << r.err;
        EXPECT_LT(r.err.size(), 200 + orb.size()) << r.err;  // bytes: the accents take two
    }
}

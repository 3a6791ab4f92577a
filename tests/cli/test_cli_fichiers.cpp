// Project files named on the command line that are not small plain files: a
// 2 MiB file, a folder, a named pipe, an endless device (also behind a link
// named as a project). Each is refused before any read, exit 1, with its
// reason; none may hang (every run is bounded by a timeout).
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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

// Project files are read only when they are plain files within the cap; every
// other kind is refused unread, and a named pipe never holds the reader.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <future>

#include "core/project/outils_fichiers.h"
#include "core/shell/lecture_fichier.h"

using namespace kestrel;
using namespace kestrel::essai;

TEST(LectureFichier, FichierOrdinaireLuJusquAuPlafond) {
    DossierTemporaire d("plafond");
    ecrit_octets(d / "dix", "0123456789");
    ecrit_octets(d / "onze", "0123456789A");
    ecrit_octets(d / "vide", "");
    std::string lu;
    // A cap of 10 bytes: 10 pass whole (CR LF and NUL bytes included), 11 do not.
    ASSERT_FALSE(lit_fichier_projet(d / "dix", lu, 10));
    EXPECT_EQ(lu, "0123456789");
    ASSERT_FALSE(lit_fichier_projet(d / "vide", lu, 10));
    EXPECT_EQ(lu, "");
    const Erreur e = lit_fichier_projet(d / "onze", lu, 10);
    EXPECT_EQ(e.code, CodeErreur::fichier_trop_gros);
    EXPECT_EQ(e.valeur, 11.0);
    EXPECT_EQ(lu, "");

    // The real cap: 1 MiB = 1048576 bytes passes, one more is named in the message.
    ecrit_octets(d / "mio", std::string(1048576, '!'));
    EXPECT_FALSE(lit_fichier_projet(d / "mio", lu));
    EXPECT_EQ(lu.size(), 1048576u);
    ecrit_octets(d / "mio1", std::string(1048577, '!'));
    EXPECT_EQ(texte_erreur(lit_fichier_projet(d / "mio1", lu)),
              "Lecture refusée : 1048577 octets, quand un fichier de projet en compte au plus 1048576 (1 Mio)");
}

TEST(LectureFichier, CeQuiNEstPasUnFichierOrdinaireEstRefuse) {
    DossierTemporaire d("sortes");
    ASSERT_EQ(::symlink("/dev/zero", (d / "zero.pwr").c_str()), 0);
    ecrit_octets(d / "vrai.att", "x");
    ASSERT_EQ(::symlink((d / "vrai.att").c_str(), (d / "lien.att").c_str()), 0);
    struct Cas {
        std::string chemin;
        CodeErreur code;
        const char* message;
    };
    for (const Cas& c : {
             Cas{d.chemin.string(), CodeErreur::fichier_dossier, "Lecture refusée : c'est un dossier, pas un fichier"},
             Cas{"/dev/null", CodeErreur::fichier_peripherique,
                 "Lecture refusée : c'est un périphérique, pas un fichier ordinaire"},
             // a link is judged by what it points to: an endless device here
             Cas{d / "zero.pwr", CodeErreur::fichier_peripherique, nullptr},
             Cas{d / "absent", CodeErreur::fichier_illisible, "Lecture impossible : fichier ou dossier introuvable"},
             Cas{d / "vrai.att/x", CodeErreur::fichier_illisible, nullptr},
             Cas{d / "lien.att", CodeErreur::aucune, nullptr},
         }) {
        std::string lu = "ancien";
        const Erreur e = lit_fichier_projet(c.chemin, lu);
        EXPECT_EQ(e.code, c.code) << c.chemin;
        if (c.message) {
            EXPECT_EQ(texte_erreur(e), c.message) << c.chemin;
        }
        EXPECT_EQ(lu, c.code == CodeErreur::aucune ? "x" : "") << c.chemin;
        // refused kinds have their own message; a system failure is the reader's to word
        EXPECT_EQ(refus_fichier(e), c.code != CodeErreur::aucune && c.code != CodeErreur::fichier_illisible);
    }
}

TEST(LectureFichier, TubeNommeRefuseSansAttendre) {
    DossierTemporaire d("tube");
    const std::string tube = d / "p.orb";
    ASSERT_EQ(::mkfifo(tube.c_str(), 0600), 0);
    // No writer ever comes: a blocking open would wait forever. Bounded here
    // so that a fault fails this test instead of holding the whole suite.
    auto lecture = std::async(std::launch::async, [&] {
        std::string lu;
        return lit_fichier_projet(tube, lu);
    });
    if (lecture.wait_for(std::chrono::seconds(10)) != std::future_status::ready) {
        ADD_FAILURE() << "la lecture du tube attend toujours";
        ::close(::open(tube.c_str(), O_WRONLY | O_NONBLOCK));  // a writer comes and goes: the reader is freed
    }
    const Erreur e = lecture.get();
    EXPECT_EQ(e.code, CodeErreur::fichier_tube);
    EXPECT_EQ(texte_erreur(e), "Lecture refusée : c'est un tube nommé (FIFO), pas un fichier ordinaire");
}

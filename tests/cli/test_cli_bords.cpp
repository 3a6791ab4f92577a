// Values at the edges, from files and from options: each one is refused before
// the run with the value and where it came from, never a hang, never an empty
// success. Malformed files are new-project files patched at the documented
// place: .orb mean motion at byte 64 (f64, little-endian), .pwr line 278 (end
// date) and 279 (step) of the 279 CR LF lines.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "cli/outils_cli.h"

using namespace kestrel::test;

namespace {

// The new project's files, written once per process.
const fs::path& projet_neuf() {
    static const fs::path d = [] {
        const fs::path p = dossier_vide("neuf");
        lance("project new --pwr " + (p / "n.pwr").string() + " --att " + (p / "n.att").string() + " --orb " +
              (p / "n.orb").string());
        return p;
    }();
    return d;
}

// The new-project file with 8 bytes at `offset` replaced by x.
fs::path binaire_avec(const std::string& nom, const std::string& modele, std::size_t offset, double x) {
    std::string octets = lit_fichier(projet_neuf() / modele);
    const auto b = std::bit_cast<std::uint64_t>(x);
    for (int i = 0; i < 8; ++i) octets[offset + i] = static_cast<char>(b >> (8 * i));
    const fs::path p = dossier_test() / nom;
    std::ofstream(p, std::ios::binary) << octets;
    return p;
}

// The new .pwr with line `n` (from 1) replaced by `texte`.
fs::path pwr_avec(const std::string& nom, int n, const std::string& texte) {
    std::string t = lit_fichier(projet_neuf() / "n.pwr");
    std::size_t debut = 0;
    for (int i = 1; i < n; ++i) debut = t.find("\r\n", debut) + 2;
    t.replace(debut, t.find("\r\n", debut) - debut, texte);
    const fs::path p = dossier_test() / nom;
    std::ofstream(p, std::ios::binary) << t;
    return p;
}

}  // namespace

TEST(CliBords, MoyenMouvementDuFichierOrbite) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::string o0 = binaire_avec("zero.orb", "n.orb", 64, 0.0).string(),
                      opetit = binaire_avec("petit.orb", "n.orb", 64, 1e-300).string(),
                      onan = binaire_avec("nan.orb", "n.orb", 64, nan).string();
    const std::string refus = "Orbite refusée : moyen mouvement ";
    for (const Attendu& c : std::initializer_list<Attendu>{
             {"orbit --orb " + o0, 1, refus + "0 tours/jour (fichier « " + o0 + " », octet 64)"},
             {"power --summary --orb " + o0, 1, refus + "0 tours/jour"},
             {"orbit --orb " + onan, 1, refus + "nan tours/jour"},
             {"attitude --quiet --out /dev/null --orb " + onan, 1, refus + "nan"},
             {"power --summary --orb " + onan, 1, refus + "nan"},
             // 1 / 1e-300 days of orbit: the end date is 1e300 days away
             {"orbit --orb " + opetit, 1, "date de fin 1e+300 (une période orbitale après l'époque, fichier « " +
                                              opetit + " », octet 64)"},
         })
        verifie_une_ligne(c);
}

TEST(CliBords, PasEtFinDuFichierEnergie) {
    const std::string pas = "Pas de simulation refusé : ";
    struct Ligne { int n; std::string texte, attendu; };
    for (const Ligne& l : std::initializer_list<Ligne>{{279, " 2147483647 ", pas + "2147483647 s"},
                                                       {279, " 1000000000 ", pas + "1000000000 s"},
                                                       {279, " 0 ", pas + "0 s"},
                                                       {279, "-60 ", pas + "-60 s"},
                                                       {278, "1E+30", "date de fin 1e+30"}}) {
        const std::string f = pwr_avec("p.pwr", l.n, l.texte).string();
        const std::string ou = "(fichier « " + f + " », ligne " + std::to_string(l.n) + ")";
        verifie_une_ligne({"power --summary --pwr " + f, 1, l.attendu});
        verifie_une_ligne({"attitude --quiet --out /dev/null --pwr " + f, 1, ou});
    }
}

TEST(CliBords, PeriodeDesOptions) {
    for (const Attendu& c : std::initializer_list<Attendu>{
             {"power --step 0", 2, "Pas de simulation refusé : 0 s (option --step) ; un nombre entier de secondes "
                                   "entre 1 et 31622400 (un an) est attendu"},
             {"orbit --step 1.5", 2, "1.5 s (option --step)"},
             {"power --step 1e300", 2, "Pas de simulation refusé : 1e+300 s (option --step)"},
             // 1999-01-01 is day 49 x 365 + 12 leap days = 17897; 102 days later, 13 April
             {"orbit --start 18000 --end 17999", 2, "la date de fin 13/04/1999 00:00:00 (jour 17999.000000) "
                                                    "(option --end) précède la date de début 14/04/1999"},
             // 1950 to year 10163 by 1 s: 3e6 days x 86400 s is 2.592e11 steps, plus the first date
             {"orbit --start 0 --end 3000000 --step 1", 2, "259200000001 pas de 1 s (option --step) ; au plus "
                                                           "100000000 pas par simulation"},
         })
        verifie_une_ligne(c);
}

TEST(CliBords, EpoqueDe1e308EnUnMessageCourt) {
    // the epoch day (f64 at byte 74) set to 1e308: the start date is refused in
    // a line of readable size, the number as 1e+308
    const std::string orb = binaire_avec("epoque.orb", "n.orb", 74, 1e308).string();
    for (const char* commande : {"orbit", "power --summary", "attitude --quiet --out /dev/null"}) {
        const Resultat r = lance(std::string(commande) + " --orb " + orb);
        EXPECT_EQ(r.code, 1) << commande;
        EXPECT_NE(r.err.find("date de début 1e+308 (époque de l'orbite, fichier « " + orb + " », octet 72)"),
                  std::string::npos)
            << r.err;
        EXPECT_LT(r.err.size(), 200 + orb.size()) << r.err;  // bytes: the accents take two
    }
}

TEST(CliBords, DisquePleinSignalePourChaqueSousCommande) {
    // /dev/full takes the open and refuses every write with "no space left".
    const std::string att = (projet_neuf() / "n.att").string();
    const std::string plein = "plus de place sur le disque";
    for (const Attendu& c : std::initializer_list<Attendu>{
             {"orbit --out /dev/full", 1, "erreur d'écriture dans « /dev/full » : " + plein},
             {"orbit", 1, "erreur d'écriture dans la sortie standard : " + plein, "/dev/full"},
             {"power --end 18707.6 --out /dev/full", 1, "« /dev/full » : " + plein},
             {"power --end 18707.6", 1, "la sortie standard : " + plein, "/dev/full"},
             {"power --end 18707.6 --summary", 1, "la sortie standard : " + plein, "/dev/full"},
             {"project show " + att, 1, "la sortie standard : " + plein, "/dev/full"},
             {"attitude --quiet --end 18707.6 --out /dev/full", 1,
              "Impossible d'écrire le fichier de résultats : /dev/full"},
             {"study battery", 1, "la sortie standard : " + plein, "/dev/full"},
             {"study generator --end 18707.6 --out /dev/full", 1, "« /dev/full » : " + plein},
             {"exploit power --quiet --var \"Batterie Courant (A)\" --end 18707.6", 1,
              "la sortie standard : " + plein, "/dev/full"},
             {"sweep power --quiet --end 18707.6 --set cel_np=1,2", 1, "la sortie standard : " + plein, "/dev/full"},
             {"sweep attitude --quiet --end 18707.6 --set 'md(0)=1' --out /dev/full", 1, "« /dev/full » : " + plein},
             {"project new --att /dev/full", 1, "/dev/full : " + plein},
             {"project new --orb /dev/full", 1, "/dev/full : " + plein},
         })
        verifie_une_ligne(c);
    // The .pwr writer deletes an old project first, but never a device.
    const Resultat r = lance("project new --pwr /dev/full");
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(CliBords, NombresNonFinisRefusesALaLecture) {
    const std::string fini = " : un nombre fini est attendu";
    for (const Attendu& c : std::initializer_list<Attendu>{
             {"power --spin nan", 2, "--spin : « nan »" + fini},
             {"power --pointing nan,0,0", 2, "--pointing : « nan »" + fini},
             {"attitude --rates 1,inf,0", 2, "--rates : « inf »" + fini},
             {"orbit --step -inf", 2, "--step : « -inf »" + fini},
             {"attitude --pointing 0,nan,0", 2, "--pointing : « nan »" + fini},
             {"attitude --every inf", 2, "--every : « inf »" + fini},
             // every real-valued option, including those of the studies
             {"study battery --tecl nan", 2, "--tecl : « nan »" + fini},
             {"study battery --k -inf", 2, "--k : « -inf »" + fini},
             {"exploit power --var x --max nan", 2, "--max : « nan »" + fini},
             // a control character in an argument is shown escaped, on the same line
             {"power --spin \"$(printf '1\\033')\"", 2, "--spin : « 1\\x1b »" + fini},
         })
        verifie_une_ligne(c);
}

// A record that is not finite, or that turns the body by more than 2 rad in a
// step, is never written: the run stops before it with its column and date,
// and what came before (the head lines and the column names) stays.
TEST(CliBords, AttitudeArreteeAvantUnEnregistrementSansSens) {
    // wheel inertia 0.01 kg m2 at byte 308, then wheel speed 1e308 rad/s at byte 332:
    // om(0) = 1e308 x 180 / pi overflows at the initial record
    const fs::path inertie = binaire_avec("inertie.att", "n.att", 308, 0.01);
    fs::copy_file(inertie, projet_neuf() / "inertie.att", fs::copy_options::overwrite_existing);
    const fs::path roue = binaire_avec("roue.att", "inertie.att", 332, 1e308);
    const fs::path res = dossier_test() / "r.tmp";
    const std::string a = "attitude --quiet --out " + res.string() + " ";
    const std::string depart = "à la date 21/03/2001 13:12:00 (jour 18707.550010)";
    for (const Attendu& c : std::initializer_list<Attendu>{
             {a + "--att " + roue.string(), 1, "valeur non finie de om(0) * (180 / pi) (inf) " + depart},
             // 1e308 deg/s: 1e308 x pi overflows before the division by 180
             {a + "--rates 1e308,0,0", 1, "valeur non finie de omega(0) * (180 / pi) (inf) " + depart},
             // 1000 deg/s on each axis: |w| = 1000 pi / 180 x sqrt(3) = 30.2299894 rad/s,
             // x 10 s = 302.299894 rad in one step
             {a + "--rates 1e3,1e3,1e3", 1,
              "le satellite tourne à 30.2299894 rad/s " + depart + ", soit 302.299894 rad en un pas de 10 s"},
         }) {
        verifie_une_ligne(c);
        const std::string texte = lit_fichier(res);
        // the four head lines, the empty line and the column names; no record
        EXPECT_EQ(lignes(texte).size(), 5u) << c.arguments;
        EXPECT_EQ(texte.find("inf"), std::string::npos) << c.arguments;
    }
}

TEST(CliBords, PowerArreteeAvantUneLigneNonFinie) {
    // line 83: the mass of the first external-panel node, 0 kg: its heat
    // capacity m cp is 0 and its temperature (column node_t_0) is not finite
    // after the first step, at the start date
    const fs::path masse = pwr_avec("masse0.pwr", 83, " 0 ");
    const fs::path csv = dossier_test() / "p.csv";
    const std::string message = "valeur non finie de node_t_0 (";
    const std::string date = ") à la date 21/03/2001 13:12:00 (jour 18707.550010)";
    for (const std::string& a : {"power --out " + csv.string(), "power --summary --out " + csv.string()}) {
        const Resultat r = lance(a + " --pwr " + masse.string());
        EXPECT_EQ(r.code, 1) << a;
        EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
        EXPECT_NE(r.err.find(date), std::string::npos) << r.err;
        const std::string texte = lit_fichier(csv);
        EXPECT_EQ(texte.find("nan"), std::string::npos) << a;
        EXPECT_EQ(texte.find("inf"), std::string::npos) << a;
    }
    // the rows: the header only; the summary: nothing
    EXPECT_TRUE(lit_fichier(csv).empty());
    lance("power --out " + csv.string() + " --pwr " + masse.string());
    EXPECT_EQ(lignes(lit_fichier(csv)).size(), 1u);
}

TEST(CliBords, AvertissementDeChargeSansArret) {
    // lines 208-209 and 216-217: charge-curve points 1 and 2 at the same
    // capacity (50 %) and voltage offset (0): the straight part between them
    // has no slope, the curve traps the failure and the run goes on
    std::string t = lit_fichier(projet_neuf() / "n.pwr");
    std::vector<std::string> l = decoupe(t, '\n');
    for (auto [n, texte] : {std::pair{208, " 50 \r"}, {209, " 50 \r"}, {216, " 0 \r"}, {217, " 0 \r"}})
        l[static_cast<std::size_t>(n - 1)] = texte;
    t.clear();
    for (const std::string& x : l) t += x + '\n';
    const fs::path p = dossier_test() / "charge.pwr";
    std::ofstream(p, std::ios::binary) << t;
    const Resultat r = lance("power --summary --pwr " + p.string());
    EXPECT_EQ(r.code, 0) << r.err;
    // said once, in the window's words, after the run
    EXPECT_EQ(r.err, "kestrel: Incompatibilité entre les paramètres de charge des batteries !!\n");
    // the new project's period, one orbit of 5760 s and a little more, every 120 s: 49 dates
    EXPECT_NE(r.out.find("Simulation du sous-système d'énergie : 49 pas de 120 s"), std::string::npos) << r.out;
}

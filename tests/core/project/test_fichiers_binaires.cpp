// The attitude project (820 bytes) and the orbit record (114 in 128): byte
// offsets, round trips, short and long files, and failures.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstring>

#include "core/etat/etat.h"
#include "core/project/chemins.h"
#include "core/project/fichiers_binaires.h"
#include "core/project/liste_champs.h"
#include "outils_fichiers.h"

using namespace kestrel;
using namespace kestrel::essai;

namespace {

// The little-endian integer of n bytes at off, and the double of 8 bytes.
uint64_t octets_a(const std::string& o, std::size_t off, std::size_t n) {
    uint64_t b = 0;
    for (std::size_t i = 0; i < n; ++i) b |= uint64_t{static_cast<unsigned char>(o[off + i])} << (8 * i);
    return b;
}
double f64_a(const std::string& o, std::size_t off) { return std::bit_cast<double>(octets_a(o, off, 8)); }

// Doubles, or 16-bit integers when entier, at their byte offsets.
struct AuxOctets {
    std::size_t off;
    double v;
    bool entier = false;
};
void attend_octets(const std::string& o, std::initializer_list<AuxOctets> cas) {
    for (const auto& c : cas)
        EXPECT_EQ(c.entier ? static_cast<int16_t>(octets_a(o, c.off, 2)) : f64_a(o, c.off), c.v) << c.off;
}

}  // namespace

TEST(FichierAttitude, ChampsAuxOctetsAttendus) {
    DossierTemporaire d("att_octets");
    Etat e;
    e.att.I_corps(0, 1) = 7.0;   // row 0, column 1: position 3·1 + 0 = 3, offset 24
    e.att.cm = {0.1, 0.2, 0.3};
    e.att.omega_init = {1, 2, 3, 0, 0, 0};  // psi, theta, phi: stored theta, phi, psi
    e.att.dip_cmd = {0, -1, 1};
    e.att.jet_cmd = {0, 0, 2};
    e.att.OM_init = {0, 0, 0.5};
    e.att.Mt = 99.0;
    e.att.face_c[1] = {-4, -5, -6};  // face +y: coordinate j at 3 j + 1
    e.att.cd[5] = 0.125;
    ASSERT_FALSE(sauve_attitude(e, d / "a.att"));
    const std::string o = lit_octets(d / "a.att");
    ASSERT_EQ(o.size(), 820u);
    // Masse 50.0 = 0x4049000000000000 at 96, little-endian: bytes 102, 103 are 49 40.
    EXPECT_EQ(o.substr(102, 2), "\x49\x40");
    attend_octets(o, {{24, 7.0},    {32, 2.347},   {72, 0.45},   {120, 0.3},                // I_corps, dim, cm
                      {176, 2.0},   {184, 3.0},    {192, 1.0},                              // theta, phi, psi
                      {274, -1, true}, {276, 1, true}, {306, 2, true},                      // dip_cmd, jet_cmd
                      {348, 0.5},   {452, 99.0},   {516, 2.347},                            // OM_init z, Mt, I(1,1)
                      {556, 0.225}, {564, -4.0},   {588, -5.0},  {612, -6.0},               // faces
                      {628, 0.9},   {684, 0.3},    {756, 0.45},  {812, 0.125}});            // sn, st, cr, cd
    EXPECT_DOUBLE_EQ(f64_a(o, 200), std::sqrt(3.0));
}

TEST(FichierAttitude, AllerRetourSansRecalculDesDerives) {
    DossierTemporaire d("att_retour");
    Etat e;
    e.att.Masse = 12.5;
    e.att.dim = {1, 2, 3};
    e.att.cm = {0.1, 0, 0};
    e.att.mext = {1, 0, 0};
    e.att.Mt = 1234.0;  // not what bilan_masses would give: kept as saved
    e.att.I(2, 2) = -8.0;
    e.att.dip_tot = {4, 5, 6};
    e.att.dip_cmd = {1, 0, -1};
    e.att.k = {7, 8, 9};
    e.att.omega_init = {0.1, 0.2, 0.3, 0, 0, 0};
    e.att.face_c[0][0] = 9.0;  // stored, but rebuilt on a load
    ASSERT_FALSE(sauve_attitude(e, d / "r.att"));

    // As stored, every field of the file comes back.
    AttitudeRecord brut;
    ASSERT_FALSE(lit_attitude(brut, d / "r.att"));
    const auto ce = champs_attitude(e.att), cb = champs_attitude(brut);
    ASSERT_EQ(ce.size(), cb.size());
    for (std::size_t i = 0; i < ce.size(); ++i) EXPECT_EQ(ce[i].valeur, cb[i].valeur) << ce[i].nom;

    // Loaded: only the face table is rebuilt from cm and dim; vs_r is not in
    // the file and stays as it was.
    Etat l;
    l.att.vs_r = {3, 3, 3};
    ASSERT_FALSE(charge_attitude(l, d / "r.att"));
    attend({{"Mt", l.att.Mt, 1234.0}, {"I 2 2", l.att.I(2, 2), -8.0}, {"vs_r", l.att.vs_r[0], 3.0}});
    EXPECT_DOUBLE_EQ(l.att.face_c[0][0], 0.4);  // 1/2 - 0.1
    EXPECT_DOUBLE_EQ(l.att.face_c[5][2], -1.5);
    EXPECT_DOUBLE_EQ(l.att.face_c[4][0], -0.1);
}

TEST(FichierAttitude, FichiersCourtsLongsEtAbsents) {
    DossierTemporaire d("att_tailles");
    // 0 bytes: everything zero, no failure.
    ecrit_octets(d / "vide.att", "");
    Etat e;
    ASSERT_FALSE(charge_attitude(e, d / "vide.att"));
    attend({{"Masse", e.att.Masse, 0}, {"Mt", e.att.Mt, 0}, {"I 1 1", e.att.I(1, 1), 0},
            {"dip_res", e.att.dip_res[2], 0}, {"face_c", e.att.face_c[0][0], 0}});

    // 104 bytes: inertia, dimensions and mass read; the rest zero.
    ASSERT_FALSE(sauve_attitude(Etat{}, d / "plein.att"));
    const std::string plein = lit_octets(d / "plein.att");
    ecrit_octets(d / "court.att", plein.substr(0, 104));
    Etat c;
    ASSERT_FALSE(charge_attitude(c, d / "court.att"));
    attend({{"Masse", c.att.Masse, 50.0}, {"I_corps 2 2", c.att.I_corps(2, 2), 2.541}, {"cd", c.att.cd[0], 0}});

    // Saving over a longer file replaces the first 820 bytes only.
    ecrit_octets(d / "long.att", std::string(2000, '\xab'));
    ASSERT_FALSE(sauve_attitude(Etat{}, d / "long.att"));
    EXPECT_EQ(lit_octets(d / "long.att"), plein + std::string(1180, '\xab'));

    // Absent file: the two-line message; a folder: refused as such; the record untouched.
    Etat a;
    a.att.Masse = 77.0;
    EXPECT_EQ(texte_erreur(charge_attitude(a, d / "absent.att")),
              "Erreur de lecture_ligne du fichier de configuration.\nFichier non trouvable ou format non valable !!");
    EXPECT_EQ(charge_attitude(a, d.chemin.string()).code, CodeErreur::fichier_dossier);
    EXPECT_EQ(a.att.Masse, 77.0);
    EXPECT_EQ(sauve_attitude(a, d / "pas_de_dossier/x.att").code, CodeErreur::ecriture_attitude);
}

TEST(FichierOrbite, EnregistrementDe114OctetsDansUneCaseDe128) {
    DossierTemporaire d("orb");
    Etat e;
    const char nom[] = "LEO 800 KM";
    std::memcpy(e.orbite.nom.data(), nom, sizeof nom - 1);
    e.orbite.orb_inclinaison = 98.6;
    e.orbite.orb_an = 1999;
    e.orbite.orb_jour = 123.456;
    e.orbite.reserve = {1.5, -2.5, 3.5};
    ASSERT_FALSE(sauve_orbite(e, d / "o.orb"));
    const std::string o = lit_octets(d / "o.orb");
    ASSERT_EQ(o.size(), 128u);
    EXPECT_EQ(o.substr(0, 24), "LEO 800 KM              ");  // blank-padded, no terminator
    attend_octets(o, {{24, 98.6}, {64, 15.0}, {72, 1999, true}, {74, 123.456}, {82, 7174.0}, {106, 3.5}});
    EXPECT_EQ(o.substr(114), std::string(14, '\0'));

    // A reader takes 114 bytes and ignores anything after them.
    ecrit_octets(d / "long.orb", o.substr(0, 114) + std::string(300, '\x7f'));
    Etat l;
    ASSERT_FALSE(charge_orbite(l, d / "long.orb"));
    EXPECT_EQ(l.orbite.nom, e.orbite.nom);
    EXPECT_EQ(l.orbite.orb_jour, 123.456);
    EXPECT_EQ(l.orbite.reserve, e.orbite.reserve);

    Etat a;
    EXPECT_NE(texte_erreur(charge_orbite(a, d / "absent.orb")).find("absent.orb"), std::string::npos);
    EXPECT_EQ(a.orbite.orb_an, 2001);
    EXPECT_EQ(sauve_orbite(a, d / "pas_de_dossier/x.orb").code, CodeErreur::fichier_orbite);
}

TEST(Chemins, ExtraitNomFichierEtFichierExiste) {
    for (const auto& [chemin, nom] : {std::pair{"C:\\projets.v2\\essai.1\\orbite.leo.orb", "orbite.leo"},
                                      {"/home/u/projets.v2/sat.pwr", "sat"}, {"orbite", "orbite"}, {"   ", ""},
                                      {"  a/b\\c.d  ", "c"}})
        EXPECT_EQ(extrait_nom_fichier(chemin), nom) << chemin;

    DossierTemporaire d("existe");
    ecrit_octets(d / "f.txt", "x");
    EXPECT_TRUE(fichier_existe(d / "f.txt"));
    for (const auto& f : {d.chemin.string(), d / "absent", std::string()}) EXPECT_FALSE(fichier_existe(f)) << f;
}

// The power project file: the default file line by line, round trips, the
// reading rules of a hand-edited file, and each failure.
#include <gtest/gtest.h>

#include "core/etat/etat.h"
#include "core/project/energie.h"
#include "core/project/liste_champs.h"
#include "outils_fichiers.h"

using namespace kestrel;
using namespace kestrel::essai;

namespace {

const std::string DEFAUT = std::string(KESTREL_SOURCE_DIR) + "/tests/data/defaut.pwr";

// Lines of the default file (Windows-1252 bytes, no CR LF).
std::vector<std::string> lignes_defaut() { return lignes(lit_octets(DEFAUT)); }

// Loads into e the given lines, the default file's unless told, with some
// of them replaced (index = line number - 1).
Erreur charge(const DossierTemporaire& d, Etat& e, const std::vector<std::pair<std::size_t, std::string>>& remplace,
              std::vector<std::string> s = lignes_defaut()) {
    std::string texte;
    for (const auto& [i, t] : remplace) s[i] = t;
    for (const auto& x : s) texte += x + "\r\n";
    ecrit_octets(d / "essai.pwr", texte);
    return charge_energie(e, d / "essai.pwr");
}

// Every field of the file, compared through its exact listing; the end date
// of a new project has more than the 15 digits kept on disk.
void attend_meme_projet(const Etat& a, const Etat& b) {
    const auto ca = champs_energie(a.pwr, a.session);
    const auto cb = champs_energie(b.pwr, b.session);
    ASSERT_EQ(ca.size(), cb.size());
    for (std::size_t i = 0; i < ca.size(); ++i)
        if (ca[i].nom != "j_fin") { EXPECT_EQ(ca[i].valeur, cb[i].valeur) << ca[i].nom; }
    EXPECT_NEAR(a.session.j_fin, b.session.j_fin, 1e-9);
}

}  // namespace

TEST(FichierEnergie, NouveauProjetEgalALaCopieVerifiee) {
    // tests/data/defaut.pwr was checked line by line against the file table:
    // 279 lines, 1999-01-01 = 49·365 + 12 = 17897 on line 31, the epoch 2001
    // day 80.55001 = 18628 + 79.55001 = 18707.55001 on line 277 and one
    // period later, + 1/15 day, on line 278.
    // A longer old file is deleted first, not overwritten in place.
    DossierTemporaire d("defaut");
    ecrit_octets(d / "neuf.pwr", std::string(20000, 'x'));
    ASSERT_FALSE(sauve_energie(Etat{}, d / "neuf.pwr"));
    EXPECT_EQ(lit_octets(d / "neuf.pwr"), lit_octets(DEFAUT));

    const auto l = lignes_defaut();
    ASSERT_EQ(l.size(), 279u);
    // Windows-1252 on disk, not UTF-8; an empty label, blanks to column 16;
    // 15 digits for a date.
    for (const auto& [i, t] : {std::pair{1, "! Syst\xe8me \xe9nergie"}, {152, " 1E-03         "},
                               {182, "3.8000E+26     Flux solaire"}, {277, " 18707.6166766667 "}})
        EXPECT_EQ(l[i], t) << i;

    const Erreur r = sauve_energie(Etat{}, d / "pas_de_dossier/p.pwr");
    EXPECT_EQ(texte_erreur(r), "Erreur d'\xc3\xa9" "criture.\n Impossible d'enregistrer la configuration !!");
}

TEST(FichierEnergie, AllerRetour) {
    DossierTemporaire d("aller_retour");
    Etat b;
    b.pwr.cel_isc = -1.234567E-05f;  // 14 characters with its sign: all kept
    b.pwr.cel_ns = 12.5f;            // a float count keeps its half
    b.pwr.bat_ns = 200;
    b.pwr.bat_type = 2;
    b.pwr.pan_fixed = VRAI;
    b.pwr.opt_panel_ext = FAUX;
    b.pwr.date_cell = -5;
    b.pwr.ext_t99[7] = 123456;
    b.pwr.ch_pt[1][0] = 17.0f;       // point 1, coefficient 0: line 207 + 1
    b.pwr.de_pt[0][5] = 0.333333f;   // point 0, coefficient 5: line 232 + 20
    b.pwr.sun_power = 3.8123456e26;  // the picture keeps five significant digits
    b.session.j_debut = 19000.25;
    b.session.j_fin = 19001.123456789;  // 15 characters: read whole, not cut at 14
    b.session.pas_sim = 45;
    ASSERT_FALSE(sauve_energie(b, d / "b.pwr"));
    const auto l = lignes(lit_octets(d / "b.pwr"));
    for (const auto& [i, t] : {std::pair{7, "-1.234567E-05  Isc"}, {207, " 17 "}, {251, " .333333 "}})
        EXPECT_EQ(l[i], t) << i;

    Etat lu;
    lu.pwr.cel_imp = 7.0f;
    lu.session.pas_sim = 3;
    ASSERT_FALSE(charge_energie(lu, d / "b.pwr"));
    EXPECT_EQ(lu.pwr.sun_power, 3.8123e26);
    b.pwr.sun_power = 3.8123e26;
    attend_meme_projet(b, lu);
}

TEST(FichierEnergie, FichierRetoucheALaMain) {
    DossierTemporaire d("retouche");
    // No labels at all: the reader never looks at them.
    auto s = lignes_defaut();
    for (auto& x : s)
        if (x[0] != '!' && x.size() > 15 && x[14] == ' ') x.resize(15);
    Etat e;
    e.pwr.cel_vmp = 3.0f;
    ASSERT_FALSE(charge(d, e, {}, s));
    attend_meme_projet(Etat{}, e);

    // A "!" line in place of a value keeps that field and the rest aligned;
    // any non-zero number is a true truth value.
    Etat v;
    v.pwr.cel_isc = 0.7f;
    v.pwr.opt_panel_ext = FAUX;
    ASSERT_FALSE(charge(d, v, {{7, "! Isc retir\xe9"}, {264, " 1             Option panneaux externes"}, {268, "-3"}}));
    attend({{"isc", v.pwr.cel_isc, 0.7f}, {"imp", v.pwr.cel_imp, 0.5f}, {"panel_ext", v.pwr.opt_panel_ext, VRAI},
            {"pan_fixed", v.pwr.pan_fixed, VRAI}, {"pas_sim", v.session.pas_sim, 120}});

    // The face table follows the body option: 1 is six faces at i × (361 \ 6)
    // = i × 60 degrees, flat.
    Etat f;
    f.pwr.face_elev[3] = 0.7;
    ASSERT_FALSE(charge(d, f, {{265, " 1             Option 4/6 faces ou cylindre"}}));
    EXPECT_EQ(f.pwr.nb_faces, 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_DOUBLE_EQ(f.pwr.face_azim[i], i * 60 * 0.017453292519943278);
        EXPECT_EQ(f.pwr.face_elev[i], 0.0);
    }
    // A cylinder (any other value) has no faces and keeps the tables.
    Etat c;
    c.pwr.face_azim[1] = 2.5;
    ASSERT_FALSE(charge(d, c, {{265, " 7             Option 4/6 faces ou cylindre"}}));
    attend({{"opt_faces", c.pwr.opt_faces, 7}, {"nb_faces", c.pwr.nb_faces, 0}, {"azim 1", c.pwr.face_azim[1], 2.5}});
}

TEST(FichierEnergie, EchecsDeLectureNommentLaLigneEtLaissentLEtat) {
    DossierTemporaire d("echecs");
    struct Cas {
        std::size_t index;  // line number - 1 of the replaced line
        std::string texte;
        long ligne;          // line named by the failure
        std::string detail;  // the token as read: leading blanks skipped, UTF-8
    };
    const std::vector<Cas> cas{
        {202, " 256          Nombre de cellules s\xe9rie", 203, "256          Nombre de cellules série"},
        {6, " 40000", 7, "40000"},                   // above 16 bits
        {7, " abc           Isc", 8, "abc           Isc"},
        {7, "", 8, "(valeur absente)"},              // empty value line
        {276, "! pas de date", 277, "! pas de date"},  // the dates take no "!"
        {277, " 1.2.3", 278, "1.2.3"},
        // "1,5": Isc gets 1, Imp gets 5, and every later field reads one line
        // early; the shift ends on the comment line that stands where the
        // start date is expected. Nothing is handed back.
        {7, " 1,5", 276, "! ---------------------"},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(c.texte);
        Etat e;
        e.pwr.cel_isc = 0.7f;
        e.pwr.cel_vmp = 3.0f;
        e.session.j_debut = 5.0;
        const Erreur r = charge(d, e, {{c.index, c.texte}});
        ASSERT_EQ(r.code, CodeErreur::lecture_energie);
        EXPECT_EQ(r.ligne, c.ligne);
        EXPECT_EQ(r.detail, c.detail);
        attend({{"isc", e.pwr.cel_isc, 0.7f}, {"vmp", e.pwr.cel_vmp, 3.0f}, {"j_debut", e.session.j_debut, 5.0}});
        EXPECT_NE(texte_erreur(r).find("ligne " + std::to_string(c.ligne)), std::string::npos);
    }

    // Cut short, absent, or a folder.
    auto s = lignes_defaut();
    s.resize(100);
    Etat e;
    e.pwr.cel_isc = 0.7f;
    EXPECT_EQ(texte_erreur(charge(d, e, {}, s)),
              "Erreur de lecture du fichier de configuration, ligne 101 : fin du fichier atteinte");
    EXPECT_EQ(charge_energie(e, d / "absent.pwr").ligne, 0);
    EXPECT_EQ(charge_energie(e, d.chemin.string()).code, CodeErreur::fichier_dossier);
    EXPECT_EQ(e.pwr.cel_isc, 0.7f);
}

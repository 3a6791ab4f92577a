// The power project file: the default file line by line, round trips, the
// reading rules of a hand-edited file, and each failure.
#include <gtest/gtest.h>

#include "core/etat.h"
#include "core/project/liste_champs.h"
#include "core/project/projet.h"
#include "outils_fichiers.h"

using namespace kestrel;
using namespace kestrel::essai;

namespace {

const std::string DEFAUT = std::string(KESTREL_SOURCE_DIR) + "/tests/data/defaut.pwr";

// Lines of the default file (Windows-1252 bytes, no CR LF).
std::vector<std::string> lignes_defaut() { return lignes(lit_octets(DEFAUT)); }

// Loads the given file text into e.
Erreur charge_texte(const DossierTemporaire& d, const std::string& texte, Etat& e) {
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
        if (ca[i].nom != "j_fin") EXPECT_EQ(ca[i].valeur, cb[i].valeur) << ca[i].nom;
    EXPECT_NEAR(a.session.j_fin, b.session.j_fin, 1e-9);
}

}  // namespace

TEST(FichierEnergie, NouveauProjetEgalALaCopieVerifiee) {
    // tests/data/defaut.pwr was checked line by line against the file table:
    // 279 lines, 1999-01-01 = 49·365 + 12 = 17897 on line 31, the epoch 2001
    // day 80.55001 = 18628 + 79.55001 = 18707.55001 on line 277 and one
    // period later, + 1/15 day, on line 278.
    DossierTemporaire d("defaut");
    ASSERT_FALSE(sauve_energie(Etat{}, d / "neuf.pwr"));
    EXPECT_EQ(lit_octets(d / "neuf.pwr"), lit_octets(DEFAUT));

    const auto l = lignes_defaut();
    ASSERT_EQ(l.size(), 279u);
    EXPECT_EQ(l[1], "! Syst\xe8me \xe9nergie");  // Windows-1252 on disk, not UTF-8
    EXPECT_EQ(l[152], " 1E-03         ");        // empty label, blanks to column 16
    EXPECT_EQ(l[182], "3.8000E+26     Flux solaire");
    EXPECT_EQ(l[277], " 18707.6166766667 ");     // 15 digits
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
    EXPECT_EQ(l[7], "-1.234567E-05  Isc");
    EXPECT_EQ(l[207], " 17 ");
    EXPECT_EQ(l[251], " .333333 ");

    Etat lu;
    lu.pwr.cel_imp = 7.0f;
    lu.session.pas_sim = 3;
    ASSERT_FALSE(charge_energie(lu, d / "b.pwr"));
    EXPECT_EQ(lu.pwr.sun_power, 3.8123e26);
    b.pwr.sun_power = 3.8123e26;
    attend_meme_projet(b, lu);
}

TEST(FichierEnergie, LaTableDesFacesSuitLOptionDeCorps) {
    DossierTemporaire d("faces");
    auto s = lignes_defaut();
    s[265] = " 1             Option 4/6 faces ou cylindre";
    Etat lu;
    lu.pwr.face_elev[3] = 0.7;
    ASSERT_FALSE(charge_texte(d, joint(s), lu));
    EXPECT_EQ(lu.pwr.nb_faces, 6);
    for (int i = 0; i < 6; ++i) {  // i × (361 \ 6) = i × 60 degrees
        EXPECT_DOUBLE_EQ(lu.pwr.face_azim[i], i * 60 * 0.017453292519943278);
        EXPECT_EQ(lu.pwr.face_elev[i], 0.0);
    }

    // A cylinder (any other value) has no faces and keeps the tables.
    s[265] = " 7             Option 4/6 faces ou cylindre";
    Etat lc;
    lc.pwr.face_azim[1] = 2.5;
    ASSERT_FALSE(charge_texte(d, joint(s), lc));
    EXPECT_EQ(lc.pwr.opt_faces, 7);
    EXPECT_EQ(lc.pwr.nb_faces, 0);
    EXPECT_EQ(lc.pwr.face_azim[1], 2.5);
}

TEST(FichierEnergie, FichierRetoucheALaMain) {
    DossierTemporaire d("retouche");
    const auto l = lignes_defaut();

    // No labels at all: the reader never looks at them.
    {
        auto s = l;
        for (auto& x : s)
            if (x[0] != '!' && x.size() > 15 && x[14] == ' ') x.resize(15);
        Etat e;
        e.pwr.cel_vmp = 3.0f;
        ASSERT_FALSE(charge_texte(d, joint(s), e));
        attend_meme_projet(Etat{}, e);
    }
    // A "!" line in place of a value keeps that field and the rest aligned;
    // any non-zero number is a true truth value.
    {
        auto s = l;
        s[7] = "! Isc retir\xe9";
        s[264] = " 1             Option panneaux externes";
        s[268] = "-3";
        Etat e;
        e.pwr.cel_isc = 0.7f;
        e.pwr.opt_panel_ext = FAUX;
        ASSERT_FALSE(charge_texte(d, joint(s), e));
        EXPECT_EQ(e.pwr.cel_isc, 0.7f);
        EXPECT_EQ(e.pwr.cel_imp, 0.5f);
        EXPECT_EQ(e.pwr.opt_panel_ext, VRAI);
        EXPECT_EQ(e.pwr.pan_fixed, VRAI);
        EXPECT_EQ(e.session.pas_sim, 120);
    }
}

TEST(FichierEnergie, UneVirguleCoupeLaValeurEtDecaleLaSuite) {
    DossierTemporaire d("virgule");
    auto s = lignes_defaut();
    // "1,5": Isc gets 1, Imp gets 5, and every later field reads one line
    // early; the shift ends on the comment line that stands where the start
    // date is expected.
    s[7] = " 1,5";
    Etat e;
    e.pwr.cel_isc = 0.7f;
    const Erreur r = charge_texte(d, joint(s), e);
    ASSERT_EQ(r.code, CodeErreur::lecture_energie);
    EXPECT_EQ(r.ligne, 276);
    EXPECT_EQ(r.detail, "! ---------------------");
    EXPECT_EQ(e.pwr.cel_isc, 0.7f);  // nothing was handed back
}

TEST(FichierEnergie, EchecsDeLectureNommentLaLigneEtLaissentLEtat) {
    DossierTemporaire d("echecs");
    const auto l = lignes_defaut();
    struct Cas {
        std::size_t index;   // line number - 1
        std::string texte;
        std::string detail;  // the token as read: leading blanks skipped, UTF-8
    };
    const std::vector<Cas> cas{
        {202, " 256          Nombre de cellules s\xe9rie", "256          Nombre de cellules série"},
        {6, " 40000", "40000"},                   // above 16 bits
        {7, " abc           Isc", "abc           Isc"},
        {7, "", "(valeur absente)"},              // empty value line
        {276, "! pas de date", "! pas de date"},  // the dates take no "!"
        {277, " 1.2.3", "1.2.3"},
    };
    for (const auto& c : cas) {
        auto s = l;
        s[c.index] = c.texte;
        Etat e;
        e.pwr.cel_vmp = 3.0f;
        e.session.j_debut = 5.0;
        const Erreur r = charge_texte(d, joint(s), e);
        ASSERT_EQ(r.code, CodeErreur::lecture_energie) << c.texte;
        EXPECT_EQ(r.ligne, static_cast<long>(c.index + 1)) << c.texte;
        EXPECT_EQ(r.detail, c.detail);
        EXPECT_EQ(e.pwr.cel_vmp, 3.0f) << c.texte;
        EXPECT_EQ(e.session.j_debut, 5.0) << c.texte;
        EXPECT_NE(texte_erreur(r).find("ligne " + std::to_string(c.index + 1)), std::string::npos);
    }

    // Cut short, absent, or a folder.
    auto s = l;
    s.resize(100);
    Etat e;
    e.pwr.cel_isc = 0.7f;
    Erreur r = charge_texte(d, joint(s), e);
    EXPECT_EQ(texte_erreur(r), "Erreur de lecture du fichier de configuration, ligne 101 : fin du fichier atteinte");
    EXPECT_EQ(charge_energie(e, d / "absent.pwr").ligne, 0);
    EXPECT_EQ(charge_energie(e, d.chemin.string()).code, CodeErreur::lecture_energie);
    EXPECT_EQ(e.pwr.cel_isc, 0.7f);
}

TEST(FichierEnergie, EcritureRemplaceLAncienFichierOuEchoue) {
    DossierTemporaire d("ecriture");
    // A longer old file is deleted first, not overwritten in place.
    ecrit_octets(d / "p.pwr", std::string(20000, 'x'));
    ASSERT_FALSE(sauve_energie(Etat{}, d / "p.pwr"));
    EXPECT_EQ(lit_octets(d / "p.pwr"), lit_octets(DEFAUT));

    const Erreur r = sauve_energie(Etat{}, d / "pas_de_dossier/p.pwr");
    EXPECT_EQ(texte_erreur(r), "Erreur d'\xc3\xa9" "criture.\n Impossible d'enregistrer la configuration !!");
}

// The power project file: the default file line by line, round trips, the
// reading rules of a hand-edited file, and each failure.
#include <gtest/gtest.h>

#include <cmath>

#include "core/etat.h"
#include "core/project/liste_champs.h"
#include "core/project/projet.h"
#include "outils_fichiers.h"

using namespace kestrel;
using namespace kestrel::essai;

namespace {

const std::string DEFAUT = std::string(KESTREL_SOURCE_DIR) + "/tests/data/defaut.pwr";

// Lines of the default file as written (Windows-1252 bytes).
std::vector<std::string> lignes_defaut(const DossierTemporaire& d) {
    const Etat e;
    EXPECT_FALSE(sauve_energie(e, d / "defaut.pwr"));
    return lignes(lit_octets(d / "defaut.pwr"));
}

// Loads the given file text into a new-project Etat.
Erreur charge_texte(const DossierTemporaire& d, const std::string& texte, Etat& e) {
    ecrit_octets(d / "essai.pwr", texte);
    return charge_energie(e, d / "essai.pwr");
}

void attend_meme_projet(const Etat& a, const Etat& b) {
    auto ca = champs_energie(a.pwr, a.session);
    auto cb = champs_energie(b.pwr, b.session);
    ASSERT_EQ(ca.size(), cb.size());
    for (std::size_t i = 0; i < ca.size(); ++i) {
        if (ca[i].nom == "j_fin") continue;  // 15 digits on disk: compared below
        EXPECT_EQ(ca[i].valeur, cb[i].valeur) << ca[i].nom;
    }
    EXPECT_NEAR(a.session.j_fin, b.session.j_fin, 1e-9);
}

}  // namespace

TEST(FichierEnergie, NouveauProjetEgalALaCopieVerifiee) {
    // tests/data/defaut.pwr was checked line by line against the file table:
    // 279 lines, the date of 1999-01-01 = 49·365 + 12 = 17897 on line 31, the
    // epoch 2001 day 80.55001 = 18628 + 79.55001 = 18707.55001 on line 277
    // and one period later, + 1/15 day, on line 278.
    DossierTemporaire d("defaut");
    const Etat e;
    ASSERT_FALSE(sauve_energie(e, d / "neuf.pwr"));
    const std::string octets = lit_octets(d / "neuf.pwr");
    EXPECT_EQ(octets, lit_octets(DEFAUT));

    const auto l = lignes(octets);
    ASSERT_EQ(l.size(), 279u);
    EXPECT_EQ(l[1], "! Syst\xe8me \xe9nergie");  // Windows-1252 on disk, not UTF-8
    EXPECT_EQ(l[7], " .53           Isc");          // label at column 16
    EXPECT_EQ(l[182], "3.8000E+26     Flux solaire");
    EXPECT_EQ(l[152], " 1E-03         ");            // empty label, blanks to column 16
    EXPECT_EQ(l[264], " 255           Option panneaux externes");
    EXPECT_EQ(l[276], " 18707.55001 ");
    EXPECT_EQ(l[277], " 18707.6166766667 ");
    EXPECT_EQ(l[278], " 120 ");
    EXPECT_EQ(octets.substr(octets.size() - 2), "\r\n");
}

TEST(FichierEnergie, AllerRetourDesValeursParDefautEtModifiees) {
    DossierTemporaire d("aller_retour");
    Etat a;
    ASSERT_FALSE(sauve_energie(a, d / "a.pwr"));
    Etat lu;
    lu.pwr.cel_isc = 7.0f;
    lu.session.pas_sim = 3;
    ASSERT_FALSE(charge_energie(lu, d / "a.pwr"));
    attend_meme_projet(a, lu);

    Etat b;
    b.pwr.cel_isc = -1.234567E-05f;  // 14 characters with its sign: all kept
    b.pwr.cel_ns = 12.5f;            // a float count keeps its half
    b.pwr.bat_ns = 200;
    b.pwr.bat_type = 2;
    b.pwr.pan_fixed = VRAI;
    b.pwr.opt_panel_ext = FAUX;
    b.pwr.date_cell = -5;
    b.pwr.ext_t99[7] = 123456;
    b.pwr.de_pt[3][5] = 0.333333f;
    b.pwr.sun_power = 3.8123456e26;  // picture keeps five significant digits
    b.session.j_debut = 19000.25;
    b.session.j_fin = 19001.5;
    b.session.pas_sim = 45;
    ASSERT_FALSE(sauve_energie(b, d / "b.pwr"));
    EXPECT_EQ(lignes(lit_octets(d / "b.pwr"))[7], "-1.234567E-05  Isc");

    Etat lb;
    ASSERT_FALSE(charge_energie(lb, d / "b.pwr"));
    EXPECT_EQ(lb.pwr.cel_isc, -1.234567E-05f);
    EXPECT_EQ(lb.pwr.cel_ns, 12.5f);
    EXPECT_EQ(lb.pwr.bat_ns, 200);
    EXPECT_EQ(lb.pwr.bat_type, 2);
    EXPECT_EQ(lb.pwr.pan_fixed, VRAI);
    EXPECT_EQ(lb.pwr.opt_panel_ext, FAUX);
    EXPECT_EQ(lb.pwr.date_cell, -5);
    EXPECT_EQ(lb.pwr.ext_t99[7], 123456);
    EXPECT_EQ(lb.pwr.de_pt[3][5], 0.333333f);
    EXPECT_EQ(lb.pwr.sun_power, 3.8123e26);
    EXPECT_EQ(lb.session.j_debut, 19000.25);
    EXPECT_EQ(lb.session.j_fin, 19001.5);
    EXPECT_EQ(lb.session.pas_sim, 45);
    // Saved again, the rounded flux stays as it is: 3.8E+26 is a fixed point.
    b.pwr.sun_power = lb.pwr.sun_power;
    attend_meme_projet(b, lb);
}

TEST(FichierEnergie, LaTableDesFacesSuitLOptionDeCorps) {
    DossierTemporaire d("faces");
    Etat hexa;
    hexa.pwr.opt_faces = 1;
    ASSERT_FALSE(sauve_energie(hexa, d / "h.pwr"));
    Etat lu;
    lu.pwr.face_elev[3] = 0.7;
    ASSERT_FALSE(charge_energie(lu, d / "h.pwr"));
    EXPECT_EQ(lu.pwr.nb_faces, 6);
    // i × (361 \ 6) = i × 60 degrees.
    for (int i = 0; i < 6; ++i) {
        EXPECT_DOUBLE_EQ(lu.pwr.face_azim[i], i * 60 * 0.017453292519943278);
        EXPECT_EQ(lu.pwr.face_elev[i], 0.0);
    }

    // A cylinder (any other value) has no faces and keeps the tables.
    Etat cyl;
    cyl.pwr.opt_faces = 7;
    ASSERT_FALSE(sauve_energie(cyl, d / "c.pwr"));
    Etat lc;
    lc.pwr.face_azim[1] = 2.5;
    ASSERT_FALSE(charge_energie(lc, d / "c.pwr"));
    EXPECT_EQ(lc.pwr.opt_faces, 7);
    EXPECT_EQ(lc.pwr.nb_faces, 0);
    EXPECT_EQ(lc.pwr.face_azim[1], 2.5);
}

TEST(FichierEnergie, FichierRetouchaALaMain) {
    DossierTemporaire d("retouche");
    const auto l = lignes_defaut(d);

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
    // A "!" line in place of a value keeps that field and the rest aligned.
    {
        auto s = l;
        s[7] = "! Isc retir\xe9";
        Etat e;
        e.pwr.cel_isc = 0.7f;
        ASSERT_FALSE(charge_texte(d, joint(s), e));
        EXPECT_EQ(e.pwr.cel_isc, 0.7f);
        EXPECT_EQ(e.pwr.cel_imp, 0.5f);
        EXPECT_EQ(e.session.pas_sim, 120);
    }
    // Truth values: any non-zero number is true.
    {
        auto s = l;
        s[264] = " 1             Option panneaux externes";
        s[268] = "-3";
        Etat e;
        e.pwr.opt_panel_ext = FAUX;
        ASSERT_FALSE(charge_texte(d, joint(s), e));
        EXPECT_EQ(e.pwr.opt_panel_ext, VRAI);
        EXPECT_EQ(e.pwr.pan_fixed, VRAI);
    }
    // Lines ending in LF alone and a quoted value read the same.
    {
        auto s = l;
        s[9] = "\"2.5\"  Voc";
        std::string t;
        for (const auto& x : s) t += x + "\n";
        Etat e;
        ASSERT_FALSE(charge_texte(d, t, e));
        EXPECT_EQ(e.pwr.cel_voc, 2.5f);
        EXPECT_EQ(e.pwr.bat_c, 10.0f);
    }
}

TEST(FichierEnergie, UneVirguleCoupeLaValeurEtDecaleLaSuite) {
    DossierTemporaire d("virgule");
    auto s = lignes_defaut(d);
    // "1,5": Isc gets 1, Imp gets 5, and every later field reads one line
    // early; the shift ends on a comment line where the start date stands.
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
    const auto l = lignes_defaut(d);
    struct Cas {
        std::size_t index;   // line number - 1
        std::string texte;
        std::string detail;  // offending text reported
    };
    // The reported text is the token as read: leading blanks skipped, in UTF-8.
    const std::vector<Cas> cas{
        {202, " 256          Nombre de cellules s\xe9rie", "256          Nombre de cellules série"},
        {203, "-1", "-1"},                      // a byte is never negative
        {6, " 40000", "40000"},                 // above 16 bits
        {7, " abc           Isc", "abc           Isc"},
        {7, " 1.5x", "1.5x"},
        {7, "", "(valeur absente)"},            // empty value line: nothing to convert
        {7, " 1.#INF", "1.#INF"},
        {7, " 1E+39", "1E+39"},                 // beyond a float
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
}

TEST(FichierEnergie, FichierTronqueOuAbsent) {
    DossierTemporaire d("tronque");
    auto s = lignes_defaut(d);
    s.resize(100);
    Etat e;
    e.pwr.cel_isc = 0.7f;
    Erreur r = charge_texte(d, joint(s), e);
    ASSERT_EQ(r.code, CodeErreur::lecture_energie);
    EXPECT_EQ(r.ligne, 101);
    EXPECT_EQ(texte_erreur(r), "Erreur de lecture du fichier de configuration, ligne 101 : fin du fichier atteinte");
    EXPECT_EQ(e.pwr.cel_isc, 0.7f);

    r = charge_energie(e, d / "absent.pwr");
    EXPECT_EQ(r.code, CodeErreur::lecture_energie);
    EXPECT_EQ(r.ligne, 0);
    r = charge_energie(e, d.chemin.string());  // a folder is no file
    EXPECT_EQ(r.code, CodeErreur::lecture_energie);
    EXPECT_EQ(e.pwr.cel_isc, 0.7f);
}

TEST(FichierEnergie, EcritureRemplaceLAncienFichierOuEchoue) {
    DossierTemporaire d("ecriture");
    const Etat e;
    const std::size_t taille = lit_octets(DEFAUT).size();
    // A longer old file is deleted first, not overwritten in place.
    ecrit_octets(d / "p.pwr", std::string(20000, 'x'));
    ASSERT_FALSE(sauve_energie(e, d / "p.pwr"));
    EXPECT_EQ(lit_octets(d / "p.pwr").size(), taille);

    const Erreur r = sauve_energie(e, d / "pas_de_dossier/p.pwr");
    EXPECT_EQ(r.code, CodeErreur::ecriture_energie);
    EXPECT_EQ(texte_erreur(r), "Erreur d'\xc3\xa9" "criture.\n Impossible d'enregistrer la configuration !!");
}

// orbito_conf driven by its object names: the orbit boxes and what they
// show, the .orb file and the TLE import through the dialogs, the pointing,
// the menu entries that open it, and Qt's own words in French.
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "banc_orbito_conf.h"
#include "core/etat/etat.h"
#include "shell/traduction.h"

using kestrel::Etat;
using kestrel::Icone;
using kestrel::gui::menu;
using kestrel::gui::orbito_conf;

class TestOrbitoConf : public QObject {
    Q_OBJECT
private slots:
    void ouverture_par_les_entrees_et_les_touches();
    void boites_de_l_orbite();
    void fichier_orb_par_les_dialogues();
    void import_tle();
    void pointage();
    void mots_de_qt_en_francais();
};

void TestOrbitoConf::ouverture_par_les_entrees_et_les_touches() {
    Banc b;
    auto* onglets = b.ctrl<QTabWidget>("Onglet_orbite");
    QCOMPARE(b.fen->windowTitle(), "Caractéristiques orbitales");
    QVERIFY(b.fen->isVisible());
    QCOMPARE(onglets->currentIndex(), 0);
    // The environment keys open the same window at its third page; the orbit keys go back.
    const struct { const char* barre; const char* cle; int page; } cas[] = {
        {"Toolbar_orb", "envir", 2}, {"Toolbar_orb", "orbite", 0}, {"Toolbar_power", "rad", 2}, {"Toolbar_power", "orb", 0}};
    for (const auto& c : cas) {
        b.principal->Toolbar_ButtonClick(c.barre, c.cle);
        QCOMPARE(onglets->currentIndex(), c.page);
    }
    b.principal->findChild<QAction*>("mn_conf_pow_rad")->trigger();
    QCOMPARE(onglets->currentIndex(), 2);
    QCOMPARE(b.principal->findChildren<orbito_conf*>().size(), 1);
    QCOMPARE(b.etat.session.config_modifiee, int16_t{0});  // opening is no edit

    // orb_quit hides the window, which keeps its page and its state.
    QTest::mouseClick(b.ctrl<QPushButton>("orb_quit"), Qt::LeftButton);
    QVERIFY(!b.fen->isVisible());
    b.principal->findChild<QAction*>("mn_sim_car")->trigger();
    QVERIFY(b.fen->isVisible());
}

void TestOrbitoConf::boites_de_l_orbite() {
    Banc b;
    // The defaults, each through its picture: 15 rev/day, 2001 day 80.55001, a = 7174 km.
    QCOMPARE(b.texte("norad_moy_mvt"), "15.0000000000");
    QCOMPARE(b.texte("norad_an"), "2001");
    QCOMPARE(b.texte("norad_jour"), "80.5500");
    QCOMPARE(b.texte("norad_excentricite"), "0.0000000000");
    QCOMPARE(b.texte("orbite_nom"), "sans_nom");
    // 2001 is no leap year: day 80 is 21 March, .55001 day = 13:12:00.9.
    QCOMPARE(b.texte("lab_epoque"), "21/03/2001 13:12:00");
    QCOMPARE(b.texte("lab_periode"), "01:36:00");  // 1/15 day

    // Passing through a box changes nothing: the day stays 80.55001, not the 80.5500 shown.
    b.saisit("norad_jour", "80.5500");
    QCOMPARE(b.etat.orbite.orb_jour, 80.55001);
    QCOMPARE(b.etat.session.config_modifiee, int16_t{0});

    // Out of range: corrected without a word. Leaving the box or Enter alike.
    b.saisit("norad_ascension", "400");
    QCOMPARE(b.texte("norad_ascension"), "360.0000000000");
    QCOMPARE(b.etat.orbite.orb_ascension, 360.0);
    QCOMPARE(b.etat.session.config_modifiee, int16_t{1});
    b.saisit("norad_an", "2005.7", true);
    QCOMPARE(b.texte("norad_an"), "2005");
    QCOMPARE(b.etat.orbite.orb_an, int16_t{2005});
    QVERIFY(b.dlg.messages.isEmpty());

    // The orbit's figures are the core's; here each box a change moves. 15 rev/day:
    // a = cbrt(398601.3 / n^2), n = 2 pi 15 / 86400 rad/s: 6945.04 km; a = 7200 km:
    // n = sqrt(398601.3 / 7200^3) 86400 / 2 pi = 14.2103405 rev/day.
    b.saisit("norad_moy_mvt", "15", true);
    QVERIFY(std::abs(b.texte("norad_demi").toDouble() - 6945.04) < 0.01);
    b.saisit("norad_demi", "7200");
    QVERIFY(b.texte("norad_moy_mvt").startsWith("14.2103405"));
    b.saisit("norad_demi", "6945.038329945795");
    // e = 0.1: 1.1 * 6945.038 - 6378.137 = 1261.41 and 0.9 * 6945.038 - 6378.137 = -127.60.
    b.saisit("norad_excentricite", "0.1", true);
    QVERIFY(b.texte("lab_apogee").startsWith("1261.40"));
    QVERIFY(b.texte("lab_perigee").startsWith("-127.60"));

    // Not a number: the type message, the box as it was, the record too.
    b.saisit("norad_inclinaison", "douze");
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].texte, "Type de donnée non valide");
    QCOMPARE(b.texte("norad_inclinaison"), "0.0000000000");
    QCOMPARE(b.etat.orbite.orb_inclinaison, 0.0);
}

void TestOrbitoConf::fichier_orb_par_les_dialogues() {
    Banc b;
    b.ctrl("orbite_nom")->setText("  heliosynchrone ");
    b.saisit("norad_inclinaison", "98.2");
    const QString chemin = b.fichier("hs.orb");
    b.dlg.chemins = {chemin};
    QTest::mouseClick(b.ctrl<QPushButton>("orb_enre"), Qt::LeftButton);
    QCOMPARE(b.dlg.demandes.size(), 1);
    const auto& enre = b.dlg.demandes[0];
    QCOMPARE(enre.filtre, "Orbites Meridan (*.orb)");
    QCOMPARE(enre.nom, "heliosynchrone.orb");
    QCOMPARE(enre.extension, "orb");
    QCOMPARE(enre.dossier, QCoreApplication::applicationDirPath());
    QCOMPARE(QFileInfo(chemin).size(), 128);
    QCOMPARE(b.texte("orbite_nom"), "hs");

    // Another orbit in memory, then the file back: every box as saved.
    b.saisit("norad_inclinaison", "10");
    b.saisit("norad_moy_mvt", "14");
    b.dlg.chemins = {chemin};
    QTest::mouseClick(b.ctrl<QPushButton>("orb_ouvr"), Qt::LeftButton);
    const auto& ouvr = b.dlg.demandes[1];
    QCOMPARE(ouvr.filtre, "Orbites (*.orb)");
    QCOMPARE(ouvr.nom, "*.orb");
    QCOMPARE(ouvr.dossier, QCoreApplication::applicationDirPath());
    QCOMPARE(b.texte("norad_inclinaison"), "98.2000000000");
    QCOMPARE(b.texte("norad_moy_mvt"), "15.0000000000");
    QCOMPARE(b.etat.orbite.orb_demi, 7174.0);  // the pair as stored, nothing recomputed
    QCOMPARE(b.texte("orbite_nom"), "hs");

    // Cancel and a missing file change nothing, without a word; a save in a
    // folder that does not exist: the system's description in a stop box.
    b.saisit("norad_inclinaison", "20");
    b.dlg.chemins = {"", b.fichier("absent.orb")};
    QTest::mouseClick(b.ctrl<QPushButton>("orb_ouvr"), Qt::LeftButton);
    QTest::mouseClick(b.ctrl<QPushButton>("orb_ouvr"), Qt::LeftButton);
    QCOMPARE(b.etat.orbite.orb_inclinaison, 20.0);
    QVERIFY(b.dlg.messages.isEmpty());
    // An endless device is refused unread, with its reason in a stop box.
    b.dlg.chemins = {"/dev/zero"};
    QTest::mouseClick(b.ctrl<QPushButton>("orb_ouvr"), Qt::LeftButton);
    QCOMPARE(b.etat.orbite.orb_inclinaison, 20.0);
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].texte, "Lecture refusée : c'est un périphérique, pas un fichier ordinaire");
    b.dlg.messages.clear();
    b.dlg.chemins = {b.fichier("absent/x.orb")};
    QTest::mouseClick(b.ctrl<QPushButton>("orb_enre"), Qt::LeftButton);
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].icone, Icone::critique);
    QVERIFY(b.dlg.messages[0].texte.contains("x.orb"));
    QCOMPARE(b.texte("orbite_nom"), "hs");
}

void TestOrbitoConf::import_tle() {
    // The ISS, 20 September 2008 (checksums 7 and 7 by hand).
    const QString l1 = "1 25544U 98067A   08264.51782528 -.00002182  00000-0 -11606-4 0  2927";
    const QString l2 = "2 25544  51.6416 247.4627 0006703 130.5360 325.0288 15.72125391563537";
    Banc b;
    QApplication::clipboard()->setText("ISS (ZARYA)\n" + l1 + "\n" + l2 + "\n");
    b.ctrl<QAction>("orb_tle_presse_papiers")->trigger();
    QVERIFY(b.dlg.messages.isEmpty());
    QCOMPARE(b.texte("orbite_nom"), "ISS (ZARYA)");
    QCOMPARE(b.etat.session.config_modifiee, int16_t{1});

    // Every box from the lines, in its picture; day 264 of 2008 (a leap year:
    // 244 days to the end of August) is 20 September, .51782528 day = 12:25:40.1;
    // the period 86400 / 15.72125391 = 5495.7 s, to the nearest second.
    const std::pair<const char*, const char*> boites[] = {
        {"norad_inclinaison", "51.6416000000"}, {"norad_ascension", "247.4627000000"},
        {"norad_excentricite", "0.0006703000"}, {"norad_argument", "130.5360000000"},
        {"norad_anomalie", "325.0288000000"},   {"norad_moy_mvt", "15.7212539100"},
        {"norad_an", "2008"},                   {"norad_jour", "264.5178"},
        {"lab_epoque", "20/09/2008 12:25:40"}, {"lab_periode", "01:31:36"}};
    for (const auto& [nom, texte] : boites) QCOMPARE(b.texte(nom), texte);

    // A wrong checksum: the message names line and column, nothing changes.
    QString faux = l2;
    faux[68] = '8';
    QFile f(b.fichier("faux.tle"));
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write((l1 + "\n" + faux).toUtf8()) > 0);
    f.close();
    b.saisit("norad_inclinaison", "98");
    b.dlg.chemins = {f.fileName()};
    b.ctrl<QAction>("orb_tle_fichier")->trigger();
    QCOMPARE(b.dlg.demandes.back().filtre, "Eléments TLE (*.tle *.txt);;All Files (*.*)");
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].texte,
             "Erreur de lecture du TLE, ligne 2, colonne 69 : somme de contrôle 8 au lieu de 7");
    QCOMPARE(b.texte("norad_inclinaison"), "98.0000000000");
    QCOMPARE(b.etat.orbite.orb_an, int16_t{2008});

    // A folder is refused unread, named with its reason.
    b.dlg.chemins = {QDir::tempPath()};
    b.ctrl<QAction>("orb_tle_fichier")->trigger();
    QCOMPARE(b.dlg.messages.size(), 2);
    QCOMPARE(b.dlg.messages[1].texte,
             "Fichier « " + QDir::tempPath() + " » : Lecture refusée : c'est un dossier, pas un fichier");
}

void TestOrbitoConf::pointage() {
    Banc b;
    b.ctrl<QTabWidget>("Onglet_orbite")->setCurrentIndex(1);
    auto* att = b.ctrl<QRadioButton>("opt_att");
    auto* iner = b.ctrl<QRadioButton>("opt_iner");
    QVERIFY(att->isChecked() && b.ctrl("txt_attx")->isEnabled() && !b.ctrl("txt_inerx")->isEnabled());

    b.saisit("txt_atty", "100", true);  // -90..90
    QCOMPARE(b.texte("txt_atty"), "90.00");
    QCOMPARE(b.etat.pointage.att_tangage, 90.0);

    iner->setChecked(true);
    QVERIFY(!b.ctrl("txt_attx")->isEnabled() && b.ctrl("txt_inerz")->isEnabled());
    QCOMPARE(b.etat.pointage.pointage_orbital, int16_t{0});
    // Default orbit at its epoch, u = 0: a yaw of 30 deg alone comes back as
    // roll 90, first turn -30, third 90 (hand product R3(30) times the axis
    // cycle), shown x = element 0, y = element 2, z = element 1.
    b.saisit("txt_inerz", "30");
    QCOMPARE(b.texte("txt_attx"), "90.00");
    QCOMPARE(b.texte("txt_atty"), "90.00");
    QCOMPARE(b.texte("txt_attz"), "-30.00");

    // The Sun pointing fails as it stands: a French message, no crash, nothing changed.
    QTest::mouseClick(b.ctrl<QPushButton>("cmd_sun"), Qt::LeftButton);
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].icone, Icone::critique);
    QVERIFY(b.dlg.messages[0].texte.contains("pointage_soleil"));
    QCOMPARE(b.texte("txt_attz"), "-30.00");

    // Face 1..6 in the list's order; the attitude mode keeps its last value on "-Y".
    auto* face = b.ctrl<QComboBox>("cmb_pointage");
    QCOMPARE(face->count(), 6);
    face->setCurrentText("-X");
    QCOMPARE(b.etat.pointage.face, int16_t{4});
    QCOMPARE(b.etat.att.mode_pointage, int16_t{4});
    face->setCurrentText("-Y");
    QCOMPARE(b.etat.pointage.face, int16_t{5});
    QCOMPARE(b.etat.att.mode_pointage, int16_t{4});

    auto* spin = b.ctrl<QCheckBox>("Chk_spin");
    QVERIFY(!b.ctrl("txt_vspin")->isEnabled());
    spin->setChecked(true);
    QCOMPARE(b.etat.pointage.spin, int16_t{-1});
    b.saisit("txt_vspin", "-120");
    QCOMPARE(b.texte("txt_vspin"), "-100.000");
    b.ctrl<QComboBox>("Cmb_Spin")->setCurrentIndex(2);
    QCOMPARE(b.etat.pointage.axe_spin, int16_t{2});
}
void TestOrbitoConf::mots_de_qt_en_francais() {
    QVERIFY(kestrel::gui::installe_traduction_qt(*QCoreApplication::instance()));
    QDialogButtonBox boutons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Save);
    QCOMPARE(boutons.button(QDialogButtonBox::Cancel)->text(), "Annuler");
    QCOMPARE(boutons.button(QDialogButtonBox::Save)->text(), "Enregistrer");
    QCOMPARE(QLocale().monthName(3), "mars");
}

QTEST_MAIN(TestOrbitoConf)
#include "test_gui_orbito_conf.moc"

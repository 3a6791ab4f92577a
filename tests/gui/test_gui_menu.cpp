// The first screen and the main window driven by their object names: period,
// step, real-time mode, project open/save and the end of the program.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>
#include <memory>

#include "core/etat.h"
#include "core/project/projet.h"
#include "core/shell/messages.h"
#include "faux_dialogues.h"
#include "shell/frm_first.h"
#include "shell/menu.h"

using kestrel::Etat;
using kestrel::Icone;
using kestrel::gui::menu;
using kestrel::gui::Reponse;

namespace {

// Epoch of the default orbit, 2001 day 80.55001, as a day count:
// 1950 -> 2001 is 51 years with 13 leap days (1952..2000): 51 * 365 + 13 = 18628,
// then + 80.55001 - 1 = 18707.55001. One period later: + 1/15 day (15 rev/day).
constexpr double epoque = 18707.55001;
constexpr double une_seconde = 1.0 / 86400.0;

QDateTime utc(int an, int mois, int jour, int h, int m, int s) {
    return QDateTime(QDate(an, mois, jour), QTime(h, m, s), Qt::UTC);
}

struct Banc {
    Etat etat;
    FauxDialogues dlg;
    std::unique_ptr<menu> fen;
    QTemporaryDir tmp;

    Banc() : fen(std::make_unique<menu>(etat, dlg)) {}
    template <class T>
    T* ctrl(const char* nom) {
        T* c = fen->findChild<T*>(QString::fromUtf8(nom));
        if (!c) qFatal("control %s not found", nom);
        return c;
    }
    QAction* cle(const char* barre, const char* nom) {
        return ctrl<QToolBar>(barre)->findChild<QAction*>(QString::fromUtf8(nom));
    }
    QString fichier(const char* nom) const { return tmp.filePath(QString::fromUtf8(nom)); }
    kestrel::Session& s() { return etat.session; }
};

}  // namespace

class TestMenu : public QObject {
    Q_OBJECT
private slots:
    void premier_ecran_passe_la_main();
    void periode_par_defaut_depuis_orbite();
    void pas_depuis_la_liste();
    void temps_reel_garde_pas_un();
    void debut_apres_fin_revient();
    void entrees_sans_fenetre_desactivees();
    void touches_renvoient_au_menu();
    void ouverture_pas_45_s();
    void ouverture_fichier_mauvais();
    void enregistre_puis_ouvre();
    void echecs_d_ecriture();
    void fenetres_conf_rechargees();
    void quitter_oui_non_annuler();
    void capture_fenetre();
};

void TestMenu::premier_ecran_passe_la_main() {
    Etat etat;
    FauxDialogues dlg;
    auto* premier = new kestrel::gui::frmFirst(etat, dlg);
    premier->setAttribute(Qt::WA_DeleteOnClose);
    QPointer<kestrel::gui::frmFirst> garde(premier);
    premier->show();
    QCOMPARE(premier->windowTitle(), QStringLiteral("MERIDAN"));
    auto* pict = premier->findChild<QLabel*>(QStringLiteral("pict_titre"));
    QVERIFY(pict && !pict->pixmap().isNull());

    QTest::mouseClick(premier->findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    menu* principal = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String("menu")) principal = qobject_cast<menu*>(w);
    QVERIFY(principal);
    QVERIFY(principal->isVisible());
    QCOMPARE(principal->windowTitle(), QStringLiteral("Energie (sans_nom)"));
    QVERIFY(garde.isNull());  // the first screen is gone
    delete principal;
}

void TestMenu::periode_par_defaut_depuis_orbite() {
    Banc b;
    QCOMPARE(b.s().j_debut, kestrel::epoque_orbite(b.etat.orbite));
    QVERIFY(std::abs(b.s().j_debut - epoque) < 1e-9);
    QVERIFY(std::abs(b.s().j_fin - (epoque + 1.0 / 15.0)) < 1e-9);
    // 0.55001 day = 13 h 12 min 0.864 s; + 96 min = 14 h 48 min 0.864 s; day 80 of
    // 2001 (31 + 28 + 21) is 21 March. The pickers show whole seconds.
    QCOMPARE(b.ctrl<QDateTimeEdit>("txt_date_debut")->dateTime(), utc(2001, 3, 21, 13, 12, 0));
    QCOMPARE(b.ctrl<QDateTimeEdit>("txt_date_fin")->dateTime(), utc(2001, 3, 21, 14, 48, 0));
    QCOMPARE(b.ctrl<QComboBox>("cmb_pas")->currentText(), QStringLiteral("2 min"));
    QCOMPARE(b.s().pas_sim, 120);
    QCOMPARE(b.s().config_modifiee, int16_t{0});
    QCOMPARE(QString::fromStdString(b.s().dossier_depart), QCoreApplication::applicationDirPath());
}

void TestMenu::pas_depuis_la_liste() {
    Banc b;
    auto* cmb = b.ctrl<QComboBox>("cmb_pas");
    const QStringList attendu{"1 s",    "2 s",    "5 s",    "10 s",   "30 s",   "1 min", "2 min",
                              "5 min",  "10 min", "15 min", "30 min", "45 min", "60 min"};
    QStringList liste;
    for (int i = 0; i < cmb->count(); ++i) liste << cmb->itemText(i);
    QCOMPARE(liste, attendu);

    struct Cas {
        const char* texte;
        int pas;  // s: minute items x 60
    };
    for (const Cas c : {Cas{"1 min", 60}, Cas{"10 s", 10}, Cas{"45 min", 2700}}) {
        cmb->setCurrentIndex(cmb->findText(QString::fromUtf8(c.texte)));
        QCOMPARE(b.s().pas_sim, c.pas);
    }
    QCOMPARE(b.s().config_modifiee, int16_t{0});  // the step alone is no change of configuration
}

void TestMenu::temps_reel_garde_pas_un() {
    Banc b;
    auto* chk = b.ctrl<QCheckBox>("chk_RealTime");
    auto* cmb = b.ctrl<QComboBox>("cmb_pas");
    QCOMPARE(chk->text(), QStringLiteral("Temps réel"));
    QCOMPARE(chk->toolTip(), QStringLiteral("Real time mode"));
    cmb->setCurrentIndex(cmb->findText(QStringLiteral("5 min")));

    chk->setChecked(true);
    QCOMPARE(b.s().pas_sim, 1);
    QCOMPARE(b.s().temps_reel, kestrel::VRAI);
    QCOMPARE(b.s().config_modifiee, int16_t{1});
    QVERIFY(!cmb->isEnabled());
    QVERIFY(!b.ctrl<QDateTimeEdit>("txt_date_debut")->isEnabled());
    QVERIFY(!b.ctrl<QDateTimeEdit>("txt_date_fin")->isEnabled());

    chk->setChecked(false);
    QCOMPARE(b.s().temps_reel, kestrel::FAUX);
    QCOMPARE(b.s().pas_sim, 1);  // the list still shows "5 min"
    QCOMPARE(cmb->currentText(), QStringLiteral("5 min"));
    QVERIFY(cmb->isEnabled());
    QVERIFY(b.ctrl<QDateTimeEdit>("txt_date_debut")->isEnabled());

    // Picking the item on display brings its step back.
    emit cmb->activated(cmb->currentIndex());
    QCOMPARE(b.s().pas_sim, 300);
}

void TestMenu::debut_apres_fin_revient() {
    Banc b;
    auto* debut = b.ctrl<QDateTimeEdit>("txt_date_debut");
    auto* fin = b.ctrl<QDateTimeEdit>("txt_date_fin");
    const double j_fin = b.s().j_fin;

    // A start a day after the end becomes the end as shown (14:48:00), the end stays.
    debut->setDateTime(utc(2001, 3, 22, 14, 48, 0));
    QCOMPARE(debut->dateTime(), utc(2001, 3, 21, 14, 48, 0));
    QCOMPARE(fin->dateTime(), utc(2001, 3, 21, 14, 48, 0));
    QVERIFY(std::abs(b.s().j_debut - (18707.0 + (14 * 60 + 48) / 1440.0)) < 1e-9);
    QCOMPARE(b.s().j_fin, j_fin);
    QCOMPARE(b.s().config_modifiee, int16_t{1});

    // A start earlier is taken as it is: 2001-03-20 06:00 = 18706.25.
    debut->setDateTime(utc(2001, 3, 20, 6, 0, 0));
    QVERIFY(std::abs(b.s().j_debut - 18706.25) < 1e-9);

    // An end before the start becomes the start.
    fin->setDateTime(utc(2001, 3, 19, 0, 0, 0));
    QCOMPARE(fin->dateTime(), utc(2001, 3, 20, 6, 0, 0));
    QVERIFY(std::abs(b.s().j_fin - 18706.25) < 1e-9);
}

void TestMenu::entrees_sans_fenetre_desactivees() {
    Banc b;
    auto entree = [&](const char* nom) { return b.ctrl<QAction>(nom); };
    // Commands of this window work; label entries and windows not built yet are off.
    for (const char* nom : {"mn_fichier_ouvrir", "mn_fichier_enreg", "mn_fichier_enregsous",
                            "mn_attfich_ouvrir", "mn_attfich_enreg", "mn_attfich_enregsous",
                            "mn_fichier_quit"})
        QVERIFY2(entree(nom)->isEnabled(), nom);
    for (const char* nom : {"mn_fic_pow", "mn_fic_att"}) QVERIFY2(!entree(nom)->isEnabled(), nom);
    QCOMPARE(entree("mn_fichier_enregsous")->text(), QStringLiteral("  Enregistrer sous..."));
    QCOMPARE(b.ctrl<QMenu>("mn_pow")->title(), QStringLiteral("Sytème énergie"));
    QCOMPARE(entree("mn_sim_car")->text(), QStringLiteral("Orbite/Attitude"));
    QCOMPARE(b.ctrl<QMenu>("mn_orbito")->title(), QStringLiteral("Orbitographie/Environnement"));
    // The commands under the two label entries keep their two leading blanks.
    QCOMPARE(entree("mn_fichier_ouvrir")->text(), QStringLiteral("  Ouvrir un projet"));
    QCOMPARE(entree("mn_attfich_enreg")->text(), QStringLiteral("  Enregistrer le projet"));
    // Entries sit in their sub-menu, the sub-menu in its heading.
    QVERIFY(b.ctrl<QMenu>("mn_pow_conf")->actions().contains(entree("mn_conf_pow_rad")));
    QVERIFY(b.ctrl<QMenu>("mn_att")->actions().contains(b.ctrl<QMenu>("mn_att_exp")->menuAction()));

    // A disabled entry's keys are disabled with it, and come on when it is given a command.
    QVERIFY(!entree("mn_sim_car")->isEnabled());
    QVERIFY(!b.cle("Toolbar_orb", "orbite")->isEnabled());
    QVERIFY(!b.cle("Toolbar_power", "orb")->isEnabled());
    const QString pourquoi = QStringLiteral("Fenêtre non disponible dans cette version");
    QCOMPARE(entree("mn_sim_car")->toolTip(), pourquoi);
    int ouvertures = 0;
    b.fen->branche(QStringLiteral("mn_sim_car"), [&] { ++ouvertures; });
    QVERIFY(b.cle("Toolbar_orb", "orbite")->isEnabled());
    QVERIFY(b.cle("Toolbar_power", "orb")->isEnabled());
    QVERIFY(entree("mn_sim_car")->toolTip() != pourquoi);
    b.cle("Toolbar_orb", "orbite")->trigger();
    b.cle("Toolbar_power", "orb")->trigger();
    QCOMPARE(ouvertures, 2);
}

void TestMenu::touches_renvoient_au_menu() {
    Banc b;
    auto cles = [&](const char* barre) {
        QStringList l;
        for (QAction* a : b.ctrl<QToolBar>(barre)->actions()) l << a->objectName();
        return l;
    };
    QCOMPARE(cles("Toolbar_orb"), (QStringList{"orbite", "envir"}));
    QCOMPARE(cles("Toolbar_power"),
             (QStringList{"quit", "open", "save", "cell", "therm", "pan", "bat", "oper", "rad", "orb",
                          "sim_pow", "sim_all", "exp_bat", "exp_data"}));
    QCOMPARE(cles("Toolbar_att"), (QStringList{"open", "save", "masses", "proprietes", "actuators",
                                               "gestatt", "simulation", "expatt"}));
    QCOMPARE(b.ctrl<QGroupBox>("fra_orbito")->title(), QStringLiteral("Orbito"));
    QCOMPARE(b.ctrl<QGroupBox>("fra_energie")->title(), QStringLiteral("Energie"));
    QCOMPARE(b.ctrl<QGroupBox>("fra_attitude")->title(), QStringLiteral("Contrôle d'attitude"));
    // The tooltips the keys must carry word for word.
    struct Bulle {
        const char* barre;
        const char* cle;
        const char* texte;
    };
    for (const Bulle& t : {Bulle{"Toolbar_att", "open", "Ouvrir un projet pour le sous-système attitude"},
                           Bulle{"Toolbar_att", "save", "Enregistrer le projet du sous-système attitude"},
                           Bulle{"Toolbar_att", "masses", "Masse/Géométrie"},
                           Bulle{"Toolbar_att", "proprietes", "Propriétés satellite"},
                           Bulle{"Toolbar_att", "actuators", "Définir les actionneurs"},
                           Bulle{"Toolbar_att", "gestatt", "Gestion du sous-système"},
                           Bulle{"Toolbar_att", "simulation", "Simulation"},
                           Bulle{"Toolbar_att", "expatt", "Exploitation des données"},
                           Bulle{"Toolbar_orb", "orbite", "Définir l'orbite"},
                           Bulle{"Toolbar_orb", "envir", "Définir l'environnement"},
                           Bulle{"Toolbar_power", "open", "Ouvrir un fichier énergie"}})
        QCOMPARE(b.cle(t.barre, t.cle)->toolTip(), QString::fromUtf8(t.texte));

    // "open" means the energy project in one toolbar, the attitude one in the other.
    b.dlg.chemins = {QString(), QString(), QString()};
    b.fen->Toolbar_ButtonClick(QStringLiteral("Toolbar_power"), QStringLiteral("open"));
    b.cle("Toolbar_att", "open")->trigger();
    b.cle("Toolbar_att", "save")->trigger();  // no path yet: save as
    QCOMPARE(b.dlg.demandes.size(), 3);
    QCOMPARE(b.dlg.demandes[0].titre,
             QStringLiteral("Ouvrir un fichier configuration du système énergie"));
    QCOMPARE(b.dlg.demandes[1].titre,
             QStringLiteral("Ouvrir un fichier de configuration du contrôle d'attitude"));
    QCOMPARE(b.dlg.demandes[1].filtre, QStringLiteral("Fichiers  Configuration (*.att);;All Files (*.*)"));
    QCOMPARE(b.dlg.demandes[2].titre,
             QStringLiteral("Enregistrer le fichier de configuration du contrôle d'attitude"));
    // Cancelled dialogs change nothing.
    QVERIFY(b.s().chemin_energie.empty() && b.s().chemin_attitude.empty());
    QCOMPARE(b.s().config_modifiee, int16_t{0});

    // A key whose entry is disabled does nothing; an unknown key neither.
    b.fen->Toolbar_ButtonClick(QStringLiteral("Toolbar_power"), QStringLiteral("sim_all"));
    b.fen->Toolbar_ButtonClick(QStringLiteral("Toolbar_att"), QStringLiteral("quit"));
    QCOMPARE(b.dlg.demandes.size(), 3);
    QVERIFY(b.dlg.questions.isEmpty());
}

void TestMenu::ouverture_pas_45_s() {
    Banc b;
    // A project whose step (45 s) is not in the list's table.
    Etat source;
    source.session.pas_sim = 45;
    const QString chemin = b.fichier("projet45.pwr");
    QVERIFY(!kestrel::sauve_energie(source, chemin.toStdString()));

    auto* cmb = b.ctrl<QComboBox>("cmb_pas");
    cmb->setCurrentIndex(cmb->findText(QStringLiteral("5 min")));
    b.dlg.chemins = {chemin};
    b.ctrl<QAction>("mn_fichier_ouvrir")->trigger();

    QCOMPARE(b.dlg.demandes.size(), 1);
    QCOMPARE(b.dlg.demandes[0].filtre, QStringLiteral("Fichiers  Configuration (*.pwr);;All Files (*.*)"));
    QCOMPARE(b.dlg.demandes[0].dossier, QCoreApplication::applicationDirPath());
    QVERIFY(b.dlg.messages.isEmpty());
    QCOMPARE(b.s().pas_sim, 45);
    QCOMPARE(cmb->currentText(), QStringLiteral("5 min"));
    QCOMPARE(b.fen->windowTitle(), QStringLiteral("Energie (projet45)"));
    QCOMPARE(b.ctrl<QGroupBox>("fra_energie")->title(), QStringLiteral("Energie (projet45)"));
    QCOMPARE(QString::fromStdString(b.s().chemin_energie), chemin);
    QCOMPARE(b.s().config_modifiee, int16_t{1});
    QCOMPARE(QDir::currentPath(), QCoreApplication::applicationDirPath());
}

void TestMenu::ouverture_fichier_mauvais() {
    Banc b;
    const QString mauvais = b.fichier("mauvais.pwr");
    {
        QFile f(mauvais);
        QVERIFY(f.open(QIODevice::WriteOnly));
        for (int i = 0; i < 300; ++i) f.write("pas un nombre\r\n");
    }
    auto* debut = b.ctrl<QDateTimeEdit>("txt_date_debut");
    const QDateTime debut_avant = debut->dateTime();
    const Etat avant = b.etat;

    // An unreadable .pwr: its report naming the line, and the program goes on.
    b.dlg.chemins = {mauvais, b.fichier("absent.att")};
    b.ctrl<QAction>("mn_fichier_ouvrir")->trigger();
    QCOMPARE(b.dlg.messages.size(), 1);
    QVERIFY(b.dlg.messages[0].texte.startsWith(QStringLiteral("Erreur de lecture")));
    QVERIFY(b.dlg.messages[0].texte.contains(QStringLiteral("ligne ")));
    QCOMPARE(b.dlg.messages[0].icone, Icone::critique);
    QVERIFY(b.dlg.fatales.isEmpty());

    // A missing .att gives its own message, word for word.
    b.ctrl<QAction>("mn_attfich_ouvrir")->trigger();
    QCOMPARE(b.dlg.messages.size(), 2);
    QCOMPARE(b.dlg.messages[1].texte, QString::fromUtf8(kestrel::msg::lecture_attitude));
    QCOMPARE(b.dlg.messages[1].icone, Icone::critique);
    QVERIFY(b.dlg.fatales.isEmpty());

    // The session is as it was.
    QCOMPARE(b.s().j_debut, avant.session.j_debut);
    QCOMPARE(b.s().j_fin, avant.session.j_fin);
    QCOMPARE(b.s().pas_sim, avant.session.pas_sim);
    QCOMPARE(b.s().config_modifiee, int16_t{0});
    QVERIFY(b.s().chemin_energie.empty() && b.s().chemin_attitude.empty());
    QCOMPARE(b.etat.att.Masse, avant.att.Masse);
    QCOMPARE(b.fen->windowTitle(), QStringLiteral("Energie (sans_nom)"));
    QCOMPARE(b.ctrl<QGroupBox>("fra_attitude")->title(), QStringLiteral("Contrôle d'attitude"));
    QCOMPARE(debut->dateTime(), debut_avant);
}

void TestMenu::enregistre_puis_ouvre() {
    Banc b;
    auto* cmb = b.ctrl<QComboBox>("cmb_pas");
    auto* debut = b.ctrl<QDateTimeEdit>("txt_date_debut");
    cmb->setCurrentIndex(cmb->findText(QStringLiteral("10 min")));
    debut->setDateTime(utc(2001, 3, 20, 6, 0, 0));  // 18706.25
    const QString chemin = b.fichier("essai.pwr");

    b.dlg.chemins = {chemin};
    b.ctrl<QAction>("mn_fichier_enreg")->trigger();  // no path yet: save as
    QCOMPARE(b.dlg.demandes.size(), 1);
    QCOMPARE(b.dlg.demandes[0].titre, QStringLiteral("Enregistrer la configuration du système énergie"));
    QCOMPARE(b.dlg.demandes[0].nom, QString());
    QVERIFY(QFile::exists(chemin));
    QCOMPARE(b.fen->windowTitle(), QStringLiteral("Energie (essai)"));

    // Save again: the same file, no dialog.
    QFile::remove(chemin);
    b.ctrl<QAction>("mn_fichier_enreg")->trigger();
    QCOMPARE(b.dlg.demandes.size(), 1);
    QVERIFY(QFile::exists(chemin));

    // Another step and start, then the project again.
    cmb->setCurrentIndex(cmb->findText(QStringLiteral("1 min")));
    debut->setDateTime(utc(2001, 3, 21, 0, 0, 0));
    b.dlg.chemins = {chemin};
    b.ctrl<QAction>("mn_fichier_ouvrir")->trigger();
    QVERIFY(b.dlg.messages.isEmpty());
    QCOMPARE(b.s().pas_sim, 600);
    QCOMPARE(cmb->currentText(), QStringLiteral("10 min"));
    QVERIFY(std::abs(b.s().j_debut - 18706.25) < une_seconde);
    QCOMPARE(debut->dateTime(), utc(2001, 3, 20, 6, 0, 0));
    QCOMPARE(b.dlg.demandes[1].nom, QStringLiteral("essai"));  // proposed: name without ".pwr"

    // The attitude half, on its own.
    b.etat.att.Masse = 73.5;
    const QString att = b.fichier("sat.att");
    b.dlg.chemins = {att};
    b.ctrl<QAction>("mn_attfich_enregsous")->trigger();
    QCOMPARE(b.ctrl<QGroupBox>("fra_attitude")->title(), QStringLiteral("Contrôle d'attitude (sat)"));
    QCOMPARE(b.fen->windowTitle(), QStringLiteral("Energie (essai)"));
    b.etat.att.Masse = 10.0;
    b.s().config_modifiee = 0;
    b.dlg.chemins = {att};
    b.ctrl<QAction>("mn_attfich_ouvrir")->trigger();
    QCOMPARE(b.etat.att.Masse, 73.5);
    QCOMPARE(QString::fromStdString(b.s().chemin_attitude), att);
    QCOMPARE(b.s().config_modifiee, int16_t{1});

    // Titles and proposed names drop the last four characters whatever they
    // are: "sauvegarde.v2" less "e.v2" is "sauvegard".
    b.dlg.chemins = {b.fichier("sauvegarde.v2"), QString()};
    b.ctrl<QAction>("mn_fichier_enregsous")->trigger();
    QCOMPARE(b.fen->windowTitle(), QStringLiteral("Energie (sauvegard)"));
    b.ctrl<QAction>("mn_fichier_enregsous")->trigger();
    QCOMPARE(b.dlg.demandes.last().nom, QStringLiteral("sauvegard"));
}

void TestMenu::echecs_d_ecriture() {
    Banc b;
    // A folder that does not exist: every write there fails.
    const QString pwr = b.fichier("absent/x.pwr");
    const QString att = b.fichier("absent/x.att");

    // Energy: the stop box word for word, then the program goes on as it was.
    b.dlg.chemins = {pwr, att};
    b.ctrl<QAction>("mn_fichier_enregsous")->trigger();
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].texte, QString::fromUtf8(kestrel::msg::ecriture_energie));
    QCOMPARE(b.dlg.messages[0].icone, Icone::critique);
    QVERIFY(b.s().chemin_energie.empty());
    QCOMPARE(b.fen->windowTitle(), QStringLiteral("Energie (sans_nom)"));

    // Attitude save as: ends as a cancel does, without a word.
    b.ctrl<QAction>("mn_attfich_enregsous")->trigger();
    QCOMPARE(b.dlg.messages.size(), 1);
    QVERIFY(b.s().chemin_attitude.empty());
    QCOMPARE(b.ctrl<QGroupBox>("fra_attitude")->title(), QStringLiteral("Contrôle d'attitude"));
    QVERIFY(b.dlg.fatales.isEmpty());

    // Attitude save over the current file: no dialog, and a failure ends the program.
    b.s().chemin_attitude = att.toStdString();
    b.ctrl<QAction>("mn_attfich_enreg")->trigger();
    QCOMPARE(b.dlg.demandes.size(), 2);
    QCOMPARE(b.dlg.fatales.size(), 1);
    QCOMPARE(b.dlg.messages.size(), 1);
}

void TestMenu::fenetres_conf_rechargees() {
    Banc b;
    int conf = 0, attconf = 0;
    QWidget power_conf, att_conf;
    // When a window reloads, the title already names the project and the
    // mark is not yet set: it comes last.
    QString titre_vu;
    int16_t marque_vue = -1;
    b.fen->registre().inscrit(&power_conf, QStringLiteral("conf"), [&] {
        ++conf;
        titre_vu = b.fen->windowTitle();
        marque_vue = b.s().config_modifiee;
    });
    b.fen->registre().inscrit(&att_conf, QStringLiteral("attconf"), [&] { ++attconf; });

    const QString pwr = b.fichier("r.pwr");
    const QString att = b.fichier("r.att");
    QVERIFY(!kestrel::sauve_energie(b.etat, pwr.toStdString()));
    QVERIFY(!kestrel::sauve_attitude(b.etat, att.toStdString()));
    b.dlg.chemins = {pwr, att};
    b.ctrl<QAction>("mn_fichier_ouvrir")->trigger();
    QCOMPARE(conf, 1);
    QCOMPARE(attconf, 0);
    QCOMPARE(titre_vu, QStringLiteral("Energie (r)"));
    QCOMPARE(marque_vue, int16_t{0});
    QCOMPARE(b.s().config_modifiee, int16_t{1});
    b.ctrl<QAction>("mn_attfich_ouvrir")->trigger();
    QCOMPARE(conf, 1);
    QCOMPARE(attconf, 1);
}

void TestMenu::quitter_oui_non_annuler() {
    Banc b;
    b.fen->show();
    const QString attendu = QStringLiteral("Configuration|Voulez-vous enregistrer le projet ?");

    b.dlg.reponses = {Reponse::annuler};
    b.ctrl<QAction>("mn_fichier_quit")->trigger();
    b.dlg.reponses = {Reponse::annuler};
    b.cle("Toolbar_power", "quit")->trigger();
    QCOMPARE(b.dlg.questions, (QList<QString>{attendu, attendu}));

    // Yes with no project file yet offers save as; cancelling it keeps the window.
    b.dlg.reponses = {Reponse::oui};
    b.dlg.chemins = {QString()};
    QVERIFY(!b.fen->close());
    QCOMPARE(b.dlg.demandes.size(), 1);

    // Yes with a project file rewrites it with no dialog, then ends.
    const QString chemin = b.fichier("fin.pwr");
    b.s().chemin_energie = chemin.toStdString();
    b.dlg.reponses = {Reponse::oui};
    QVERIFY(b.fen->close());
    QVERIFY(QFile::exists(chemin));
    QCOMPARE(b.dlg.demandes.size(), 1);

    // No ends at once, without a dialog.
    b.fen->show();
    QFile::remove(chemin);
    b.dlg.reponses = {Reponse::non};
    QVERIFY(b.fen->close());
    QVERIFY(!b.fen->isVisible());
    QCOMPARE(b.dlg.demandes.size(), 1);
    QVERIFY(!QFile::exists(chemin));
}

void TestMenu::capture_fenetre() {
    Banc b;
    b.fen->show();
    QVERIFY(QTest::qWaitForWindowExposed(b.fen.get()));
    const QString dossier = QCoreApplication::applicationDirPath() + QStringLiteral("/../artefacts");
    QVERIFY(QDir().mkpath(dossier));
    const QImage image = b.fen->grab().toImage();
    QVERIFY(image.width() > 300 && image.height() > 100);
    QVERIFY(image.save(dossier + QStringLiteral("/menu.png")));

    Etat etat;
    FauxDialogues dlg;
    kestrel::gui::frmFirst premier(etat, dlg);
    premier.show();
    QVERIFY(QTest::qWaitForWindowExposed(&premier));
    QVERIFY(premier.grab().save(dossier + QStringLiteral("/frmFirst.png")));
}

QTEST_MAIN(TestMenu)
#include "test_gui_menu.moc"

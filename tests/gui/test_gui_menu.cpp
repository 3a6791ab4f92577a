// The first screen and the main window driven by their object names: period,
// step, real-time mode, project open/save and the end of the program.
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "core/etat/etat.h"
#include "core/project/energie.h"
#include "core/project/fichiers_binaires.h"
#include "core/shell/messages.h"
#include "faux_dialogues.h"
#include "shell/frm_first.h"
#include "shell/menu.h"

using kestrel::Etat;
using kestrel::Icone;
using kestrel::gui::menu;
using kestrel::gui::Reponse;
using Message = FauxDialogues::Message;

namespace {

// Epoch of the default orbit, 2001 day 80.55001, as a day count:
// 1950 -> 2001 is 51 years with 13 leap days (1952..2000): 51 * 365 + 13 = 18628,
// then + 80.55001 - 1 = 18707.55001. One period later: + 1/15 day (15 rev/day).
constexpr double epoque = 18707.55001;

QDateTime utc(int an, int mois, int jour, int h, int m) {
    return QDateTime(QDate(an, mois, jour), QTime(h, m), Qt::UTC);
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
    QAction* cle(const char* barre, const char* nom) { return ctrl<QToolBar>(barre)->findChild<QAction*>(nom); }
    // The text a user reads on a menu, a frame or an entry.
    QString texte(const char* nom) {
        if (auto* m = fen->findChild<QMenu*>(nom)) return m->title();
        if (auto* g = fen->findChild<QGroupBox*>(nom)) return g->title();
        return ctrl<QAction>(nom)->text();
    }
    // Runs a menu entry, the file dialogs it opens answered by the given paths.
    void declenche(const char* entree, const QStringList& chemins = {}) {
        dlg.chemins.assign(chemins.begin(), chemins.end());
        ctrl<QAction>(entree)->trigger();
    }
    void choisit_pas(const char* texte) {
        auto* cmb = ctrl<QComboBox>("cmb_pas");
        cmb->setCurrentIndex(cmb->findText(texte));
    }
    QString fichier(const char* nom) const { return tmp.filePath(nom); }
    kestrel::Session& s() { return etat.session; }
};

}  // namespace

class TestMenu : public QObject {
    Q_OBJECT
private slots:
    void premier_ecran_passe_la_main();
    void periode_pas_temps_reel_et_dates();
    void entrees_et_touches();
    void ouverture_recharge_les_fenetres();
    void echecs_laissent_la_session();
    void enregistre_puis_ouvre();
    void quitter_oui_non_annuler();
};

void TestMenu::premier_ecran_passe_la_main() {
    Etat etat;
    FauxDialogues dlg;
    auto* premier = new kestrel::gui::frmFirst(etat, dlg);
    premier->setAttribute(Qt::WA_DeleteOnClose);
    QPointer<kestrel::gui::frmFirst> garde(premier);
    premier->show();
    QVERIFY(QTest::qWaitForWindowExposed(premier));
    QCOMPARE(premier->windowTitle(), "MERIDAN");
    auto* pict = premier->findChild<QLabel*>("pict_titre");
    QVERIFY(pict && !pict->pixmap().isNull());

    QTest::mouseClick(premier->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(garde.isNull());  // the first screen is gone
    std::unique_ptr<menu> principal;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "menu") principal.reset(qobject_cast<menu*>(w));
    QVERIFY(principal && principal->isVisible());
    QCOMPARE(principal->windowTitle(), "Energie (sans_nom)");
    QVERIFY(QTest::qWaitForWindowExposed(principal.get()));
}

void TestMenu::periode_pas_temps_reel_et_dates() {
    Banc b;
    auto* cmb = b.ctrl<QComboBox>("cmb_pas");
    auto* debut = b.ctrl<QDateTimeEdit>("txt_date_debut");
    auto* fin = b.ctrl<QDateTimeEdit>("txt_date_fin");
    QVERIFY(std::abs(b.s().j_debut - epoque) < 1e-9);
    QVERIFY(std::abs(b.s().j_fin - (epoque + 1.0 / 15.0)) < 1e-9);
    // 0.55001 day = 13 h 12 min 0.864 s; + 96 min = 14 h 48 min 0.864 s; day 80 of
    // 2001 (31 + 28 + 21) is 21 March. The pickers show whole seconds.
    QCOMPARE(debut->dateTime(), utc(2001, 3, 21, 13, 12));
    QCOMPARE(fin->dateTime(), utc(2001, 3, 21, 14, 48));
    QCOMPARE(QString::fromStdString(b.s().dossier_depart), QCoreApplication::applicationDirPath());

    // The step list, at "2 min" first; minute items are x 60 s, and the step
    // alone is no change of configuration.
    QCOMPARE(cmb->currentText(), "2 min");
    QCOMPARE(b.s().pas_sim, 120);
    for (const auto& [texte, pas] : {std::pair{"1 min", 60}, {"10 s", 10}, {"45 min", 2700}, {"5 min", 300}}) {
        b.choisit_pas(texte);
        QCOMPARE(b.s().pas_sim, pas);
    }
    QCOMPARE(b.s().config_modifiee, int16_t{0});

    // Real time: a step of 1 s, the step and period locked, the configuration marked.
    auto* chk = b.ctrl<QCheckBox>("chk_RealTime");
    chk->setChecked(true);
    QCOMPARE(b.s().pas_sim, 1);
    QCOMPARE(b.s().temps_reel, kestrel::VRAI);
    QCOMPARE(b.s().config_modifiee, int16_t{1});
    QVERIFY(!cmb->isEnabled() && !debut->isEnabled() && !fin->isEnabled());

    // Back off: the list still shows "5 min" but the step stays 1 until the
    // item on display is picked again.
    chk->setChecked(false);
    QCOMPARE(b.s().temps_reel, kestrel::FAUX);
    QCOMPARE(b.s().pas_sim, 1);
    QCOMPARE(cmb->currentText(), "5 min");
    QVERIFY(cmb->isEnabled() && debut->isEnabled());
    emit cmb->activated(cmb->currentIndex());
    QCOMPARE(b.s().pas_sim, 300);

    // A start a day after the end becomes the end as shown (14:48:00), the
    // end stays; a date is a change of configuration.
    const double j_fin = b.s().j_fin;
    b.s().config_modifiee = 0;
    debut->setDateTime(utc(2001, 3, 22, 14, 48));
    QCOMPARE(debut->dateTime(), utc(2001, 3, 21, 14, 48));
    QCOMPARE(fin->dateTime(), utc(2001, 3, 21, 14, 48));
    QVERIFY(std::abs(b.s().j_debut - (18707.0 + (14 * 60 + 48) / 1440.0)) < 1e-9);
    QCOMPARE(b.s().j_fin, j_fin);
    QCOMPARE(b.s().config_modifiee, int16_t{1});

    // A start earlier is taken as it is: 2001-03-20 06:00 = 18706.25.
    debut->setDateTime(utc(2001, 3, 20, 6, 0));
    QVERIFY(std::abs(b.s().j_debut - 18706.25) < 1e-9);

    // An end before the start becomes the start.
    fin->setDateTime(utc(2001, 3, 19, 0, 0));
    QCOMPARE(fin->dateTime(), utc(2001, 3, 20, 6, 0));
    QVERIFY(std::abs(b.s().j_fin - 18706.25) < 1e-9);
}

void TestMenu::entrees_et_touches() {
    Banc b;
    // Commands of this window work; label entries are off.
    for (const char* nom : {"mn_fichier_ouvrir", "mn_fichier_enreg", "mn_fichier_enregsous", "mn_attfich_ouvrir",
                            "mn_attfich_enreg", "mn_attfich_enregsous", "mn_fichier_quit"})
        QVERIFY2(b.ctrl<QAction>(nom)->isEnabled(), nom);
    for (const char* nom : {"mn_fic_pow", "mn_fic_att"})
        QVERIFY2(!b.ctrl<QAction>(nom)->isEnabled(), nom);
    // The commands under the two label entries keep their two leading blanks;
    // the heading's misspelling is kept.
    QCOMPARE(b.texte("mn_fichier_enregsous"), "  Enregistrer sous...");
    QCOMPARE(b.texte("mn_pow"), "Sytème énergie");
    // Entries sit in their sub-menu, the sub-menu in its heading.
    QVERIFY(b.ctrl<QMenu>("mn_pow_conf")->actions().contains(b.ctrl<QAction>("mn_conf_pow_rad")));
    QVERIFY(b.ctrl<QMenu>("mn_att")->actions().contains(b.ctrl<QMenu>("mn_att_exp")->menuAction()));
    QCOMPARE(b.cle("Toolbar_att", "open")->toolTip(), "Ouvrir un projet pour le sous-système attitude");

    // "open" means the energy project in one toolbar, the attitude one in the
    // other; cancelled dialogs (nothing queued) change nothing.
    b.fen->Toolbar_ButtonClick("Toolbar_power", "open");
    b.cle("Toolbar_att", "open")->trigger();
    b.cle("Toolbar_att", "save")->trigger();  // no path yet: save as
    QStringList titres;
    for (const auto& d : b.dlg.demandes) titres << d.titre;
    QCOMPARE(titres, (QStringList{"Ouvrir un fichier configuration du système énergie",
                                  "Ouvrir un fichier de configuration du contrôle d'attitude",
                                  "Enregistrer le fichier de configuration du contrôle d'attitude"}));
    QCOMPARE(b.dlg.demandes[1].filtre, "Fichiers  Configuration (*.att);;All Files (*.*)");
    QVERIFY(b.s().chemin_energie.empty() && b.s().chemin_attitude.empty());
    QCOMPARE(b.s().config_modifiee, int16_t{0});

    // The entries of the windows no other test opens through the menu.
    for (const auto& [entree, fenetre] : {std::pair{"mn_exp_pow_data", "power_exp_data"}, {"mn_exp_att_data", "att_exp_data"},
                                          {"mn_sim_att_com", "att_sim"}, {"mn_sim_pow_com", "power_sim_all"}}) {
        b.ctrl<QAction>(entree)->trigger();
        QVERIFY2(b.fen->findChild<QWidget*>(fenetre), entree);
    }
    // A key the toolbar does not hold does nothing.
    b.fen->Toolbar_ButtonClick("Toolbar_att", "quit");
    QCOMPARE(b.dlg.demandes.size(), 3);
    QVERIFY(b.dlg.questions.isEmpty());
}

void TestMenu::ouverture_recharge_les_fenetres() {
    Banc b;
    // A project whose step (45 s) is not in the list's table, and an attitude project.
    Etat source;
    source.session.pas_sim = 45;
    const QString pwr = b.fichier("projet45.pwr"), att = b.fichier("r.att");
    QVERIFY(!kestrel::sauve_energie(source, pwr.toStdString()));
    QVERIFY(!kestrel::sauve_attitude(source, att.toStdString()));
    // When a window reloads, the title already names the project and the
    // mark is not yet set: it comes last.
    int conf = 0, attconf = 0;
    QWidget power_conf, att_conf;
    QString titre_vu;
    int16_t marque_vue = -1;
    b.fen->registre().inscrit(&power_conf, "conf", [&] {
        ++conf;
        titre_vu = b.fen->windowTitle();
        marque_vue = b.s().config_modifiee;
    });
    b.fen->registre().inscrit(&att_conf, "attconf", [&] { ++attconf; });

    b.choisit_pas("5 min");
    b.declenche("mn_fichier_ouvrir", {pwr});
    QCOMPARE(b.dlg.demandes.size(), 1);
    QCOMPARE(b.dlg.demandes[0].filtre, "Fichiers  Configuration (*.pwr);;All Files (*.*)");
    QCOMPARE(b.dlg.demandes[0].dossier, QCoreApplication::applicationDirPath());
    QVERIFY(b.dlg.messages.isEmpty());
    QCOMPARE(b.s().pas_sim, 45);
    QCOMPARE(b.ctrl<QComboBox>("cmb_pas")->currentText(), "5 min");
    QCOMPARE((QStringList{b.fen->windowTitle(), b.texte("fra_energie"), titre_vu}),
             QStringList(3, "Energie (projet45)"));
    QCOMPARE(QString::fromStdString(b.s().chemin_energie), pwr);
    QCOMPARE(b.s().config_modifiee, int16_t{1});
    QCOMPARE(QDir::currentPath(), QCoreApplication::applicationDirPath());
    QCOMPARE(std::pair(conf, attconf), std::pair(1, 0));
    QCOMPARE(marque_vue, int16_t{0});
    b.declenche("mn_attfich_ouvrir", {att});
    QCOMPARE(std::pair(conf, attconf), std::pair(1, 1));
}

void TestMenu::echecs_laissent_la_session() {
    Banc b;
    const QString mauvais = b.fichier("mauvais.pwr");
    QFile f(mauvais);
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(QByteArray("pas un nombre\r\n").repeated(300)) > 0);
    f.close();
    auto* debut = b.ctrl<QDateTimeEdit>("txt_date_debut");
    const QDateTime debut_avant = debut->dateTime();
    const Etat avant = b.etat;

    // An unreadable .pwr: its report naming the line, and the program goes on.
    b.declenche("mn_fichier_ouvrir", {mauvais});
    QCOMPARE(b.dlg.messages.size(), 1);
    QVERIFY(b.dlg.messages[0].texte.startsWith("Erreur de lecture") && b.dlg.messages[0].texte.contains("ligne "));
    QCOMPARE(b.dlg.messages[0].icone, Icone::critique);
    // A missing .att gives its own message, word for word.
    b.declenche("mn_attfich_ouvrir", {b.fichier("absent.att")});
    QCOMPARE(b.dlg.messages.size(), 2);
    QCOMPARE(b.dlg.messages[1], (Message{QString::fromUtf8(kestrel::msg::lecture_attitude), Icone::critique}));
    QVERIFY(b.dlg.fatales.isEmpty());
    // The session is as it was.
    QVERIFY(b.s().j_debut == avant.session.j_debut && b.s().j_fin == avant.session.j_fin);
    QCOMPARE(b.s().pas_sim, avant.session.pas_sim);
    QCOMPARE(b.s().config_modifiee, int16_t{0});
    QVERIFY(b.s().chemin_energie.empty() && b.s().chemin_attitude.empty());
    QCOMPARE(b.etat.att.Masse, avant.att.Masse);
    QCOMPARE(b.fen->windowTitle(), "Energie (sans_nom)");
    QCOMPARE(b.texte("fra_attitude"), "Contrôle d'attitude");
    QCOMPARE(debut->dateTime(), debut_avant);

    // A folder that does not exist: every write there fails. Energy: the stop
    // box word for word, then the program goes on as it was.
    const QString pwr = b.fichier("absent/x.pwr"), att = b.fichier("absent/x.att");
    b.declenche("mn_fichier_enregsous", {pwr});
    QCOMPARE(b.dlg.messages.size(), 3);
    QCOMPARE(b.dlg.messages[2], (Message{QString::fromUtf8(kestrel::msg::ecriture_energie), Icone::critique}));
    QVERIFY(b.s().chemin_energie.empty());
    QCOMPARE(b.fen->windowTitle(), "Energie (sans_nom)");
    // Attitude save as: ends as a cancel does, without a word.
    b.declenche("mn_attfich_enregsous", {att});
    QCOMPARE(b.dlg.messages.size(), 3);
    QVERIFY(b.s().chemin_attitude.empty());
    QCOMPARE(b.texte("fra_attitude"), "Contrôle d'attitude");
    QVERIFY(b.dlg.fatales.isEmpty());
    // Attitude save over the current file: no dialog, and a failure ends the program.
    b.s().chemin_attitude = att.toStdString();
    b.declenche("mn_attfich_enreg");
    QCOMPARE(b.dlg.demandes.size(), 4);
    QCOMPARE(b.dlg.fatales.size(), 1);
    QCOMPARE(b.dlg.messages.size(), 3);
}

void TestMenu::enregistre_puis_ouvre() {
    Banc b;
    auto* debut = b.ctrl<QDateTimeEdit>("txt_date_debut");
    b.choisit_pas("10 min");
    debut->setDateTime(utc(2001, 3, 20, 6, 0));  // 18706.25
    const QString chemin = b.fichier("essai.pwr");

    b.declenche("mn_fichier_enreg", {chemin});  // no path yet: save as
    QCOMPARE(b.dlg.demandes.size(), 1);
    QCOMPARE(b.dlg.demandes[0].titre, "Enregistrer la configuration du système énergie");
    QCOMPARE(b.dlg.demandes[0].nom, QString());
    QVERIFY(QFile::exists(chemin));
    QCOMPARE(b.fen->windowTitle(), "Energie (essai)");

    // Save again: the same file, no dialog.
    QFile::remove(chemin);
    b.declenche("mn_fichier_enreg");
    QCOMPARE(b.dlg.demandes.size(), 1);
    QVERIFY(QFile::exists(chemin));

    // Another step and start, then the project again; the proposed name is
    // the file's without ".pwr".
    b.choisit_pas("1 min");
    debut->setDateTime(utc(2001, 3, 21, 0, 0));
    b.declenche("mn_fichier_ouvrir", {chemin});
    QVERIFY(b.dlg.messages.isEmpty());
    QCOMPARE(b.s().pas_sim, 600);
    QCOMPARE(b.ctrl<QComboBox>("cmb_pas")->currentText(), "10 min");
    QVERIFY(std::abs(b.s().j_debut - 18706.25) < 1.0 / 86400.0);  // within a second
    QCOMPARE(debut->dateTime(), utc(2001, 3, 20, 6, 0));
    QCOMPARE(b.dlg.demandes[1].nom, "essai");

    // The attitude half, on its own.
    b.etat.att.Masse = 73.5;
    const QString att = b.fichier("sat.att");
    b.declenche("mn_attfich_enregsous", {att});
    QCOMPARE(b.texte("fra_attitude"), "Contrôle d'attitude (sat)");
    QCOMPARE(b.fen->windowTitle(), "Energie (essai)");
    b.etat.att.Masse = 10.0;
    b.declenche("mn_attfich_ouvrir", {att});
    QCOMPARE(b.etat.att.Masse, 73.5);
    QCOMPARE(QString::fromStdString(b.s().chemin_attitude), att);

    // Titles and proposed names drop the last four characters whatever they
    // are: "sauvegarde.v2" less "e.v2" is "sauvegard".
    b.declenche("mn_fichier_enregsous", {b.fichier("sauvegarde.v2")});
    QCOMPARE(b.fen->windowTitle(), "Energie (sauvegard)");
    b.declenche("mn_fichier_enregsous", {QString()});
    QCOMPARE(b.dlg.demandes.last().nom, "sauvegard");
}

void TestMenu::quitter_oui_non_annuler() {
    Banc b;
    b.fen->show();
    const QString attendu = "Configuration|Voulez-vous enregistrer le projet ?";
    b.dlg.reponses = {Reponse::annuler, Reponse::annuler};
    b.ctrl<QAction>("mn_fichier_quit")->trigger();
    b.cle("Toolbar_power", "quit")->trigger();
    QCOMPARE(b.dlg.questions, (QList<QString>{attendu, attendu}));

    // Yes with no project file yet offers save as; cancelling it keeps the window.
    b.dlg.reponses = {Reponse::oui};
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

QTEST_MAIN(TestMenu)
#include "test_gui_menu.moc"

// power_exp_bat driven by its object names: its controls, the checked boxes, a
// stop during an endless recharge, and a discharge and recharge giving the
// command line's figures and samples, its curves drawn.
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "core/etat/etat.h"
#include "faux_dialogues.h"
#include "power/graphes_batterie.h"
#include "power/power_exp_bat.h"
#include "shell/menu.h"

using kestrel::Icone;
using kestrel::gui::GraphesBatterie;
using kestrel::gui::power_exp_bat;
using Message = FauxDialogues::Message;

namespace {

struct Banc {
    kestrel::Etat etat;
    FauxDialogues dlg;
    std::unique_ptr<kestrel::gui::menu> m = std::make_unique<kestrel::gui::menu>(etat, dlg);
    power_exp_bat* fen = nullptr;

    Banc() {
        m->findChild<QAction*>("mn_exp_pow_bat")->trigger();
        fen = m->findChild<power_exp_bat*>("power_exp_bat");
        if (!fen) qFatal("power_exp_bat not opened");
        if (!QTest::qWaitForWindowActive(fen)) qWarning("window not active");
    }
    template <class T>
    T* ctrl(const char* nom) {
        T* c = fen->findChild<T*>(QString::fromUtf8(nom));
        if (!c) qFatal("control %s not found", nom);
        return c;
    }
    QLineEdit* txt(const char* nom) { return ctrl<QLineEdit>(nom); }
    // Types into a box as a user does, then leaves it with a click elsewhere.
    void saisit(const char* nom, const QString& texte) {
        QLineEdit* c = txt(nom);
        c->setFocus();
        c->selectAll();
        QTest::keyClicks(c, texte);
        ctrl<QPushButton>("cmd_saisir")->setFocus();
    }
    void remplit(const QList<std::pair<const char*, const char*>>& champs) {
        for (const auto& [nom, texte] : champs) saisit(nom, texte);
    }
    QString lab(const char* nom) { return ctrl<QLabel>(nom)->text(); }
};

// `kestrel study battery args`: its DOD and recharge time lines, its table's
// header, then one row per sample.
QStringList ligne_de_commande(const QStringList& args) {
    QProcess p;
    p.start(QCoreApplication::applicationDirPath() + "/kestrel", QStringList{"study", "battery"} + args);
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return {};
    return QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

}  // namespace

class TestPowerExpBat : public QObject {
    Q_OBJECT
private slots:
    void names_and_menu_entry();
    void boxes_refuse_bad_values();
    void stop_during_an_endless_recharge();
    void same_figures_as_the_command_line();
};

void TestPowerExpBat::names_and_menu_entry() {
    Banc b;
    QCOMPARE(b.fen->windowTitle(), "Charge/Décharge des batteries");
    // One caption stands for the form's; every other label and choice by its name.
    QCOMPARE(b.lab("lbl_tecl"), "Durée d'éclipse (mn)");
    for (const char* nom : {"lbl_chk", "lbl_chvmax", "lbl_chcour", "lbl_depuis", "lbl_decour", "lbl_dod", "lbl_tch",
                            "lbl_tchde", "opt_depuis", "opt_decour"})
        QVERIFY2(b.fen->findChild<QWidget*>(nom), nom);
    QVERIFY(b.fen->findChild<GraphesBatterie*>("pict_graphs"));
    QVERIFY(b.fen->findChild<QScrollArea*>("scroll_graphs"));
    // Return moves to the next box.
    b.txt("txt_tecl")->setFocus();
    QTest::keyClick(b.txt("txt_tecl"), Qt::Key_Return);
    QVERIFY(b.txt("txt_tchde")->hasFocus());
    // The entry and the toolbar key open the same window again.
    for (auto rouvre : {std::function<void()>([&] { b.m->findChild<QAction*>("mn_exp_pow_bat")->trigger(); }),
                        std::function<void()>([&] { b.m->Toolbar_ButtonClick("Toolbar_power", "exp_bat"); })}) {
        b.ctrl<QPushButton>("cmd_quit")->click();
        QVERIFY(!b.fen->isVisible());
        rouvre();
        QCOMPARE(b.m->findChildren<power_exp_bat*>().size(), 1);
        QVERIFY(b.fen->isVisible());
    }
}

void TestPowerExpBat::boxes_refuse_bad_values() {
    Banc b;
    const Message invalide{"Type de donnée non valide", Icone::critique};
    // k: ]0, 10]; temperature: [bat_tmin = -50, 100]
    b.saisit("txt_chk", "abc");
    QCOMPARE(b.dlg.messages.last(), invalide);
    b.saisit("txt_chk", "0");
    QCOMPARE(b.dlg.messages.last().texte, "Valeur hors limite !! Saisissez une valeur : \n0 < Valeur <= 10");
    QCOMPARE(b.txt("txt_chk")->text(), "1.05");
    QCOMPARE(b.fen->entrees().k_recharge, 1.05);
    b.saisit("txt_tchde", "-51");
    QCOMPARE(b.dlg.messages.last().texte, "Valeur hors limite !! Saisissez une valeur : \n-50 <= Valeur <= 100");
    const auto avant = b.dlg.messages.size();
    b.remplit({{"txt_chk", "1"}, {"txt_tchde", "-50"}});
    QCOMPARE(b.dlg.messages.size(), avant);
    QCOMPARE(b.fen->entrees().k_recharge, 1.0);
    QCOMPARE(b.fen->entrees().temperature, -50.0);
    // "Saisir" reads every box again, even one that never lost the focus.
    b.txt("txt_chcour")->setText("abc");
    b.ctrl<QPushButton>("cmd_saisir")->click();
    QCOMPARE(b.dlg.messages.last(), invalide);
    QVERIFY(b.lab("lab_dod").isEmpty());
    b.txt("txt_chcour")->setText("0.25");
    b.txt("txt_tchde")->setText("20");  // at -50 °C the charge curve stands above 1.5 V
    b.ctrl<QPushButton>("cmd_saisir")->click();
    QCOMPARE(b.fen->entrees().i_charge, 0.25);
    QVERIFY(!b.lab("lab_tch").isEmpty());
    // The discharge mode is the one chosen: constant power, then constant current.
    QVERIFY(b.fen->entrees().puissance_constante);
    b.ctrl<QRadioButton>("opt_decour")->click();
    b.ctrl<QPushButton>("cmd_saisir")->click();
    QVERIFY(!b.fen->entrees().puissance_constante);
}

void TestPowerExpBat::stop_during_an_endless_recharge() {
    Banc b;
    // At 1e-6 C the recharge would take over 10^10 s: the stop button ends it,
    // which shows that the events keep flowing while it runs.
    b.remplit({{"txt_tecl", "30"}, {"txt_chcour", "0.000001"}});
    QTimer::singleShot(300, b.fen, [&b] {
        QVERIFY(b.fen->en_cours());
        QVERIFY(!b.ctrl<QPushButton>("cmd_saisir")->isEnabled());
        b.ctrl<QPushButton>("cmd_stopcalcul")->click();
    });
    QElapsedTimer montre;
    montre.start();
    b.ctrl<QPushButton>("cmd_saisir")->click();
    QVERIFY(montre.elapsed() < 5000);
    QVERIFY(!b.fen->en_cours());
    QCOMPARE(b.lab("lab_status"), "Interrompu");
    QVERIFY(!b.lab("lab_dod").isEmpty());  // the discharge had finished
    QVERIFY(b.lab("lab_tch").isEmpty());
    QVERIFY(b.ctrl<QPushButton>("cmd_saisir")->isEnabled());
    QVERIFY(!b.ctrl<QPushButton>("cmd_stopcalcul")->isEnabled());
    QVERIFY(b.dlg.messages.isEmpty());
}

void TestPowerExpBat::same_figures_as_the_command_line() {
    // Constant power, the solvers in play, on both sides (the figures are
    // worked by hand in the core's tests): the two results, one sample per
    // row of the command line's table, the progress at its end, the curves drawn.
    Banc b;
    b.remplit({{"txt_tecl", "35"}, {"txt_tchde", "10"}, {"txt_chk", "1.1"}, {"txt_chvmax", "1.45"},
               {"txt_chcour", "0.3"}, {"txt_depuis", "0.8"}, {"txt_decour", "0.6"}});
    b.ctrl<QPushButton>("cmd_saisir")->click();
    const QStringList cli = ligne_de_commande({"--tecl", "35", "--temp", "10", "--k", "1.1", "--vmax", "1.45",
                                               "--ich", "0.3", "--mode", "power", "--power", "0.8", "--current",
                                               "0.6"});
    QVERIFY(cli.size() > 3);
    QCOMPARE(cli[0], "DOD %," + b.lab("lab_dod"));
    QCOMPARE(cli[1], "Temps de recharge," + b.lab("lab_tch"));
    QVERIFY(!b.lab("lab_tch").isEmpty());
    auto* g = b.fen->findChild<GraphesBatterie*>("pict_graphs");
    QCOMPARE(g->echantillons().size(), std::size_t(cli.size() - 3));
    QCOMPARE(b.lab("lab_status"), "100.0 %");
    QCOMPARE(b.ctrl<QProgressBar>("statusbar")->value(), b.ctrl<QProgressBar>("statusbar")->maximum());
    // The curves are drawn: blue pixels in the picture.
    const QImage image = g->grab().toImage();
    int bleus = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) bleus += image.pixelColor(x, y) == QColor(0, 0, 255);
    QVERIFY2(bleus > 200, qPrintable(QString::number(bleus)));
}

QTEST_MAIN(TestPowerExpBat)
#include "test_gui_power_exp_bat.moc"

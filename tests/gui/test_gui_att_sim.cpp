// att_sim: a run at once into the data folder's results file, then its pages.
#include <QtTest>
#include <QtWidgets>
#include <QChartView>
#include <QLineSeries>

#include "attitude/att_sim.h"
#include "core/etat.h"
#include "faux_dialogues.h"

using namespace kestrel;
using namespace kestrel::gui;

namespace {
QLineSeries* serie(att_sim& f, const char* graphe, int i) {
    auto* v = f.findChild<QChartView*>(graphe);
    return static_cast<QLineSeries*>(v->chart()->series().at(i));
}
}  // namespace

class TestAttSim : public QObject {
    Q_OBJECT
private slots:
    void pages_du_fichier() {
        // its own data folder, with the atmosphere tables, for its own results file
        QTemporaryDir dossier;
        for (const char* f : {"flux_solaire.txt", "densite.txt"})
            QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + "/" + f, dossier.filePath(f)));
        Etat etat;
        etat.session.dossier_depart = dossier.path().toStdString();
        etat.session.pas_sim = 1;
        etat.session.j_fin = etat.session.j_debut + 1500 / 86400.0;
        FauxDialogues dlg;
        att_sim f(etat, dlg);
        f.show();
        QVERIFY(QTest::qWaitForWindowExposed(&f));
        auto* psi = f.findChild<QLineEdit*>("txt_psi");
        psi->setFocus();
        psi->selectAll();
        QTest::keyClicks(psi, "0.5");
        QTest::keyClick(psi, Qt::Key_Return);
        QCOMPARE(etat.att.omega_init[0], 0.5 * 3.14159265358979 / 180);

        f.att_run();
        QVERIFY(dlg.messages.isEmpty());
        QCOMPARE(f.fichier_temp(), dossier.filePath("temp/temp.tmp"));
        QVERIFY(!f.findChild<QProgressBar*>("temp_calcul")->isVisible());
        // 1500 steps: Round(1.5 + 1) = 2 pages, scroll up to Round(1.5 / 2) = 1
        QCOMPARE(f.pages(), 2);
        auto* scr = f.findChild<QScrollBar*>("scr_diagr");
        QCOMPARE(scr->maximum(), 1);
        QCOMPARE(f.findChild<QChartView*>("att_graph")->chart()->series().size(), 3);
        QCOMPARE(f.findChild<QChartView*>("att_graph_v")->chart()->series().size(), 8);
        QCOMPARE(serie(f, "att_graph_v", 0)->count(), 1000);
        QCOMPARE(serie(f, "att_graph_v", 0)->at(0).x(), 0.0);
        // record i >= 1 is written with the date of step i, begin + (i - 1) s:
        // the second page starts with record 1000, at 999 s
        scr->setValue(1);
        QCOMPARE(f.page(), 1);
        QCOMPARE(qRound(serie(f, "att_graph_v", 0)->at(0).x()), 999);
        QVERIFY(serie(f, "att_graph", 0)->count() < 1000);

        // the run's file is not the one the question names: nothing asked, file kept
        QTest::mouseClick(f.findChild<QPushButton*>("Quit_but"), Qt::LeftButton);
        QVERIFY(dlg.questions.isEmpty());
        QVERIFY(QFile::exists(f.fichier_temp()));
    }
};

QTEST_MAIN(TestAttSim)
#include "test_gui_att_sim.moc"

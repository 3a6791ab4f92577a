// att_sim: a run at once into the data folder's results file, then its pages.
#include <QtTest>
#include <QtWidgets>
#include <QChartView>
#include <QLineSeries>

#include "attitude/att_sim.h"
#include "core/etat/etat.h"
#include "faux_dialogues.h"

using namespace kestrel;
using namespace kestrel::gui;

namespace {
QLineSeries* serie(att_sim& f, const char* graphe, int i) {
    auto* v = f.findChild<QChartView*>(graphe);
    return static_cast<QLineSeries*>(v->chart()->series().at(i));
}
// A run of the given step and length in a data folder of its own, with the
// atmosphere tables, for its own results file; the window made when asked.
struct Banc {
    QTemporaryDir dossier;
    Etat etat;
    FauxDialogues dlg;
    std::unique_ptr<att_sim> f;
    Banc(int pas, double secondes) {
        for (const char* n : {"flux_solaire.txt", "densite.txt"})
            if (!QFile::copy(QCoreApplication::applicationDirPath() + "/" + n, dossier.filePath(n))) qFatal("no %s", n);
        etat.session.dossier_depart = dossier.path().toStdString();
        etat.session.pas_sim = pas;
        etat.session.j_fin = etat.session.j_debut + secondes / 86400.0;
    }
    att_sim& fen() {
        if (!f) f = std::make_unique<att_sim>(etat, dlg);
        return *f;
    }
};
}  // namespace

class TestAttSim : public QObject {
    Q_OBJECT
private slots:
    void pages_du_fichier() {
        Banc b(1, 1500);
        att_sim& f = b.fen();
        f.show();
        QVERIFY(QTest::qWaitForWindowExposed(&f));
        auto* psi = f.findChild<QLineEdit*>("txt_psi");
        psi->setFocus();
        psi->selectAll();
        QTest::keyClicks(psi, "0.5");
        QTest::keyClick(psi, Qt::Key_Return);
        QCOMPARE(b.etat.att.omega_init[0], 0.5 * 3.14159265358979 / 180);

        f.att_run();
        QVERIFY(b.dlg.messages.isEmpty());
        QCOMPARE(f.fichier_temp(), b.dossier.filePath("temp/temp.tmp"));
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
        QVERIFY(b.dlg.questions.isEmpty());
        QVERIFY(QFile::exists(f.fichier_temp()));
    }

    // The per-user results file of an installed program is the very path the
    // question names (data folder + "/kestrel/temp/temp.tmp"): asked with Yes
    // and No only, then the file is deleted whatever the answer.
    void question_puis_effacement() {
        Banc b(60, 864);
        // a plain file named temp: the data folder cannot take the results
        QFile bouche(b.dossier.filePath("temp"));
        QVERIFY(bouche.open(QIODevice::WriteOnly));
        bouche.close();
        qputenv("XDG_DATA_HOME", b.dossier.path().toLocal8Bit());
        b.dlg.reponses.push_back(Reponse::oui);
        att_sim& f = b.fen();
        f.att_run();
        QCOMPARE(f.fichier_temp(), b.dossier.filePath("kestrel/temp/temp.tmp"));
        QVERIFY(QFile::exists(f.fichier_temp()));
        QTest::mouseClick(f.findChild<QPushButton*>("Quit_but"), Qt::LeftButton);
        QCOMPARE(b.dlg.questions, QList<QString>{QStringLiteral("KESTREL|") + QString::fromUtf8("Voulez-vouz enregistrez les résultat?")});
        QCOMPARE(b.dlg.boutons, QList<Boutons>{Boutons::oui_non});
        QVERIFY(!QFile::exists(f.fichier_temp()));
        qunsetenv("XDG_DATA_HOME");
    }

    // Rates of 1000 rad/s about every axis blow the integration up: the run
    // ends on its fault with a critical French box, and the head lines and the
    // rows written before stay in the file and on the charts.
    void fin_sur_faute() {
        Banc b(1, 4320);
        att_sim& f = b.fen();
        b.etat.att.omega_init = {1e3, 1e3, 1e3};
        f.att_run();
        QCOMPARE(b.dlg.messages.size(), 1);
        QCOMPARE(b.dlg.messages[0].icone, Icone::critique);
        QVERIFY(!b.dlg.messages[0].texte.isEmpty());
        QVERIFY(!b.dlg.messages[0].texte.contains(QStringLiteral("inf")));
        QFile r(f.fichier_temp());
        QVERIFY(r.open(QIODevice::ReadOnly));
        const QStringList lignes = QString::fromUtf8(r.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QVERIFY(lignes.size() >= 3);
        QVERIFY(lignes[0].startsWith(QStringLiteral("\"#BeginTime(JulianDays)\"")));
        for (const QString& l : lignes) QVERIFY2(!l.contains(QStringLiteral("inf")) && !l.contains(QStringLiteral("nan")), qPrintable(l));
    }
};

QTEST_MAIN(TestAttSim)
#include "test_gui_att_sim.moc"

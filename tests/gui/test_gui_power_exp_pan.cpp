// power_exp_pan driven by its object names: the date test, the body's
// picture, the graph, the stop, the saved text, and the grid and its headers
// against the command line for the same project and period.
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "core/etat/etat.h"
#include "core/project/energie.h"
#include "core/shell/messages.h"
#include "faux_dialogues.h"
#include "power/image_dessin.h"
#include "power/power_exp_pan.h"
#include "shell/menu.h"

using kestrel::Icone;
using kestrel::gui::power_exp_pan;
using Message = FauxDialogues::Message;

namespace {

// One hour from the default epoch 18707.55001 at 600 s: rows at 0, 600, ..., 3600 s.
constexpr double DEBUT = 18707.55001, FIN = 18707.55001 + 1.0 / 24;
const QString EXEMPLES = QStringLiteral(KESTREL_SOURCE_DIR "/examples/");

struct Banc {
    kestrel::Etat etat;
    FauxDialogues dlg;
    std::unique_ptr<kestrel::gui::menu> m = std::make_unique<kestrel::gui::menu>(etat, dlg);
    power_exp_pan* fen = nullptr;

    explicit Banc(const char* projet = nullptr) {
        if (projet && kestrel::charge_energie(etat, (EXEMPLES + projet + ".pwr").toStdString()))
            qFatal("example %s unreadable", projet);
        etat.session.j_debut = DEBUT;
        etat.session.j_fin = FIN;
        etat.session.pas_sim = 600;
        m->findChild<QAction*>("mn_sim_pow_gs")->trigger();
        fen = m->findChild<power_exp_pan*>("power_exp_pan");
        if (!fen) qFatal("power_exp_pan not opened");
    }
    template <class T>
    T* ctrl(const char* nom) {
        T* c = fen->findChild<T*>(QString::fromUtf8(nom));
        if (!c) qFatal("control %s not found", nom);
        return c;
    }
    void clique(const char* nom) { ctrl<QPushButton>(nom)->click(); }
    QAbstractItemModel* grille() { return ctrl<QTableView>("grid")->model(); }
    QStringList entetes() {
        QStringList l;
        for (int c = 0; c < grille()->columnCount(); ++c) l << grille()->headerData(c, Qt::Horizontal).toString();
        return l;
    }
    QString cellule(int l, int c) { return grille()->index(l, c).data().toString(); }
};

QStringList panneaux(int n, const QString& unite, const QStringList& fin = {}) {
    QStringList l{"Date"};
    for (int i = 1; i <= n; ++i) l << QStringLiteral("Panneau %1 (%2)").arg(i).arg(unite);
    return l + fin;
}

// `kestrel study generator args` split in rows of fields.
QList<QStringList> ligne_de_commande(const QStringList& args) {
    QProcess p;
    p.start(QCoreApplication::applicationDirPath() + "/kestrel", QStringList{"study", "generator"} + args);
    QList<QStringList> rangs;
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return rangs;
    for (const QString& l : QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
        rangs << l.split(',');
    return rangs;
}

}  // namespace

class TestPowerExpPan : public QObject {
    Q_OBJECT
private slots:
    void the_date_and_step_tests();
    void body_picture_by_configuration();
    void graph_of_six_columns_at_a_time();
    void stop_and_save();
    void grid_equals_the_command_line();
};

void TestPowerExpPan::the_date_and_step_tests() {
    Banc b;
    // A start equal to "Date initiale cellules" is refused: the test is strict.
    b.etat.session.j_debut = b.etat.pwr.date_cell;
    b.clique("cmd_saisir");
    QCOMPARE(b.dlg.messages, (QList<Message>{{QString::fromUtf8(kestrel::msg::date_cellules), Icone::avertissement}}));
    QCOMPARE(b.grille()->rowCount(), 0);
    QVERIFY(!b.ctrl<QPushButton>("cmd_save")->isEnabled());
    // A step of 0 s would never leave the start: the period is refused before any step.
    b.etat.session.j_debut = DEBUT;
    b.etat.session.pas_sim = 0;
    b.clique("cmd_saisir");
    QCOMPARE(b.dlg.messages.size(), 2);
    QVERIFY2(b.dlg.messages.last().texte.startsWith(QString::fromUtf8("Pas de simulation refusé : 0 s (nouveau projet)")),
             qPrintable(b.dlg.messages.last().texte));
    QCOMPARE(b.grille()->rowCount(), 0);

    // "Quitter" hides it; the toolbar key "sim_pow" brings the same window back.
    b.clique("cmd_quit");
    QVERIFY(!b.fen->isVisible());
    b.m->Toolbar_ButtonClick("Toolbar_power", "sim_pow");
    QVERIFY(b.fen->isVisible());
    QCOMPARE(b.m->findChildren<power_exp_pan*>().size(), 1);
}

void TestPowerExpPan::body_picture_by_configuration() {
    // The columns of each configuration are the core's, and the grid's
    // headers the command line's (below); here the table page shows the
    // picture of the body in force.
    struct Cas {
        const char* projet;
        bool quatre, six;
    };
    for (const Cas& c : {Cas{"quatre_faces", true, false}, Cas{"six_faces", false, true},
                         Cas{"cylindre", false, false}, Cas{"panneaux_externes", false, false}}) {
        Banc b(c.projet);
        b.ctrl<QRadioButton>("opt_view_1")->click();
        b.clique("cmd_saisir");
        QVERIFY2(b.dlg.messages.isEmpty(), c.projet);
        QCOMPARE(b.ctrl<QLabel>("img_pan4")->isVisible(), c.quatre);
        QCOMPARE(b.ctrl<QLabel>("img_pan6")->isVisible(), c.six);
    }
}

void TestPowerExpPan::graph_of_six_columns_at_a_time() {
    Banc b("six_faces");
    b.clique("cmd_saisir");
    // Eight temperature columns: the graph shows columns 1..6, then 3..8.
    auto* spin = b.ctrl<QSpinBox>("txt_premiere");
    QCOMPARE(spin->maximum(), 3);
    auto* g = b.fen->findChild<kestrel::gui::ImageDessin*>("pict_graph");
    QVERIFY(g->dessin().has_value());
    auto couleurs = [&] {
        QSet<QRgb> vues;
        const QImage img = g->grab().toImage();
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x) vues.insert(img.pixel(x, y) & 0xffffff);
        return vues;
    };
    // Curve colours of columns 1 and 6: blue and green.
    QVERIFY(couleurs().contains(qRgb(0, 0, 255) & 0xffffff));
    QVERIFY(b.ctrl<QLabel>("z_legende")->text().contains("Panneau 1"));
    spin->setValue(3);
    QVERIFY(b.ctrl<QLabel>("z_legende")->text().contains("Minimum"));
    QVERIFY(!b.ctrl<QLabel>("z_legende")->text().contains("Panneau 1<"));
    QVERIFY(b.ctrl<QLabel>("lab_y")->text().startsWith("Température (°C"));
}

void TestPowerExpPan::stop_and_save() {
    Banc b("quatre_faces");
    // Thirty days at 60 s would be 43201 steps: "Interrompre" ends it early,
    // which shows that the events flow during the loop.
    b.etat.session.j_fin = DEBUT + 30;
    b.etat.session.pas_sim = 60;
    QTimer::singleShot(200, b.fen, [&b] {
        QVERIFY(b.fen->en_cours());
        b.clique("cmd_stopcalcul");
    });
    b.clique("cmd_saisir");
    QVERIFY(!b.fen->en_cours());
    const int lignes = b.grille()->rowCount();
    QVERIFY(lignes > 0 && lignes < 43201);
    QVERIFY(b.fen->resultat().arrete);

    // Saved as tab-separated text under the program's title and filter.
    QTemporaryDir tmp;
    b.dlg.chemins.push_back(tmp.filePath("pan.txt"));
    b.clique("cmd_save");
    QCOMPARE(b.dlg.demandes.last().titre, "Enregistrement des résultats");
    QCOMPARE(b.dlg.demandes.last().filtre, "Fichiers de texte (*.txt);;All Files (*.*)");
    QFile f(tmp.filePath("pan.txt"));
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QStringList l = QString::fromUtf8(f.readAll()).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(l.size(), lignes + 1);
    QCOMPARE(l[0], panneaux(4, "°C", {"Maximum (°C)", "Minimum (°C)"}).join('\t'));
    QCOMPARE(l[1].split('\t').size(), 7);
    QCOMPARE(l[1].split('\t')[1], b.cellule(0, 1));
    // A cancelled dialog writes nothing.
    const auto demandes = b.dlg.demandes.size();
    b.clique("cmd_save");
    QCOMPARE(b.dlg.demandes.size(), demandes + 1);
    QVERIFY(b.dlg.messages.isEmpty());
}

void TestPowerExpPan::grid_equals_the_command_line() {
    // Same project and period: every header and cell of the grid is the command
    // line's, the numbers through the view's picture ("0.000" temperatures,
    // "0.00" powers, "0.0" fluxes); the first cell is the start date, the 0.1 s
    // keeping 13:12:00 from reading 13:11:59.
    struct Cas {
        const char* projet;
        const char* bouton;
        const char* vue;
        int decimales;
    };
    for (const Cas& c : {Cas{"quatre_faces", "cmd_puissance", "power", 2}, Cas{"cylindre", "cmd_temperature", "temperature", 3},
                         Cas{"panneaux_externes", "cmd_flux", "flux", 1}}) {
        Banc b(c.projet);
        b.clique("cmd_saisir");
        b.clique(c.bouton);
        const auto cli = ligne_de_commande({"--pwr", EXEMPLES + c.projet + ".pwr", "--view", c.vue, "--start",
                                            QString::number(DEBUT, 'g', 17), "--end", QString::number(FIN, 'g', 17),
                                            "--step", "600"});
        QCOMPARE(cli.size(), 1 + 7);
        QCOMPARE(cli[0].mid(2), b.entetes().mid(1));  // after the date and the eclipse flag
        QCOMPARE(b.cellule(0, 0), "21/03/2001 13:12:00");
        QCOMPARE(b.ctrl<QLabel>("lab_status")->text(), "100.0 %");
        for (int l = 0; l < 7; ++l)
            for (int col = 1; col < b.grille()->columnCount(); ++col) {
                const QString x = cli[l + 1][col + 1];
                QString attendu = x.isEmpty() ? QString() : QString::number(x.toDouble(), 'f', c.decimales);
                QString obtenu = b.cellule(l, col);
                // A value that rounds to zero may keep its sign on one side only.
                if (!attendu.isEmpty() && attendu.toDouble() == 0) {
                    attendu.remove('-');
                    obtenu.remove('-');
                }
                QCOMPARE(obtenu, attendu);
            }
    }
}

QTEST_MAIN(TestPowerExpPan)
#include "test_gui_power_exp_pan.moc"

// The complete power simulation window driven by its object names, its ticks
// run by hand (no clock): start, pause and stop, the labels after a few steps,
// the battery word, the arrows, one frame of the 3D view and the drag.
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "core/etat/etat.h"
#include "core/power/power_step.h"
#include "core/project/energie.h"
#include "core/shell/messages.h"
#include "faux_dialogues.h"
#include "power/pict_visu3d.h"
#include "power/power_sim_all.h"

using kestrel::Etat;
using kestrel::gui::Pict_visu3d;
using kestrel::gui::power_sim_all;

namespace {

constexpr int ticks_par_pas = 20;  // 1000 ms / 50 ms

struct Banc {
    Etat etat;
    FauxDialogues dlg;
    int mises_a_jour = 0;  // calls bringing the main window up to date
    std::unique_ptr<power_sim_all> fen;

    Banc() {
        // The example's period starts 2001-03-21 13:12:00.864 (day 18707.55001), steps of 60 s.
        const kestrel::Erreur e = kestrel::charge_energie(etat, "examples/panneaux_externes.pwr");
        if (e) qFatal("%s", kestrel::texte_erreur(e).c_str());
        etat.session.dossier_depart = QCoreApplication::applicationDirPath().toStdString();
        fen = std::make_unique<power_sim_all>(etat, dlg, [this] { ++mises_a_jour; });
        fen->show();
        // The ticks below are run by hand.
        for (auto* t : fen->findChildren<QTimer*>()) t->stop();
    }
    template <class T = QWidget>
    T* ctrl(const char* nom) {
        T* c = fen->findChild<T*>(QString::fromUtf8(nom));
        if (!c) qFatal("control %s not found", nom);
        return c;
    }
    QString texte(const char* nom) { return ctrl<QLabel>(nom)->text(); }
    void clique(const char* nom) { QTest::mouseClick(ctrl<QPushButton>(nom), Qt::LeftButton); }
    void ticks(int n) {
        for (int i = 0; i < n; ++i) fen->Timer_sim_pwr_Timer();
    }
};

QString watts(double w) { return QString::number(w, 'f', 2) + QStringLiteral(" W"); }

}  // namespace

class TestPowerSimAll : public QObject {
    Q_OBJECT
private slots:
    void demarrage_refuse_a_la_date_des_cellules();
    void lance_pause_arret();
    void etiquettes_egales_au_bilan_apres_n_pas();
    void mot_et_image_de_la_batterie();
    void fleches_par_signe();
    void une_image_de_la_vue_3d();
    void glisser_borne_l_elevation();
};

void TestPowerSimAll::demarrage_refuse_a_la_date_des_cellules() {
    Banc b;
    b.ticks(1);
    b.etat.session.j_debut = b.etat.pwr.date_cell;  // equal: the test is strict
    b.clique("cmd_lance");
    QCOMPARE(b.fen->sim_state(), kestrel::SIM_ARRET);
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].texte, QString::fromUtf8(kestrel::msg::date_cellules));

    // A .pwr whose step line reads -60 (possible only through the file): the
    // run does not start and the box names the file's step line.
    b.etat.session.j_debut = b.etat.pwr.date_cell + 0.5;
    b.etat.session.chemin_energie = "/tmp/projet.pwr";
    b.etat.session.pas_sim = -60;
    b.clique("cmd_lance");
    QCOMPARE(b.fen->sim_state(), kestrel::SIM_ARRET);
    QCOMPARE(b.dlg.messages.size(), 2);
    QVERIFY2(b.dlg.messages[1].texte.contains(QString::fromUtf8("fichier « /tmp/projet.pwr », ligne 279")),
             qPrintable(b.dlg.messages[1].texte));

    b.etat.session.pas_sim = 120;
    b.clique("cmd_lance");
    QCOMPARE(b.fen->sim_state(), kestrel::SIM_MARCHE);
    QCOMPARE(b.dlg.messages.size(), 2);
}

void TestPowerSimAll::lance_pause_arret() {
    // The ticks' logic is the core's (tick_power); here the buttons drive it,
    // the clock label follows, and the main window hears of a reset once.
    Banc b;
    b.ticks(1);  // the reset of a window just opened
    QCOMPARE(b.mises_a_jour, 1);
    const double pas = b.etat.session.pas_sim / 86400.0;
    const double depart = b.etat.session.j_debut;
    b.clique("cmd_lance");
    b.ticks(2 * ticks_par_pas);
    b.clique("cmd_pause");
    b.ticks(3 * ticks_par_pas);
    QVERIFY(qAbs(b.etat.session.j_courant - (depart + 2 * pas)) < 1e-9);
    QCOMPARE(b.texte("lab_chour"), QStringLiteral("13:14:00"));  // 13:12:00.864 + 120 s
    b.clique("cmd_lance");
    b.ticks(ticks_par_pas);
    QVERIFY(qAbs(b.etat.session.j_courant - (depart + 3 * pas)) < 1e-9);
    b.clique("cmd_stop");
    QVERIFY(qAbs(b.etat.session.j_courant - (depart + 3 * pas)) < 1e-9);  // nothing at the click
    QCOMPARE(b.mises_a_jour, 1);
    b.ticks(1);
    QCOMPARE(b.etat.session.j_courant, depart);
    QCOMPARE(b.mises_a_jour, 2);
    QCOMPARE(b.texte("lab_chour"), QStringLiteral("13:12:00"));
    b.ticks(3 * ticks_par_pas);
    QCOMPARE(b.mises_a_jour, 2);  // once
}

void TestPowerSimAll::etiquettes_egales_au_bilan_apres_n_pas() {
    Banc b;
    b.ticks(1);
    Etat copie = b.etat;
    b.clique("cmd_lance");
    b.ticks(3 * ticks_par_pas);
    for (int i = 0; i < 3; ++i) {
        copie.session.j_courant += copie.session.pas_sim / 86400.0;
        kestrel::power_step(copie);
    }
    const kestrel::PowerRecord& p = copie.pwr;
    QVERIFY(p.gen_power > 0);  // a sunlit start: the figures below are not all zero
    const std::pair<const char*, QString> table[] = {
        {"lab_pgs", watts(p.gen_power)},
        {"lab_pbat", watts(p.bat_p)},
        {"lab_puse", watts(p.p_payload)},
        {"lab_exc", watts(qMax(p.p_excess, 0.0))},
        {"lab_pgs_diss", watts(p.p_loss_gs)},
        {"lab_pbat_diss", watts(p.p_loss_de)},
        {"lab_diss_charge", watts(p.p_loss_ch)},
        {"lab_disscu", watts(p.p_loss_pl)},
        // 10 accumulators in series; OFF only while bat_p is 0
        {"lab_voltmeter", QString::number(p.bat_ns * p.bat_v, 'f', 2) + QLatin1Char(' ')},
        {"lab_ammeter", QString::number(p.bat_i / p.bat_c, 'f', 2) + QLatin1Char('C')},
        {"lab_chargemeter", QString::number(qRound(p.bat_soc * 100)) + QStringLiteral(" %")},
        {"lab_cdate", QStringLiteral("21/03/2001")},
        {"lab_chour", QStringLiteral("13:15:00")},  // 13:12:00.864 + 3 x 60 s
        {"lab_chtime", QStringLiteral("00:04:00")},  // charging since the reset's step: 4 steps of 60 s
        {"lab_distime", QStringLiteral("00:00:00")},
    };
    for (const auto& [nom, attendu] : table) QVERIFY2(b.texte(nom) == attendu, nom);
}

void TestPowerSimAll::mot_et_image_de_la_batterie() {
    Banc b;
    b.ticks(1);
    // bat_p, bat_soc -> word, picture (0 full .. 4 lowest level, 5 empty)
    const std::tuple<double, double, const char*, int> table[] = {
        {10, 0.95, "Décharge...", 0}, {10, 0.7, "Décharge...", 1}, {10, 0.5, "Décharge...", 2},
        {10, 0.2, "Décharge...", 3},  {10, 0.05, "Décharge...", 4}, {10, 0.0, "Déchargée", 5},
        {0, 1.0, "Attente...", 0},
    };
    for (const auto& [bat_p, soc, mot, image] : table) {
        b.etat.pwr.bat_p = bat_p;
        b.etat.pwr.bat_soc = soc;
        b.fen->affiche();
        b.fen->timer_icon_bat_Timer();
        QCOMPARE(b.texte("lab_state"), QString::fromUtf8(mot));
        QCOMPARE(b.ctrl("pict_bat")->property("image").toInt(), image);
    }
    // Charging at 0.5: the picture of the level, then one fuller, by turns.
    b.etat.pwr.bat_p = -5;
    b.etat.pwr.bat_soc = 0.5;
    b.fen->affiche();
    QSet<int> vues;
    for (int i = 0; i < 2; ++i) {
        b.fen->timer_icon_bat_Timer();
        QCOMPARE(b.texte("lab_state"), QStringLiteral("Charge..."));
        vues << b.ctrl("pict_bat")->property("image").toInt();
    }
    QCOMPARE(vues, (QSet<int>{1, 2}));
}

void TestPowerSimAll::fleches_par_signe() {
    Banc b;
    b.ticks(1);
    // gen_power, bat_p, p_excess -> fl_gs, fl_charge, fl_decharge, fl_shunt shown
    const std::tuple<double, double, double, bool, bool, bool, bool> table[] = {
        {120, -12, 60, true, true, false, true},    // sunlit, charging, excess to the shunt
        {0, 27.8, 0, false, false, true, false},    // eclipse: the battery alone
        {40, 5, -1, true, false, true, false},      // sun and battery, short of power
        {0, 0, 0, false, false, false, false},
    };
    for (const auto& [pg, pb, exc, gs, ch, de, sh] : table) {
        b.etat.pwr.gen_power = pg;
        b.etat.pwr.bat_p = pb;
        b.etat.pwr.p_excess = exc;
        b.fen->affiche();
        QCOMPARE(!b.ctrl("fl_gs")->isHidden(), gs);
        QCOMPARE(!b.ctrl("fl_charge")->isHidden(), ch);
        QCOMPARE(!b.ctrl("fl_decharge")->isHidden(), de);
        QCOMPARE(!b.ctrl("fl_shunt")->isHidden(), sh);
    }
    b.etat.pwr.bat_p = 0;
    b.fen->affiche();
    QCOMPARE(b.texte("lab_voltmeter"), QStringLiteral("OFF"));
}

void TestPowerSimAll::une_image_de_la_vue_3d() {
    Banc b;
    Pict_visu3d* vue = b.fen->vue();
    if (!vue) {
        QVERIFY(b.fen->findChild<QLabel*>(QStringLiteral("lab_sans_3d")));
        QSKIP("no OpenGL context on this display: the notice stands in for the view");
    }
    b.ticks(1);
    const QImage img = vue->grabFramebuffer();
    QVERIFY(!img.isNull());
    QVERIFY(vue->pret());
    // Clear colour (0, 0, 0.2) in a corner: 0.2 x 255 = 51.
    const QColor coin = img.pixelColor(2, 2);
    QCOMPARE(coin.red(), 0);
    QCOMPARE(coin.green(), 0);
    QVERIFY(qAbs(coin.blue() - 51) <= 1);
    // The Earth (radius 1 in a -4..4 square) covers the middle eighth of the
    // view: the pixels there are land or sea, not the clear colour, neither
    // the white axis nor the yellow Sun (a dark sea texel may match the
    // clear colour: most, not all).
    const QPoint c(img.width() / 2, img.height() / 2);
    int terre = 0;
    for (int dy = -8; dy <= 8; dy += 4)
        for (int dx = -8; dx <= 8; dx += 4) {
            const QColor p = img.pixelColor(c + QPoint(dx, dy));
            const bool blanc_ou_jaune = p.red() > 200 && p.green() > 200;
            if (!blanc_ou_jaune && p != coin) ++terre;
        }
    if (terre < 20) img.save(QDir::temp().filePath(QStringLiteral("test_gui_power_sim_all_vue.png")));
    QVERIFY2(terre >= 20, qPrintable(QString::number(terre)));
}

void TestPowerSimAll::glisser_borne_l_elevation() {
    Banc b;
    Pict_visu3d* vue = b.fen->vue();
    if (!vue) QSKIP("no OpenGL context on this display");
    const double e0 = vue->angle_elevation(), a0 = vue->angle_azimut();
    const auto souris = [vue](QEvent::Type t, QPoint p, Qt::MouseButtons boutons) {
        QMouseEvent e(t, p, vue->mapToGlobal(p), t == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, boutons,
                      Qt::NoModifier);
        QCoreApplication::sendEvent(vue, &e);
    };
    souris(QEvent::MouseButtonPress, {100, 200}, Qt::LeftButton);
    QCOMPARE(vue->cursor().shape(), Qt::SizeAllCursor);
    // Up by 25 px: +0.5 rad; right by 50 px: +1 rad.
    souris(QEvent::MouseMove, {150, 175}, Qt::LeftButton);
    QVERIFY(qAbs(vue->angle_elevation() - (e0 + 0.5)) < 1e-12);
    QVERIFY(qAbs(vue->angle_azimut() - (a0 + 1.0)) < 1e-12);
    // Up by 400 px more (+8 rad): held at pi/2; down by 1000 px: held at -pi/2.
    souris(QEvent::MouseMove, {150, -225}, Qt::LeftButton);
    QCOMPARE(vue->angle_elevation(), M_PI / 2);
    souris(QEvent::MouseMove, {150, 775}, Qt::LeftButton);
    QCOMPARE(vue->angle_elevation(), -M_PI / 2);
    souris(QEvent::MouseButtonRelease, {150, 775}, Qt::NoButton);
    QCOMPARE(vue->cursor().shape(), Qt::ArrowCursor);
}

QTEST_MAIN(TestPowerSimAll)
#include "test_gui_power_sim_all.moc"

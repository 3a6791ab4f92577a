// The power settings window driven by its object names from the main window:
// limits and refusals, repairs, catalogues, the body choice, the charts, the
// reload on open and the round trip through a saved project.
#include <QtCharts>
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "core/etat/etat.h"
#include "core/project/energie.h"
#include "faux_dialogues.h"
#include "project/power_conf.h"
#include "shell/menu.h"

using kestrel::Etat;
using kestrel::Icone;
using kestrel::gui::menu;

namespace {

const QString hors = QStringLiteral("Valeur hors limite !! Saisissez une valeur : \n");
const QString insuff = QStringLiteral("Valeur insuffisante! Saisissez une valeur ");

struct Banc {
    Etat etat;
    FauxDialogues dlg;
    std::unique_ptr<menu> m = std::make_unique<menu>(etat, dlg);
    QTemporaryDir tmp;

    // Opens the window from a menu entry and waits until it can take the focus.
    QWidget* ouvre(const char* entree = "mn_conf_pow_pan") {
        m->findChild<QAction*>(entree)->trigger();
        QWidget* f = m->findChild<QWidget*>("power_conf");
        if (!f || !QTest::qWaitForWindowActive(f)) qFatal("power_conf not shown");
        return f;
    }
    template <class T = QLineEdit>
    T* ctrl(const QString& nom) {
        T* c = m->findChild<T*>(nom);
        if (!c) qFatal("control %s not found", qPrintable(nom));
        return c;
    }
    // The tab holding the control comes forward, as a user would pick it.
    void montre(QWidget* c) {
        auto* o = ctrl<QTabWidget>("Onglet_power");
        for (int i = 0; i < o->count(); ++i)
            if (o->widget(i)->isAncestorOf(c)) o->setCurrentIndex(i);
    }
    // Types text into the box then leaves it; returns the message shown, if any.
    QString saisit(const QString& nom, const QString& texte) {
        QLineEdit* c = ctrl(nom);
        montre(c);
        const auto avant = dlg.messages.size();
        c->setFocus();
        c->selectAll();
        QTest::keyClicks(c, texte);
        ctrl<QPushButton>("cmd_quit")->setFocus();
        return dlg.messages.size() > avant ? dlg.messages.last().texte : QString();
    }
    QString texte(const QString& nom) { return ctrl(nom)->text(); }
    void clique(const char* nom) {
        auto* b = ctrl<QAbstractButton>(nom);
        montre(b);
        b->click();
    }
    void choisit(const char* combo, int entree) {
        auto* c = ctrl<QComboBox>(combo);
        c->setCurrentIndex(entree);
        emit c->activated(entree);
    }
    QList<QAbstractSeries*> series(const char* graphe) { return ctrl<QChartView>(graphe)->chart()->series(); }
    QPointF point(const char* graphe, int serie, int k) {
        return static_cast<QLineSeries*>(series(graphe).at(serie))->at(k);
    }
};

}  // namespace

class TestPowerConf : public QObject {
    Q_OBJECT
private slots:
    void limites_data();
    void limites();
    void entiers_et_types();
    void reparations_et_rendement();
    void catalogues();
    void corps_et_options();
    void graphes();
    void rechargement_et_aller_retour();
};

// One row per box: its two limits (nan: none), whether each is inclusive,
// the step for "just inside / beyond", and the message at the lower and at
// the upper side. Boxes sharing limits share a line.
void TestPowerConf::limites_data() {
    QTest::addColumn<QString>("nom");
    QTest::addColumn<double>("bas");
    QTest::addColumn<double>("haut");
    QTest::addColumn<bool>("bas_inclus");
    QTest::addColumn<bool>("haut_inclus");
    QTest::addColumn<double>("pas");
    QTest::addColumn<QString>("msg_bas");
    QTest::addColumn<QString>("msg_haut");
    // Both limits: the same "hors limite" message on both sides.
    auto entre = [](std::initializer_list<const char*> noms, double b, double h, const char* limites,
                    double pas = 0.01, bool hi = true) {
        for (const char* n : noms) QTest::newRow(n) << n << b << h << true << hi << pas << hors + limites << hors + limites;
    };
    // A lower limit only: "insuffisante" below it.
    auto au_moins = [](std::initializer_list<const char*> noms, double b, const char* limite, double pas = 0.01,
                       bool bi = true) {
        for (const char* n : noms) QTest::newRow(n) << n << b << qQNaN() << bi << true << pas << insuff + limite << QString();
    };
    entre({"cel_txt_isc", "cel_txt_imp", "cel_txt_voc", "cel_txt_vmp"}, 0, 10, "0 <= Valeur <= 10");
    entre({"cel_txt_disc", "cel_txt_dimp", "cel_txt_dvoc", "cel_txt_dvmp"}, -0.05, 0.05, "-0.05 <= Valeur <= 0.05", 0.001);
    entre({"cel_txt_ns", "cel_txt_np", "cel_txt_surf", "gst_txt_chini", "gst_txt_rendbat", "gst_txt_rendgs",
           "gst_txt_diss", "gst_txt_cour_ent", "bat_txt_cmin"}, 0, 100, "0 <= Valeur <= 100");
    entre({"cel_txt_radisc", "cel_txt_radimp", "cel_txt_radvoc", "cel_txt_radvmp"}, 0, 1.02, "0 <= Valeur <= 1.02");
    // Incidences: divergence up to the maximum 75, maximum from the divergence 50.
    entre({"cel_txt_tetad"}, 0, 75, "0 <= Valeur <= 75");
    entre({"cel_txt_tetam"}, 50, 90, "50 <= Valeur <= 90");
    entre({"gst_txt_Vregul"}, 0.1, 100, "0.1 <= Valeur <= 100");
    entre({"pan_txt_ext_ang"}, -180, 180, "-180 <= Valeur <= 180");
    // Optical properties: rear absorptivity 0.16 / 0.3, so the initial value
    // stops at 0.3 and the limit value at 0.16.
    entre({"thex_txt_alpha0_ar"}, 0, 0.3, "0 <= Valeur <= 0.3");
    entre({"thex_txt_alim_ar"}, 0.16, 1, "0.16 <= Valeur <= 1");
    entre({"thex_txt_eps_av", "thex_txt_eps_face", "bat_txt_c10"}, 0, 1, "0 <= Valeur <= 1");
    entre({"bat_txt_cmax"}, 1, 2, "1 <= Valeur <= 2");
    // Self-discharge: 0 <= tau50 < tau0 = 100, tau0 > tau50 = 15.
    entre({"bat_txt_tc50"}, 0, 100, "0 <= Valeur < 100", 0.01, false);
    au_moins({"bat_txt_tc0"}, 15, "> 15", 0.01, false);
    au_moins({"gst_txt_ichmax", "gst_txt_pdem", "pan_txt_ext_gap", "pan_txt_ext_omega", "pan_txt_h", "pan_txt_s",
              "thex_txt_masse_pan", "thex_txt_cp_face", "thex_txt_cond", "thex_txt_rad", "thex_txt_aire_pan",
              "thbd_txt_masse", "thbd_txt_cp_int", "thbd_txt_condcyl", "bat_txt_c"}, 0, ">= 0");
    au_moins({"pan_txt_ext_lag", "thex_txt_t99_face", "thbd_txt_t99"}, 0, ">= 0", 1);
    au_moins({"gst_txt_kcharge", "gst_txt_chvmax"}, 1, ">= 1");
    for (const char* n : {"bat_txt_ns", "bat_txt_np"})
        QTest::newRow(n) << n << 0.0 << 255.0 << true << true << 1.0 << insuff + ">= 0"
                         << "Valeur excessive !! Saisissez une valeur <= 255";
}

void TestPowerConf::limites() {
    QFETCH(QString, nom);
    QFETCH(double, bas);
    QFETCH(double, haut);
    QFETCH(bool, bas_inclus);
    QFETCH(bool, haut_inclus);
    QFETCH(double, pas);
    QFETCH(QString, msg_bas);
    QFETCH(QString, msg_haut);
    Banc b;
    b.ouvre();
    b.clique("gst_opt_regul_0");  // the regulated voltage is open in that mode only
    b.choisit("bat_cmb_type", 3);  // "Générique" opens the catalogue's fields
    b.clique("cel_opt_beol_1");    // the ratios are open at end of life only
    if (nom.startsWith(QLatin1String("thbd"))) b.clique("pan_opt_pan_1");  // that model's frame
    auto essaie = [&](double x, const QString& attendu) {
        const QString avant = b.texte(nom);
        const QString msg = b.saisit(nom, QString::number(x, 'g', 10));
        QCOMPARE(msg, attendu);
        if (!attendu.isEmpty()) {
            QCOMPARE(b.texte(nom), avant);  // the old value is back
            QVERIFY(b.ctrl(nom)->hasFocus());
            QCOMPARE(b.dlg.messages.last().icone, Icone::avertissement);
        }
    };
    // lower side: at, inside, beyond
    essaie(bas, bas_inclus ? QString() : msg_bas);
    essaie(bas + pas, {});
    essaie(bas - pas, msg_bas);
    if (!qIsNaN(haut)) {
        essaie(haut, haut_inclus ? QString() : msg_haut);
        essaie(haut - pas, {});
        essaie(haut + pas, msg_haut);
    }
}

void TestPowerConf::entiers_et_types() {
    Banc b;
    b.ouvre();
    for (const char* nom : {"thex_txt_t99_av", "bat_txt_ns", "pan_txt_ext_lag"}) {
        const QString avant = b.texte(nom);
        QCOMPARE(b.saisit(nom, "2.5"), QStringLiteral("Type de donnée non valide"));
        QCOMPARE(b.dlg.messages.last().icone, Icone::critique);
        QCOMPARE(b.texte(nom), avant);
        QVERIFY(b.ctrl(nom)->hasFocus());
    }
    QCOMPARE(b.saisit("cel_txt_tref", "chaud"), QStringLiteral("Type de donnée non valide"));
    QCOMPARE(b.etat.pwr.ext_t99[0], 20000);
    QCOMPARE(b.etat.pwr.bat_ns, 10);
    QCOMPARE(b.etat.session.config_modifiee, 0);  // nothing accepted yet
    QCOMPARE(b.saisit("cel_txt_tref", "30,5"), QString());
    QCOMPARE(b.etat.pwr.cel_tref, 30.5f);
    QCOMPARE(b.etat.session.config_modifiee, 1);
}

void TestPowerConf::reparations_et_rendement() {
    // The repairs and the efficiency are the core's (saisie_energie): here the
    // window shows the repaired box, the box a ratio repairs, and the efficiency.
    Banc b;
    b.ouvre("mn_conf_pow_perf");
    QCOMPARE(b.ctrl<QTabWidget>("Onglet_power")->currentIndex(), 1);
    // Isc 0.53 / Imp 0.5: an Isc of 0.3 becomes Imp + 0.02.
    QCOMPARE(b.saisit("cel_txt_isc", "0.3"), QString());
    QCOMPARE(b.texte("cel_txt_isc"), QStringLiteral("0.52"));
    // 0.5 A * 0.86 V * 10000 / 1368 / 16 = 19.65 %
    QCOMPARE(b.ctrl<QLabel>("lbl_eff")->text(), QStringLiteral("19.6"));
    QVERIFY(!b.ctrl("cel_txt_radisc")->isEnabled());
    b.clique("cel_opt_beol_1");
    QVERIFY(b.ctrl("cel_txt_radisc")->isEnabled());
    // End of life: Isc 0.52 * 0.9 = 0.468 not above Imp 0.5 * 1: Imp/Imp0 = 0.9 * 0.98 * 0.52 / 0.5 = 0.91728.
    QCOMPARE(b.saisit("cel_txt_radisc", "0.9"), QString());
    QCOMPARE(b.texte("cel_txt_radimp").left(7), QStringLiteral("0.91728"));
    // EOL efficiency: 0.5 * 0.91728 * 0.86 * 10000 / 1368 / 16 = 18.02 %, then * 16 / 20 = 14.42 %.
    QCOMPARE(b.ctrl<QLabel>("lbl_eff")->text(), QStringLiteral("18.0"));
    QCOMPARE(b.saisit("cel_txt_surf", "20"), QString());
    QCOMPARE(b.ctrl<QLabel>("lbl_eff")->text(), QStringLiteral("14.4"));
}

void TestPowerConf::catalogues() {
    // The catalogues' figures are the core's; here the boxes follow the
    // choice, the locks follow the type, and an edit sticks only in "Générique".
    Banc b;
    b.ouvre("mn_conf_pow_bat");
    QCOMPARE(b.ctrl<QTabWidget>("Onglet_power")->currentIndex(), 3);
    // Silicium, then the same entry again after an edit: the edit is lost, the counts stay.
    b.choisit("cel_cmb_type", 1);
    QCOMPARE(b.saisit("cel_txt_isc", "2"), QString());
    QCOMPARE(b.saisit("cel_txt_ns", "12"), QString());
    b.choisit("cel_cmb_type", 1);
    QCOMPARE(b.texte("cel_txt_isc"), QStringLiteral("1"));
    QCOMPARE(b.texte("cel_txt_ns"), QStringLiteral("12"));
    QCOMPARE(b.ctrl<QLabel>("lbl_eff")->text(), QStringLiteral("15.6"));  // 0.95 * 0.45 * 10000 / 1368 / 20

    // Lithium-Ion: curves and management fields filled, the curves locked.
    b.choisit("bat_cmb_type", 2);
    for (const auto& [nom, texte] : {std::pair{"bat_txt_d100_3", "2.8"}, {"bat_txt_1_5", "0.4"}, {"bat_txt_c10", "0.80"},
                                     {"gst_txt_chvmax", "4"}})
        QCOMPARE(b.texte(nom), QString::fromUtf8(texte));
    QVERIFY(!b.ctrl("bat_txt_d100_3")->isEnabled() && !b.ctrl("bat_txt_cmax")->isEnabled());
    QVERIFY(b.ctrl("bat_txt_c")->isEnabled());
    // Générique keeps the values and opens them; an edit then sticks.
    b.choisit("bat_cmb_type", 3);
    QVERIFY(b.ctrl("bat_txt_d100_3")->isEnabled());
    QCOMPARE(b.saisit("bat_txt_d100_3", "2.7"), QString());
    QCOMPARE(b.etat.pwr.de_pt[3][3], 2.7f);
    // Nickel-Cadmium again overwrites it.
    b.choisit("bat_cmb_type", 0);
    QCOMPARE(b.texte("bat_txt_d100_3"), QStringLiteral("1"));
}

void TestPowerConf::corps_et_options() {
    Banc b;
    b.ouvre();
    auto* liste = b.ctrl<QListWidget>("pan_list_conf");
    liste->setCurrentRow(1);  // external panels: refused
    QCOMPARE(liste->currentRow(), 0);
    QCOMPARE(b.etat.pwr.opt_faces, 0);
    b.clique("pan_opt_pan_1");
    QCOMPARE(b.etat.pwr.opt_panel_ext, 0);
    QVERIFY(!b.ctrl("pan_txt_ext_ang")->isEnabled());
    liste->setCurrentRow(1);  // six faces, 60 degrees apart
    QCOMPARE(b.etat.pwr.nb_faces, 6);
    QVERIFY(b.ctrl<QLabel>("pan_img_body_1")->isVisible());
    liste->setCurrentRow(2);
    QCOMPARE(b.etat.pwr.opt_faces, 2);
    QCOMPARE(b.ctrl<QLabel>("pan_lab_s")->text(), QStringLiteral("Diamètre (m)"));
    QVERIFY(b.ctrl<QLabel>("pan_img_body_2")->isVisible());
    QVERIFY(!b.ctrl<QLabel>("pan_img_body_1")->isVisible());

    // Thermal tab: the frame of the model in force.
    b.ctrl<QTabWidget>("Onglet_power")->setCurrentIndex(2);
    QVERIFY(b.ctrl<QWidget>("thbd_frm")->isVisible());
    QVERIFY(!b.ctrl<QWidget>("thex_frm")->isVisible());
    // Date of the coatings: 1 January 2000 is day 18262 (50 years, 12 leap days).
    b.ctrl<QDateEdit>("th_txt_date")->setDate(QDate(2000, 1, 1));
    QCOMPARE(b.etat.pwr.date_cell, 18262);
    // The element chosen in a list is the one edited: the upper face.
    b.ctrl<QListWidget>("thbd_list_cond")->setCurrentRow(1);
    QCOMPARE(b.texte("thbd_txt_masse"), QStringLiteral("2"));
    QCOMPARE(b.saisit("thbd_txt_masse", "3"), QString());
    QCOMPARE(b.etat.pwr.fac_mass[1], 3.0f);
    QCOMPARE(b.etat.pwr.fac_mass[0], 5.0f);

    // Slider and angle box mirror each other (panels external again).
    b.clique("pan_opt_pan_0");
    b.ctrl<QSlider>("pan_sld_ang")->setValue(-45);
    QCOMPARE(b.texte("pan_txt_ext_ang"), QStringLiteral("-45"));
    QCOMPARE(b.saisit("pan_txt_ext_ang", "30"), QString());
    QCOMPARE(b.ctrl<QSlider>("pan_sld_ang")->value(), 30);
    b.clique("pan_chk_fix");
    QCOMPARE(b.etat.pwr.pan_fixed, -1);
    // Management: the regulated voltage only for a regulated bus; day or eclipse.
    QVERIFY(!b.ctrl("gst_txt_Vregul")->isEnabled());
    b.clique("gst_opt_regul_0");
    QCOMPARE(b.etat.pwr.gst_regulated, 1);
    QVERIFY(b.ctrl("gst_txt_Vregul")->isEnabled());
    b.clique("gst_opt_jn_1");
    QCOMPARE(b.saisit("gst_txt_pdem", "80"), QString());
    QCOMPARE(b.etat.pwr.p_demand[1], 80.0f);
    QCOMPARE(b.etat.pwr.p_demand[0], 50.0f);
}

void TestPowerConf::graphes() {
    Banc b;
    b.ouvre("mn_conf_pow_perf");
    // The curves are the core's (AsGa, Tref 28): Tref first, Tref + 50 °C last,
    // whose current at V = 0 is Isc = 0.53 + 50 * 0.0003 = 0.545.
    QCOMPARE(b.series("cel_charac_graph").size(), 5);
    QCOMPARE(b.series("cel_charac_graph").at(0)->name(), QStringLiteral("Tréf"));
    QVERIFY(qAbs(b.point("cel_charac_graph", 4, 0).y() - 0.545) < 1e-6);
    auto* vue = b.ctrl<QChartView>("cel_charac_graph");
    QCOMPARE(vue->chart()->axes(Qt::Vertical).at(0)->titleText(), QStringLiteral("Courant (A)"));
    // Power at the maximum power point of Tref: 0.86 V * 0.5 A (the law gives Imp at Vmp).
    b.clique("cel_opt_puiss");
    QVERIFY(qAbs(b.point("cel_charac_graph", 0, 43).y() - 0.43) < 1e-6);
    QCOMPARE(vue->chart()->axes(Qt::Vertical).at(0)->titleText(), QStringLiteral("Puissance (W)"));
    b.clique("cel_opt_cour");
    QCOMPARE(b.saisit("cel_txt_isc", "0.6"), QString());  // the chart follows
    QVERIFY(qAbs(b.point("cel_charac_graph", 0, 0).y() - 0.6) < 1e-6);

    // The battery charts show the curves the core draws (their values are
    // checked there): discharge by current at 25 °C, 1C at depth 50 % is
    // 1.21 + 0.35 * (-0.01 / 0.8) = 1.205625 V; the option swaps to temperatures.
    QCOMPARE(b.ctrl<QChartView>("bat_dch_graph")->chart()->title(), QStringLiteral("Caractéristiques de décharge à 25°C"));
    QCOMPARE(b.series("bat_dch_graph").size(), 4);
    QCOMPARE(b.series("bat_dch_graph").at(2)->name(), QStringLiteral("1C"));
    QVERIFY(qAbs(b.point("bat_dch_graph", 2, 50).y() - 1.205625) < 1e-6);
    b.clique("bat_dch_opt_temp");
    QCOMPARE(b.series("bat_dch_graph").size(), 5);
    QCOMPARE(b.ctrl<QChartView>("bat_dch_graph")->chart()->title(), QStringLiteral("Caractéristiques de décharge à Cnom"));
    // Charge at 1C, -25 °C, state 20 %: 1.45 + 0.1 * 0.01 / 0.3 = 1.4533333 V.
    b.clique("bat_ch_opt_temp");
    QCOMPARE(b.series("bat_ch_graph").size(), 5);
    QVERIFY(qAbs(b.point("bat_ch_graph", 1, 20).y() - 1.4533333) < 1e-6);
}

void TestPowerConf::rechargement_et_aller_retour() {
    Banc b;
    // A project written with other values, opened while the window is shown.
    Etat autre;
    autre.pwr.cel_isc = 0.7f;
    autre.pwr.bat_c = 25.0f;
    autre.pwr.ext_eps[4] = 0.6f;  // "Face Y"
    autre.pwr.gst_regulated = 1;
    const QString chemin = b.tmp.filePath("autre.pwr");
    QVERIFY(!kestrel::sauve_energie(autre, chemin.toStdString()));
    b.ouvre();
    b.dlg.chemins = {chemin};
    b.m->findChild<QAction*>("mn_fichier_ouvrir")->trigger();
    QCOMPARE(b.texte("cel_txt_isc"), QStringLiteral("0.7"));
    QCOMPARE(b.texte("bat_txt_c"), QStringLiteral("25.00"));
    QVERIFY(b.ctrl("gst_txt_Vregul")->isEnabled());
    b.ctrl<QListWidget>("thex_list_cubeface")->setCurrentRow(2);
    QCOMPARE(b.texte("thex_txt_eps_face"), QStringLiteral("0.6"));

    // An edit, saved, read back into a fresh state.
    QCOMPARE(b.saisit("thex_txt_eps_face", "0.55"), QString());
    QCOMPARE(b.saisit("bat_txt_np", "4"), QString());
    QCOMPARE(b.etat.session.config_modifiee, 1);
    const QString copie = b.tmp.filePath("copie.pwr");
    b.dlg.chemins = {copie};
    b.m->findChild<QAction*>("mn_fichier_enregsous")->trigger();
    Etat relu;
    QVERIFY(!kestrel::charge_energie(relu, copie.toStdString()));
    QCOMPARE(relu.pwr.ext_eps[4], 0.55f);
    QCOMPARE(relu.pwr.bat_np, 4);
    QCOMPARE(relu.pwr.cel_isc, 0.7f);
}

QTEST_MAIN(TestPowerConf)
#include "test_gui_power_conf.moc"

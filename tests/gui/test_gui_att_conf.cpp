// att_conf driven by its object names: the boxes and their limits, the
// external mass, the three check boxes, the totals, the notes page and the
// reload on opening a .att. The figures behind the boxes are the core's
// (saisie_attitude, bilan_masses): checked here as shown, once.
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "attitude/att_conf.h"
#include "core/etat/etat.h"
#include "core/project/fichiers_binaires.h"
#include "core/shell/messages.h"
#include "faux_dialogues.h"
#include "shell/menu.h"

using kestrel::AttitudeRecord;
using kestrel::Etat;
using kestrel::Vec3;
using kestrel::gui::att_conf;
using kestrel::gui::menu;

namespace {

struct Banc {
    Etat etat;
    FauxDialogues dlg;
    std::unique_ptr<menu> fen;
    QTemporaryDir tmp;
    att_conf* conf = nullptr;

    Banc() : fen(std::make_unique<menu>(etat, dlg)) {}
    // Opens the window from a menu entry and waits until it takes the keyboard.
    void ouvre(const char* entree = "mn_conf_att_masses") {
        fen->findChild<QAction*>(entree)->trigger();
        conf = fen->findChild<att_conf*>("att_conf");
        QVERIFY(conf && conf->isVisible());
        QVERIFY(QTest::qWaitForWindowActive(conf));
    }
    template <class T = QLineEdit>
    T* ctrl(const char* nom) {
        T* c = conf->findChild<T*>(QString::fromUtf8(nom));
        if (!c) qFatal("control %s not found", nom);
        return c;
    }
    QString texte(const char* nom) { return ctrl(nom)->text(); }
    QString libelle(const char* nom) { return ctrl<QLabel>(nom)->text(); }
    // Types into the box as a user does and presses Enter, which moves the focus on.
    void saisit(QLineEdit* champ, const QString& texte) {
        // Its page first: a box is checked only while it is shown.
        auto* onglets = conf->findChild<QTabWidget*>("Onglet_att");
        for (QWidget* w = champ; w; w = w->parentWidget())
            if (onglets->indexOf(w) >= 0) onglets->setCurrentWidget(w);
        champ->setFocus();
        champ->selectAll();
        QTest::keyClicks(champ, texte);
        QTest::keyClick(champ, Qt::Key_Return);
    }
    void saisit(const char* nom, const QString& texte) { saisit(ctrl(nom), texte); }
    bool montre(const char* piece) { return !ctrl<QWidget>(piece)->isHidden(); }
    AttitudeRecord& a() { return etat.att; }
};

}  // namespace

class TestAttConf : public QObject {
    Q_OBJECT
private slots:
    void entrees_et_touches_ouvrent_leur_page();
    void dimensions_et_centre_de_masse();
    void bornes_de_chaque_case();
    void texte_refuse_et_degres();
    void coches_et_dessin();
    void masse_externe_un_axe_a_la_fois();
    void bilan_apres_saisie();
    void gestion_par_axe();
    void rechargement_a_l_ouverture();
};

void TestAttConf::entrees_et_touches_ouvrent_leur_page() {
    Banc b;
    const std::pair<const char*, const char*> entrees[] = {{"mn_conf_att_masses", "masses"},
                                                           {"mn_conf_att_prop", "proprietes"},
                                                           {"mn_conf_att_act", "actuators"},
                                                           {"mn_conf_att_gest", "gestatt"}};
    auto* barre = b.fen->findChild<QToolBar*>("Toolbar_att");
    for (int k = 0; k < 4; ++k) {
        b.ouvre(entrees[k].first);
        auto* onglets = b.ctrl<QTabWidget>("Onglet_att");
        QCOMPARE(onglets->currentIndex(), k);
        onglets->setCurrentIndex((k + 1) % 4);
        auto* cle = barre->findChild<QAction*>(entrees[k].second);
        QVERIFY(cle->isEnabled());
        b.fen->Toolbar_ButtonClick("Toolbar_att", entrees[k].second);
        QCOMPARE(onglets->currentIndex(), k);
    }
    QCOMPARE(b.conf->windowTitle(), "Configuration SCA");
    QCOMPARE(b.fen->findChildren<att_conf*>().size(), 1);  // one window, reused
    QTest::mouseClick(b.ctrl<QPushButton>("cmd_ok"), Qt::LeftButton);
    QVERIFY(!b.conf->isVisible());
}

void TestAttConf::dimensions_et_centre_de_masse() {
    Banc b;
    b.ouvre();
    QCOMPARE(b.etat.session.config_modifiee, int16_t{0});
    // Body 0.45 m: 5 in cmx is held to 0.45 / 2.
    b.saisit("cmx", "5");
    QCOMPARE(b.texte("cmx"), "0.225");
    QCOMPARE(b.a().cm[0], 0.225);
    QCOMPARE(b.etat.session.config_modifiee, int16_t{1});
    b.saisit("cmz", "-5");
    QCOMPARE(b.texte("cmz"), "-0.225");
    // 100 in dimens1 shows 90; cmx may then go to ±45 and no further.
    b.saisit("dimens1", "100");
    QCOMPARE(b.texte("dimens1"), "90");
    b.saisit("cmx", "50");
    QCOMPARE(b.texte("cmx"), "45");
    b.saisit("cmx", "-50");
    // A smaller body brings the centre of mass back inside, in its box too: 1 m -> -0.5.
    b.saisit("dimens1", "1");
    QCOMPARE(b.texte("cmx"), "-0.5");
    // An entry left by a click on another tab is applied before its page hides.
    auto* champ = b.ctrl("dimens2");
    champ->setFocus();
    champ->selectAll();
    QTest::keyClicks(champ, "0.3");
    auto* barre = b.ctrl<QTabWidget>("Onglet_att")->tabBar();
    QTest::mouseClick(barre, Qt::LeftButton, {}, barre->tabRect(2).center());
    QCOMPARE(b.ctrl<QTabWidget>("Onglet_att")->currentIndex(), 2);
    QCOMPARE(b.a().dim[1], 0.3);
}

void TestAttConf::bornes_de_chaque_case() {
    Banc b;
    b.ouvre();
    b.ctrl<QCheckBox>("chk_roue")->setChecked(true);
    b.ctrl<QCheckBox>("chk_damp")->setChecked(true);
    struct Bornes {
        QStringList noms;
        double min, max;
    };
    const QStringList coefficients{
        "sx_pos",  "sy_pos",  "sz_pos",  "sx_neg",  "sy_neg",  "sz_neg",  "sxt_pos", "syt_pos",
        "szt_pos", "sxt_neg", "syt_neg", "szt_neg", "crx_pos", "cry_pos", "crz_pos", "crx_neg",
        "cry_neg", "crz_neg", "cdx_pos", "cdy_pos", "cdz_pos", "cdx_neg", "cdy_neg", "cdz_neg"};
    const Bornes fixes[] = {
        {coefficients, 0, 10},
        {{"dimens1", "dimens2", "dimens3"}, 0, 90},
        {{"dip_x", "dip_y", "dip_z", "dip_x_act", "dip_y_act", "dip_z_act", "txt_jets_x", "txt_jets_y",
          "txt_jets_z"}, -10, 10},
        {{"Masse", "I_xx", "I_yy", "I_zz", "I_xy", "I_xz", "I_yz"}, -100, 100},
    };
    // At each limit, beyond on both sides (the clamp shows the limit), then inside.
    for (const Bornes& g : fixes) {
        for (const QString& nom : g.noms) {
            auto* champ = b.ctrl(nom.toUtf8().constData());
            const std::pair<double, double> essais[] = {{g.min, g.min}, {g.max, g.max}, {g.max + 0.5, g.max},
                                                        {g.min - 0.5, g.min}, {2.5, 2.5}};
            for (const auto& [entree, attendu] : essais) {
                b.saisit(champ, QString::number(entree));
                QVERIFY2(champ->text() == QString::number(attendu),
                         qPrintable(nom + ": " + QString::number(entree) + " -> " + champ->text()));
            }
        }
    }
    QCOMPARE(b.a().sn[3], 2.5);  // sx_neg: face -x
    QCOMPARE(b.a().cd[5], 2.5);  // cdz_neg: face -z
    QCOMPARE(b.a().I_corps(1, 2), 2.5);
    QCOMPARE(b.a().jets[1], 2.5);
    // Wheels and dampers have no limits: read and shown back.
    for (const char* nom : {"txt_JR1", "txt_JR3", "txt_md2", "txt_ld3", "txt_c1", "txt_k2", "txt_OM3"}) {
        for (const char* v : {"-1000000", "0.001", "1234.5"}) {
            b.saisit(nom, v);
            QCOMPARE(b.texte(nom), v);
        }
    }
    // The external mass and its distance, shown with two decimals.
    const std::tuple<const char*, const char*, const char*> grad[] = {
        {"txt_masse_grad", "101", "100.00"}, {"txt_masse_grad", "-1", "0.00"}, {"txt_masse_grad", "2.5", "2.50"},
        {"txt_dist_grad", "500.5", "500.00"}, {"txt_dist_grad", "-3", "0.00"}, {"txt_dist_grad", "2.5", "2.50"}};
    for (const auto& [nom, entree, montre] : grad) {
        b.saisit(nom, entree);
        QCOMPARE(b.texte(nom), montre);
    }
    QCOMPARE(b.a().mext, (Vec3{2.5, 0, 0}));
    QCOMPARE(b.a().dext, (Vec3{2.5, 0, 0}));
}

void TestAttConf::texte_refuse_et_degres() {
    Banc b;
    b.ouvre();
    // Text that is no number: the message, the old text and value kept.
    b.saisit("Masse", "douze");
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.dlg.messages[0].texte, kestrel::msg::type_non_valide);
    QCOMPARE(b.texte("Masse"), "50");
    QCOMPARE(b.a().Masse, 50.0);
    // A French decimal comma is a number too.
    b.saisit("Masse", "12,5");
    QCOMPARE(b.a().Masse, 12.5);
    // Wheel speed in deg/s, stored in rad/s: shown as entered.
    b.ctrl<QCheckBox>("chk_roue")->setChecked(true);
    b.saisit("txt_OM1", "30");
    QCOMPARE(b.texte("txt_OM1"), "30");
}

void TestAttConf::coches_et_dessin() {
    Banc b;
    b.ouvre("mn_conf_att_prop");
    auto* magn = b.ctrl<QCheckBox>("chk_magn");
    auto* roue = b.ctrl<QCheckBox>("chk_roue");
    auto* damp = b.ctrl<QCheckBox>("chk_damp");
    // A new project: residual dipole, no wheel, no damper.
    QVERIFY(magn->isChecked() && !roue->isChecked() && !damp->isChecked());
    QVERIFY(b.ctrl("dip_x")->isEnabled() && !b.ctrl("txt_JR1")->isEnabled() && !b.ctrl("txt_k3")->isEnabled());
    QVERIFY(b.montre("Pict_mag") && !b.montre("Pict_roues") && !b.montre("Pict_damp"));
    const QImage sans = b.ctrl<QWidget>("Pict_config")->grab().toImage();

    // Unticking the magnet empties and locks the residual dipole's boxes, not the actuators'.
    b.saisit("dip_y_act", "2");
    magn->setChecked(false);
    for (const char* nom : {"dip_x", "dip_y", "dip_z"}) {
        QCOMPARE(b.texte(nom), "0");
        QVERIFY(!b.ctrl(nom)->isEnabled());
    }
    QVERIFY(!b.montre("Pict_mag"));
    QCOMPARE(b.texte("dip_y_act"), "2");

    // Wheels and dampers: ticked, filled, drawn; unticked, emptied to 0.
    roue->setChecked(true);
    damp->setChecked(true);
    QVERIFY(b.montre("Pict_roues") && b.montre("Pict_damp"));
    QVERIFY(b.ctrl<QWidget>("Pict_config")->grab().toImage() != sans);
    const char* boites[] = {"txt_JR2", "txt_OM2", "txt_md1", "txt_ld1", "txt_c3", "txt_k3"};
    for (const char* nom : boites) b.saisit(nom, "1");
    QCOMPARE(b.libelle("lbl_mass_all"), "52");  // the damper's 1 kg counts twice
    roue->setChecked(false);
    damp->setChecked(false);
    for (const char* nom : boites) {
        QCOMPARE(b.texte(nom), "0");
        QVERIFY(!b.ctrl(nom)->isEnabled());
    }
    QCOMPARE(b.a().md, (Vec3{}));
    QCOMPARE(b.libelle("lbl_mass_all"), "50");
    QVERIFY(!b.montre("Pict_roues") && !b.montre("Pict_damp"));
}

void TestAttConf::masse_externe_un_axe_a_la_fois() {
    Banc b;
    b.ouvre();
    auto* scroll = b.ctrl<QScrollBar>("scroll_axe_grad");
    QCOMPARE(scroll->maximum(), 5);
    QCOMPARE(b.libelle("lab_axe_grad"), "+X");
    const char* pieces[] = {"Pict_masxp", "Pict_masxm", "Pict_masyp", "pict_masym", "pict_maszp", "Pict_maszm"};
    for (const char* p : pieces) QVERIFY(!b.montre(p));

    // 2 kg at 3 m on +X, then moved to "-Y": the boxes keep their figures,
    // the mass goes to -3 m on y, one picture at a time.
    b.saisit("txt_masse_grad", "2");
    b.saisit("txt_dist_grad", "3");
    QVERIFY(b.montre("Pict_masxp"));
    scroll->setValue(3);
    QCOMPARE(b.libelle("lab_axe_grad"), "-Y");
    QCOMPARE(b.a().dext, (Vec3{0, -3, 0}));
    QCOMPARE(b.texte("txt_masse_grad"), "2.00");
    QCOMPARE(b.texte("txt_dist_grad"), "3.00");
    for (int p = 0; p < 6; ++p) QCOMPARE(b.montre(pieces[p]), p == 3);
    scroll->setValue(5);
    QCOMPARE(b.libelle("lab_axe_grad"), "-Z");
}

void TestAttConf::bilan_apres_saisie() {
    Banc b;
    b.ouvre();
    QCOMPARE(b.libelle("lbl_mass_all"), "50");
    QCOMPARE(b.libelle("lbl_Ixx_all"), "2.188");
    // cm (0.1, 0.2, 0) and 1 kg on +Y at no distance: A = 50 + 2 × 1 = 52.
    // Ixx = 52 × (0.2² + 0) + 2.188 = 4.268; Iyy = 52 × 0.1² + 2.347 = 2.867;
    // Izz = 52 × (0.1² + 0.2²) + 2.541 = 5.141; Ixy = 0.1 × 0.2 × 50 + 2 × 1 × 0.02
    // + 0.3 entered = 1.34; Ixz = Iyz = 0; Mt = 50 + 1.
    b.saisit("cmx", "0.1");
    b.saisit("cmy", "0.2");
    b.ctrl<QScrollBar>("scroll_axe_grad")->setValue(2);
    b.saisit("txt_masse_grad", "1");
    b.saisit("I_xy", "0.3");
    const std::pair<const char*, const char*> attendus[] = {
        {"lbl_mass_all", "51"},  {"lbl_Ixx_all", "4.268"}, {"lbl_Iyy_all", "2.867"}, {"lbl_Izz_all", "5.141"},
        {"lbl_Ixy_all", "1.34"}, {"lbl_Ixz_all", "0"},     {"lbl_Iyz_all", "0"}};
    for (const auto& [nom, texte] : attendus) QCOMPARE(b.libelle(nom), texte);
    QCOMPARE(b.a().cm_total, (Vec3{0.1, 0.2, 0}));
}

void TestAttConf::gestion_par_axe() {
    Banc b;
    b.ouvre("mn_conf_att_gest");
    auto* axes = b.ctrl<QComboBox>("cmb_axes");
    auto* roue = b.ctrl<QComboBox>("cmb_axe_roue");
    QCOMPARE(axes->count(), 3);
    QCOMPARE(roue->itemText(2), "Z");
    axes->setCurrentIndex(1);
    b.saisit("gain", "4");
    b.saisit("t_const", "12");
    roue->setCurrentIndex(2);
    b.saisit("vs_r", "3000");
    b.saisit("in_roue", "0.02");
    QCOMPARE(b.a().gain, (Vec3{0, 4, 0}));
    QCOMPARE(b.a().t_const, (Vec3{0, 12, 0}));
    QCOMPARE(b.a().vs_r, (Vec3{0, 0, 3000}));
    QCOMPARE(b.a().in_roue, (Vec3{0, 0, 0.02}));
    axes->setCurrentIndex(0);
    QCOMPARE(b.texte("gain"), "0");
    axes->setCurrentIndex(1);
    QCOMPARE(b.texte("gain"), "4");
    // The three set points share one name, told apart by their index.
    const auto consignes = b.conf->findChildren<QLineEdit*>("a_con");
    QCOMPARE(consignes.size(), 3);
    for (QLineEdit* c : consignes)
        if (c->property("Index").toInt() == 2) b.saisit(c, "30");
    QCOMPARE(b.a().a_con, (Vec3{0, 0, 30}));
    // Notes of this window only: no simulation needs to restart.
    QCOMPARE(b.etat.session.config_modifiee, int16_t{0});
}

void TestAttConf::rechargement_a_l_ouverture() {
    Banc b;
    b.ouvre();
    Etat autre;
    AttitudeRecord& a = autre.att;
    a.Masse = 80;
    a.dim = {1, 2, 3};
    a.cm = {0.25, 0, 0};
    a.dip_res = {0, 0, 0};
    a.JR = {0.1, 0, 0};
    a.mext = {0, 0, 4};
    a.dext = {0, 0, -6};
    a.sn[4] = 0.5;
    const QString chemin = b.tmp.filePath("autre.att");
    QVERIFY(!kestrel::sauve_attitude(autre, chemin.toStdString()));
    b.dlg.chemins = {chemin};
    b.fen->findChild<QAction*>("mn_attfich_ouvrir")->trigger();
    // Every box from the file, while the window stays open.
    const std::pair<const char*, const char*> boites[] = {
        {"Masse", "80"}, {"dimens2", "2"}, {"cmx", "0.25"}, {"sy_neg", "0.5"}, {"txt_JR1", "0.1"},
        {"dip_z", "0"},  {"txt_masse_grad", "4.00"}, {"txt_dist_grad", "6.00"}};
    for (const auto& [nom, texte] : boites) QCOMPARE(b.texte(nom), texte);
    QVERIFY(!b.ctrl<QCheckBox>("chk_magn")->isChecked());
    QVERIFY(b.ctrl<QCheckBox>("chk_roue")->isChecked());
    QCOMPARE(b.ctrl<QScrollBar>("scroll_axe_grad")->value(), 5);
    QCOMPARE(b.libelle("lab_axe_grad"), "-Z");
    QVERIFY(b.montre("Pict_maszm") && !b.montre("Pict_mag") && b.montre("Pict_roues"));
    QCOMPARE(b.libelle("lbl_mass_all"), "84");  // the totals redone: 80 kg + 4 kg outside
}

QTEST_MAIN(TestAttConf)
#include "test_gui_att_conf.moc"

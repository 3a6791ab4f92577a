// The environment page of orbito_conf by object name: the solar constant
// over the year, the isothermal Earth, the sine albedo and its limits, the
// chart, and the page reloaded with the power project.
#include <QtCharts>

#include "banc_orbito_conf.h"

using kestrel::Icone;

class TestOrbitoEnvir : public QObject {
    Q_OBJECT
private slots:
    void environnement();
    void projet_rouvert_recharge_la_page();
};

void TestOrbitoEnvir::environnement() {
    Banc b;
    b.principal->findChild<QAction*>("mn_conf_pow_rad")->trigger();
    // 3.8e26 W: 1307.09 W/m² at the aphelion, 1397.67 at the perihelion.
    QCOMPARE(b.flux(0)->text(), "1307.09");
    QCOMPARE(b.flux(1)->text(), "1397.67");
    QCOMPARE(b.flux(1)->property("Index").toInt(), 1);
    auto* mois_alb = b.ctrl<QComboBox>("env_list_months_alb");
    auto* mois_ir = b.ctrl<QComboBox>("env_list_months_ir");
    QCOMPARE(mois_alb->count(), 12);
    QCOMPARE(mois_ir->itemText(11), "Décembre");
    QCOMPARE(b.texte("env_txt_albedo"), "0.38");
    // the program's own frame captions, cut short as they are
    QCOMPARE(b.ctrl<QGroupBox>("fra_flux")->title(), "Constante solaire (W/m");
    QCOMPARE(b.ctrl<QGroupBox>("fra_ir")->title(), "Radiation IR (W/m");

    // The minimum cannot pass the maximum; a good maximum moves both.
    b.saisit(b.flux(0), "1400");
    QCOMPARE(b.dlg.messages.size(), 1);
    QCOMPARE(b.flux(0)->text(), "1307.09");
    b.saisit(b.flux(1), "1400", true);  // minimum 1400 (147090267 / 152101686)^2 = 1309.27
    QCOMPARE(b.flux(0)->text(), "1309.27");
    QCOMPARE(b.flux(1)->text(), "1400.00");
    b.saisit(b.flux(1), "1397.6739143085495");

    // Isothermal Earth: (1 - 0.38) flux / 4, from 202.70 (July) to 216.50 (January).
    QTest::mouseClick(b.ctrl<QPushButton>("env_cmd_isoterre"), Qt::LeftButton);
    QCOMPARE(b.texte("env_txt_ir"), "216.50");
    mois_ir->setCurrentIndex(6);
    QCOMPARE(b.texte("env_txt_ir"), "202.70");
    for (float ir : b.etat.pwr.earth_ir) QVERIFY(ir > 202.5f && ir < 217.0f);

    // Sine around the month chosen: the amplitude limits, then zero amplitude.
    const struct { const char* base; const char* var; bool ok; } cas[] = {
        {"0.6", "0.41", false}, {"0.3", "0.31", false}, {"0.6", "0.4", true}, {"0.45", "0", true}};
    mois_alb->setCurrentIndex(3);
    int refus = b.dlg.messages.size();
    for (const auto& c : cas) {
        b.saisit("env_txt_albedo", c.base);
        b.ctrl("env_txt_var")->setText(c.var);
        QTest::mouseClick(b.ctrl<QPushButton>("env_cmd_sin"), Qt::LeftButton);
        refus += c.ok ? 0 : 1;
        QCOMPARE(b.dlg.messages.size(), refus);
    }
    QCOMPARE(b.dlg.messages[1].texte, "Valeur excessive !! Saisissez une valeur <= 0.4");
    QCOMPARE(b.dlg.messages[2].texte, "Valeur excessive !! Saisissez une valeur <= 0.3");
    for (float a : b.etat.pwr.albedo) QCOMPARE(a, 0.45f);

    // Albedo out of 0..1 and a negative infrared: refused, old text back.
    b.saisit("env_txt_albedo", "1.5");
    QCOMPARE(b.texte("env_txt_albedo"), "0.45");
    b.saisit("env_txt_ir", "-3");
    QCOMPARE(b.texte("env_txt_ir"), "202.70");
    QCOMPARE(b.dlg.messages.size(), 5);
    b.saisit("env_txt_ir", "250");
    QCOMPARE(b.etat.pwr.earth_ir[6], 250.0f);
    QCOMPARE(b.etat.session.config_modifiee, int16_t{1});

    // The chart: twelve months, three curves, the units on the axes.
    auto* vue = b.ctrl<QChartView>("env_graph1");
    const auto series = vue->chart()->series();
    QCOMPARE(series.size(), 3);
    for (auto* s : series) QCOMPARE(static_cast<QLineSeries*>(s)->count(), 12);
    auto* ir = static_cast<QLineSeries*>(series[1]);
    QCOMPARE(ir->at(6).y(), 250.0);
    auto* mois = qobject_cast<QBarCategoryAxis*>(vue->chart()->axes(Qt::Horizontal).at(0));
    QVERIFY(mois);
    QCOMPARE(mois->count(), 12);
    QCOMPARE(mois->at(1), "Févr.");
    QCOMPARE(mois->at(6), "Juil.");  // not the same as June
    auto* gauche = qobject_cast<QValueAxis*>(vue->chart()->axes(Qt::Vertical).at(0));
    QCOMPARE(gauche->max(), 1500.0);
    QVERIFY(gauche->titleText().contains("W/m²"));
}

void TestOrbitoEnvir::projet_rouvert_recharge_la_page() {
    // An edit saved with the power project comes back when it is reopened.
    Banc b;
    b.principal->findChild<QAction*>("mn_conf_pow_rad")->trigger();
    b.saisit("env_txt_albedo", "0.3");
    b.ctrl("env_txt_var")->setText("0.2");
    QTest::mouseClick(b.ctrl<QPushButton>("env_cmd_sin"), Qt::LeftButton);
    b.saisit(b.flux(1), "1400");
    const QString pwr = b.fichier("env.pwr");
    b.dlg.chemins = {pwr};
    b.principal->findChild<QAction*>("mn_fichier_enregsous")->trigger();

    b.etat.pwr = kestrel::PowerRecord();  // another project in memory
    b.ctrl<QComboBox>("env_list_months_alb")->setCurrentIndex(3);
    b.dlg.chemins = {pwr};
    b.principal->findChild<QAction*>("mn_fichier_ouvrir")->trigger();
    QVERIFY(b.dlg.messages.isEmpty());
    // January again; 0.3 + 0.2 sin(90) = 0.5 in April.
    QCOMPARE(b.ctrl<QComboBox>("env_list_months_alb")->currentIndex(), 0);
    QCOMPARE(b.texte("env_txt_albedo"), "0.30");
    QCOMPARE(b.etat.pwr.albedo[3], 0.5f);
    // The file keeps the luminosity to five digits: 1400 within 0.01.
    QVERIFY(std::abs(b.flux(1)->text().toDouble() - 1400.0) <= 0.011);
}

QTEST_MAIN(TestOrbitoEnvir)
#include "test_gui_orbito_envir.moc"

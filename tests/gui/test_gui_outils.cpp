// The pieces every window shares: the dialog filter form, the check of an
// input box at focus loss, the registry of windows to reload, the key pictures,
// the report of what a run left in its fault channel.
#include <QtTest>
#include <QtWidgets>

#include "faux_dialogues.h"
#include "core/shell/messages.h"
#include "shell/icones.h"
#include "shell/rapport_run.h"
#include "shell/registre.h"
#include "shell/saisie.h"

using kestrel::Icone;
using Message = FauxDialogues::Message;
namespace gui = kestrel::gui;

namespace {

// Two boxes in a shown window, so that the focus can move from one to the other.
struct Formulaire {
    QWidget fenetre;
    QLineEdit* champ = new QLineEdit(&fenetre);
    QLineEdit* autre = new QLineEdit(&fenetre);
    Formulaire() {
        auto* l = new QVBoxLayout(&fenetre);
        l->addWidget(champ);
        l->addWidget(autre);
    }
    // Types text into the box the way a user does, then moves the focus away.
    void saisit(const QString& texte) {
        champ->setFocus();
        champ->selectAll();
        QTest::keyClicks(champ, texte);
        autre->setFocus();
    }
};

// Number of pixels that are not fully transparent.
int pixels_dessines(const QImage& image) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) n += qAlpha(image.pixel(x, y)) > 0;
    return n;
}

}  // namespace

class TestOutils : public QObject {
    Q_OBJECT
private slots:
    void filtre_en_forme_qt();
    void saisie_verifiee_en_quittant();
    void saisie_verifiee_en_changeant_d_onglet();
    void registre_par_tag();
    void chaque_cle_a_son_dessin();
    void rapport_du_canal_de_fautes();
};

void TestOutils::filtre_en_forme_qt() {
    // The label already carries its pattern: kept word for word, two blanks
    // included; a bare label gets its pattern in brackets.
    QCOMPARE(gui::filtre_qt("Fichiers  Configuration (*.pwr)|*.pwr|All Files (*.*)|*.*"),
             "Fichiers  Configuration (*.pwr);;All Files (*.*)");
    QCOMPARE(gui::filtre_qt("Texte|*.txt|Image|*.bmp"), "Texte (*.txt);;Image (*.bmp)");
    QCOMPARE(gui::filtre_qt(QString()), QString());
}

void TestOutils::saisie_verifiee_en_quittant() {
    // The boxes go before the values and the boxes they store into; an empty
    // box would be refused and keep the focus.
    FauxDialogues dlg;
    double masse = 5.0;
    int32_t nb = 3;
    Formulaire f;
    f.champ->setText("5");
    f.autre->setText("3");
    gui::surveille(f.champ, dlg, gui::reel_borne(masse, 0.0, 10.0, true, false));
    gui::surveille(f.autre, dlg, gui::entier_borne(nb, 1, 8));
    f.fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.fenetre));

    // Refused, with its box: the old text back, the focus kept, the value
    // untouched; 10 hits the exclusive upper limit of [0, 10[. Accepted: stored,
    // and now the text a later refusal puts back; 0 is the inclusive lower limit.
    const Message invalide{"Type de donnée non valide", Icone::critique};
    const Message hors_limite{"Valeur hors limite !! Saisissez une valeur : \n0 <= Valeur < 10", Icone::avertissement};
    for (const auto& [texte, refus, affiche, valeur] :
         {std::tuple{"abc", &invalide, "5", 5.0}, {"10", &hors_limite, "5", 5.0}, {"7.5", nullptr, "7.5", 7.5},
          {"0", nullptr, "0", 0.0}, {"-1", &hors_limite, "0", 0.0}}) {
        const auto avant = dlg.messages.size();
        f.saisit(texte);
        QCOMPARE(dlg.messages.size(), avant + (refus ? 1 : 0));
        if (refus) QCOMPARE(dlg.messages.last(), *refus);
        QCOMPARE(f.champ->hasFocus(), refus != nullptr);
        QCOMPARE(f.champ->text(), QString::fromUtf8(affiche));
        QCOMPARE(masse, valeur);
    }

    // An integer box refuses a decimal text.
    f.autre->setFocus();
    f.autre->setText("2.5");
    f.champ->setFocus();
    QCOMPARE(dlg.messages.last(), invalide);
    QCOMPARE(f.autre->text(), "3");
    QVERIFY(f.autre->hasFocus());
    QCOMPARE(nb, 3);
}

void TestOutils::saisie_verifiee_en_changeant_d_onglet() {
    // A click on another tab ends the entry as leaving the box does: stored
    // when good; when refused, the message, the old text, and the box's page
    // back in front with the focus in the box.
    FauxDialogues dlg;
    double masse = 5.0;
    QTabWidget onglets;
    auto* page = new QWidget;
    auto* champ = new QLineEdit("5", page);
    (new QVBoxLayout(page))->addWidget(champ);
    onglets.addTab(page, "Masses");
    onglets.addTab(new QLineEdit, "Autre");
    gui::surveille(champ, dlg, gui::reel_borne(masse, 0.0, 10.0));
    onglets.show();
    QVERIFY(QTest::qWaitForWindowActive(&onglets));
    QTabBar* barre = onglets.tabBar();
    for (const auto& [texte, refus, valeur] : {std::tuple{"7.5", false, 7.5}, {"12", true, 7.5}}) {
        onglets.setCurrentIndex(0);
        champ->setFocus();
        champ->selectAll();
        QTest::keyClicks(champ, texte);
        const auto avant = dlg.messages.size();
        QTest::mouseClick(barre, Qt::LeftButton, {}, barre->tabRect(1).center());
        QCOMPARE(masse, valeur);
        QCOMPARE(dlg.messages.size(), avant + (refus ? 1 : 0));
        if (refus) {
            QTRY_COMPARE(onglets.currentIndex(), 0);
            QCOMPARE(champ->text(), "7.5");
            QTRY_VERIFY(champ->hasFocus());
        } else {
            QCOMPARE(onglets.currentIndex(), 1);
        }
    }
}

void TestOutils::registre_par_tag() {
    gui::RegistreFenetres r;
    QStringList ordre;
    QWidget a, b;
    auto* c = new QWidget;
    r.inscrit(&a, "conf", [&] { ordre << "a"; });
    r.inscrit(&b, "attconf", [&] { ordre << "b"; });
    r.inscrit(c, "conf", [&] { ordre << "c"; });
    QCOMPARE(r.recharge("conf"), 2);
    delete c;  // a closed and destroyed window is not reloaded
    QCOMPARE(r.recharge("conf"), 1);
    QCOMPARE(r.recharge("attconf"), 1);
    QCOMPARE(r.recharge("autre"), 0);
    QCOMPARE(ordre, (QStringList{"a", "c", "a", "b"}));
}

void TestOutils::chaque_cle_a_son_dessin() {
    const QImage inconnue = gui::dessin_cle("sans_dessin").toImage();
    QVERIFY(pixels_dessines(inconnue) > 0);  // a question mark, never an empty square
    for (const char* cle : {"orbite", "envir", "quit", "open", "save", "cell", "therm", "pan", "bat", "oper", "rad",
                            "orb", "sim_pow", "sim_all", "exp_bat", "exp_data", "masses", "proprietes", "actuators",
                            "gestatt", "simulation", "expatt"}) {
        const QImage image = gui::dessin_cle(cle, 24).toImage();
        QCOMPARE(image.size(), QSize(24, 24));
        // At least a tenth of the square is drawn, and it is not the question mark.
        QVERIFY2(pixels_dessines(image) > 58, cle);
        QVERIFY2(image != inconnue, cle);
    }
    // Two keys of different meaning look different.
    QVERIFY(gui::dessin_cle("bat").toImage() != gui::dessin_cle("therm").toImage());
}

void TestOutils::rapport_du_canal_de_fautes() {
    using kestrel::Alertes;
    using kestrel::CodeErreur;
    using kestrel::Erreur;
    const QString incompat = QString::fromUtf8(kestrel::msg::incompat_charge);
    Erreur kepler;
    kepler.code = CodeErreur::non_convergence;
    kepler.detail = "équation de Kepler";
    kepler.date = 18000.25;  // 14/04/1999 06:00
    const QString texte_kepler = QString::fromUtf8("Calcul interrompu : équation de Kepler ne converge pas à la "
                                                   "date 14/04/1999 06:00:00 (jour 18000.250000)");
    Erreur cellules;
    cellules.code = CodeErreur::date_cellules;
    Alertes charge, singulier;
    charge.incompat_charge = true;
    singulier.systeme_singulier = true;
    const struct {
        Erreur faute;
        Alertes alertes;
        QList<Message> attendus;
    } cas[] = {
        {{}, {}, {}},
        {{}, singulier, {}},  // the run went on through it: nothing to say
        {kepler, {}, {{texte_kepler, Icone::critique}}},
        {cellules, {}, {{QString::fromUtf8(kestrel::msg::date_cellules), Icone::avertissement}}},
        // the warning first, then the fault that ended the run
        {kepler, charge, {{incompat, Icone::critique}, {texte_kepler, Icone::critique}}},
    };
    for (const auto& c : cas) {
        FauxDialogues d;
        gui::rapporte_run(d, nullptr, c.faute, c.alertes);
        QCOMPARE(d.messages, c.attendus);
    }
}

QTEST_MAIN(TestOutils)
#include "test_gui_outils.moc"

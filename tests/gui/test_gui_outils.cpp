// The pieces every window shares: the dialog filter form, the check of an
// input box at focus loss, the registry of windows to reload, the key pictures.
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

#include "faux_dialogues.h"
#include "shell/dialogues.h"
#include "shell/icones.h"
#include "shell/registre.h"
#include "shell/saisie.h"

using kestrel::Icone;
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
};

// Types text into the box the way a user does, then moves the focus away.
void saisit(Formulaire& f, const QString& texte) {
    f.champ->setFocus();
    f.champ->selectAll();
    QTest::keyClicks(f.champ, texte);
    f.autre->setFocus();
}

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
    void registre_par_tag();
    void chaque_cle_a_son_dessin();
};

void TestOutils::filtre_en_forme_qt() {
    // The label already carries its pattern: kept word for word, two blanks included.
    QCOMPARE(gui::filtre_qt(QStringLiteral("Fichiers  Configuration (*.pwr)|*.pwr|All Files (*.*)|*.*")),
             QStringLiteral("Fichiers  Configuration (*.pwr);;All Files (*.*)"));
    // A bare label gets its pattern in brackets.
    QCOMPARE(gui::filtre_qt(QStringLiteral("Texte|*.txt|Image|*.bmp")),
             QStringLiteral("Texte (*.txt);;Image (*.bmp)"));
    QCOMPARE(gui::filtre_qt(QString()), QString());
}

void TestOutils::saisie_verifiee_en_quittant() {
    // The boxes go before the values and the boxes they store into.
    FauxDialogues dlg;
    double masse = 5.0;
    int32_t nb = 3;
    Formulaire f;
    f.champ->setText(QStringLiteral("5"));
    f.autre->setText(QStringLiteral("3"));  // an empty box would be refused and keep the focus
    gui::surveille(f.champ, dlg, gui::reel_borne(masse, 0.0, 10.0, true, false));
    gui::surveille(f.autre, dlg, gui::entier_borne(nb, 1, 8));
    f.fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.fenetre));

    // Refused: the box, the old text back, the focus kept, the value untouched.
    saisit(f, QStringLiteral("abc"));
    QCOMPARE(dlg.messages.size(), 1);
    QCOMPARE(dlg.messages[0].texte, QStringLiteral("Type de donnée non valide"));
    QCOMPARE(dlg.messages[0].icone, Icone::critique);
    QCOMPARE(f.champ->text(), QStringLiteral("5"));
    QVERIFY(f.champ->hasFocus());
    QCOMPARE(masse, 5.0);
    // 10 hits the exclusive upper limit of [0, 10[.
    saisit(f, QStringLiteral("10"));
    QCOMPARE(dlg.messages.size(), 2);
    QCOMPARE(dlg.messages[1].texte,
             QStringLiteral("Valeur hors limite !! Saisissez une valeur : \n0 <= Valeur < 10"));
    QCOMPARE(dlg.messages[1].icone, Icone::avertissement);
    QCOMPARE(f.champ->text(), QStringLiteral("5"));
    QCOMPARE(masse, 5.0);

    // Accepted: stored, and now the text a later refusal puts back; 0 is the
    // inclusive lower limit.
    saisit(f, QStringLiteral("7.5"));
    QCOMPARE(dlg.messages.size(), 2);
    QCOMPARE(masse, 7.5);
    saisit(f, QStringLiteral("0"));
    QCOMPARE(masse, 0.0);
    saisit(f, QStringLiteral("-1"));
    QCOMPARE(f.champ->text(), QStringLiteral("0"));
    QCOMPARE(masse, 0.0);

    // An integer box refuses a decimal text.
    f.autre->setFocus();
    f.autre->setText(QStringLiteral("2.5"));
    f.champ->setFocus();
    QCOMPARE(dlg.messages.last().texte, QStringLiteral("Type de donnée non valide"));
    QCOMPARE(f.autre->text(), QStringLiteral("3"));
    QVERIFY(f.autre->hasFocus());
    QCOMPARE(nb, 3);
}

void TestOutils::registre_par_tag() {
    gui::RegistreFenetres r;
    QStringList ordre;
    QWidget a, b;
    auto* c = new QWidget;
    r.inscrit(&a, QStringLiteral("conf"), [&] { ordre << "a"; });
    r.inscrit(&b, QStringLiteral("attconf"), [&] { ordre << "b"; });
    r.inscrit(c, QStringLiteral("conf"), [&] { ordre << "c"; });
    QCOMPARE(r.recharge(QStringLiteral("conf")), 2);
    QCOMPARE(ordre, (QStringList{"a", "c"}));
    delete c;  // a closed and destroyed window is not reloaded
    ordre.clear();
    QCOMPARE(r.recharge(QStringLiteral("conf")), 1);
    QCOMPARE(r.recharge(QStringLiteral("attconf")), 1);
    QCOMPARE(ordre, (QStringList{"a", "b"}));
    QCOMPARE(r.recharge(QStringLiteral("autre")), 0);
}

void TestOutils::chaque_cle_a_son_dessin() {
    const QStringList cles{"orbite", "envir", "quit", "open", "save", "cell", "therm", "pan",
                           "bat", "oper", "rad", "orb", "sim_pow", "sim_all", "exp_bat",
                           "exp_data", "masses", "proprietes", "actuators", "gestatt",
                           "simulation", "expatt"};
    const QImage inconnue = gui::dessin_cle(QStringLiteral("sans_dessin")).toImage();
    QVERIFY(pixels_dessines(inconnue) > 0);  // a question mark, never an empty square
    for (const QString& cle : cles) {
        const QImage image = gui::dessin_cle(cle, 24).toImage();
        QCOMPARE(image.size(), QSize(24, 24));
        // At least a tenth of the square is drawn, and it is not the question mark.
        QVERIFY2(pixels_dessines(image) > 58, qPrintable(cle));
        QVERIFY2(image != inconnue, qPrintable(cle));
    }
    // Two keys of different meaning look different.
    QVERIFY(gui::dessin_cle(QStringLiteral("bat")).toImage() !=
            gui::dessin_cle(QStringLiteral("therm")).toImage());
}

QTEST_MAIN(TestOutils)
#include "test_gui_outils.moc"

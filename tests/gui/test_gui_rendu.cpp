// The painter of core drawings: boxes and lines where the Dessin puts them,
// texts only with their margins, files in the form their extension names.
#include <QtTest>

#include "rendu/peintre.h"

using namespace kestrel;

class TestRendu : public QObject {
    Q_OBJECT
private slots:
    void primitives_aux_pixels() {
        Dessin d;
        d.largeur = 40, d.hauteur = 20;
        d.marges.gauche = 10, d.marges.bas = 15;
        d.boites.push_back({2, 2, 8, 18, {224, 224, 224}});
        d.traits.push_back({{{20, 10}, {39, 10}}, 1, {255, 0, 0}});
        d.textes.push_back({20, 21, "12:00:00", Ancrage::haut_centre});

        const QImage img = rendu::image(d, rendu::Cadre::image);
        QCOMPARE(img.size(), QSize(40, 20));
        QCOMPARE(img.pixelColor(5, 10), QColor(224, 224, 224));
        QCOMPARE(img.pixelColor(12, 10), QColor(Qt::white));
        QCOMPARE(img.pixelColor(30, 10).red(), 255);
        QVERIFY(img.pixelColor(30, 10).green() < 128);

        // With its texts the picture moves by the left margin, and the
        // label under it is painted in the bottom margin.
        const QImage tout = rendu::image(d, rendu::Cadre::avec_textes);
        QCOMPARE(tout.size(), QSize(50, 35));
        QCOMPARE(tout.pixelColor(15, 10), QColor(224, 224, 224));
        bool encre = false;
        for (int y = 21; y < 35; ++y)
            for (int x = 0; x < 50; ++x) encre |= tout.pixelColor(x, y) != QColor(Qt::white);
        QVERIFY(encre);
    }

    void fichiers() {
        Dessin d;
        d.largeur = 30, d.hauteur = 10;
        d.traits.push_back({{{0, 5}, {30, 5}}, 2, {0, 0, 0}});
        QTemporaryDir dossier;
        const QString png = dossier.filePath("g.png"), bmp = dossier.filePath("g.bmp"),
                      svg = dossier.filePath("g.svg");
        QVERIFY(rendu::enregistre(d, png));
        QVERIFY(rendu::enregistre(d, bmp, rendu::Cadre::image));
        QVERIFY(rendu::enregistre(d, svg));
        QCOMPARE(QImage(png).size(), QSize(30, 10));
        QCOMPARE(QImage(bmp).pixelColor(10, 5), QColor(Qt::black));
        QFile f(svg);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(f.readAll().contains("<svg"));
        QVERIFY(!rendu::enregistre(d, dossier.filePath("absent/g.png")));
    }
};

QTEST_MAIN(TestRendu)
#include "test_gui_rendu.moc"

#include "shell/frm_first.h"

#include <QCoreApplication>
#include <QDir>
#include <QFont>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/shell/dossiers.h"
#include "shell/menu.h"

namespace kestrel::gui {

QPixmap image_titre(const QString& dossier) {
    QPixmap image(512, 256);
    image.fill(QColor(10, 20, 50));
    const QPixmap terre(QDir(dossier).filePath(QStringLiteral("terre_512x256.png")));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    if (!terre.isNull()) p.drawPixmap(image.rect(), terre);
    // A darker band under the name keeps it readable over any part of the map.
    p.fillRect(QRect(0, 80, 512, 110), QColor(0, 0, 0, 110));

    QFont grand(QStringLiteral("Sans Serif"));
    grand.setPixelSize(72);
    grand.setBold(true);
    grand.setLetterSpacing(QFont::AbsoluteSpacing, 6);
    QPainterPath nom;
    const QString texte = QStringLiteral("KESTREL");
    const int largeur = QFontMetrics(grand).horizontalAdvance(texte);
    nom.addText((512 - largeur) / 2.0, 150, grand, texte);
    p.setPen(QPen(QColor(10, 20, 50), 4));
    p.setBrush(QColor(255, 255, 255));
    p.drawPath(nom);

    QFont petit(QStringLiteral("Sans Serif"));
    petit.setPixelSize(18);
    p.setFont(petit);
    p.setPen(QColor(230, 235, 245));
    p.drawText(QRect(0, 158, 512, 28), Qt::AlignCenter,
               QString::fromUtf8("Simulateur de petit satellite"));
    return image;
}

frmFirst::frmFirst(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent), etat_(etat), dialogues_(dialogues) {
    setObjectName(QStringLiteral("frmFirst"));
    setWindowTitle(QStringLiteral("MERIDAN"));

    auto* pict_titre = new QLabel(this);
    pict_titre->setObjectName(QStringLiteral("pict_titre"));
    pict_titre->setPixmap(image_titre(QString::fromStdString(
        dossier_donnees(QCoreApplication::applicationDirPath().toStdString()))));

    auto* cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdOK->setMinimumWidth(100);

    // The Earth image's source asks to be credited.
    auto* lbl_credit = new QLabel(
        QString::fromUtf8("Image de la Terre : NASA Visible Earth / NASA Goddard Space Flight Center"), this);
    lbl_credit->setObjectName(QStringLiteral("lbl_credit"));
    QFont f = lbl_credit->font();
    f.setPointSizeF(f.pointSizeF() * 0.8);
    lbl_credit->setFont(f);
    lbl_credit->setAlignment(Qt::AlignCenter);

    auto* l = new QVBoxLayout(this);
    l->addWidget(pict_titre);
    l->addWidget(lbl_credit);
    l->addWidget(cmdOK, 0, Qt::AlignHCenter);
    setFixedSize(sizeHint());

    connect(cmdOK, &QPushButton::clicked, this, &frmFirst::cmdOK_Click);
}

void frmFirst::cmdOK_Click() {
    if (principal_) return;
    principal_ = new menu(etat_, dialogues_);
    principal_->setAttribute(Qt::WA_DeleteOnClose);
    principal_->show();
    close();
}

}  // namespace kestrel::gui

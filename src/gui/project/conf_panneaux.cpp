#include "project/conf_panneaux.h"

#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <cmath>

#include "core/etat/etat.h"
#include "core/project/saisie_energie.h"

namespace kestrel::gui {

namespace {

// Outline of each body seen slightly from above: square prism, hexagonal
// prism, cylinder (entries of pan_list_conf).
QPixmap dessin_corps(int forme) {
    QPixmap img(90, 110);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::darkBlue, 1.5));
    p.setBrush(QColor(190, 205, 230));
    const double cx = 45, haut = 20, bas = 95, ry = 10;
    if (forme == 2) {
        p.drawRect(QRectF(cx - 30, haut, 60, bas - haut));
        p.drawEllipse(QPointF(cx, bas), 30, ry);
        p.setPen(Qt::NoPen);
        p.drawRect(QRectF(cx - 29, haut, 58, bas - haut));
        p.setPen(QPen(Qt::darkBlue, 1.5));
        p.drawLine(QPointF(cx - 30, haut), QPointF(cx - 30, bas));
        p.drawLine(QPointF(cx + 30, haut), QPointF(cx + 30, bas));
        p.setBrush(QColor(220, 228, 245));
        p.drawEllipse(QPointF(cx, haut), 30, ry);
        return img;
    }
    // Corners of the top face, from a regular polygon squashed in height.
    const int n = forme == 0 ? 4 : 6;
    QPolygonF dessus, dessous;
    for (int i = 0; i < n; ++i) {
        const double a = 2 * M_PI * i / n + M_PI / 6;  // turned so that two side faces show
        dessus << QPointF(cx + 32 * std::cos(a), haut + ry * std::sin(a));
        dessous << QPointF(cx + 32 * std::cos(a), bas + ry * std::sin(a));
    }
    for (int i = 0; i < n; ++i) {  // the faces turned towards the viewer
        const int j = (i + 1) % n;
        if (dessus[i].y() + dessus[j].y() < 2 * haut) continue;
        p.drawPolygon(QPolygonF{dessus[i], dessus[j], dessous[j], dessous[i]});
    }
    p.setBrush(QColor(220, 228, 245));
    p.drawPolygon(dessus);
    return img;
}

}  // namespace

conf_panneaux::conf_panneaux(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : page_conf(etat, dialogues, parent) {
    ui_.setupUi(this);
    for (const char* nom : {"pan_txt_h", "pan_txt_s", "pan_txt_ext_ang", "pan_txt_ext_gap", "pan_txt_ext_lag",
                            "pan_txt_ext_omega"})
        lie(QString::fromLatin1(nom));
    QLabel* images[] = {ui_.pan_img_body_0, ui_.pan_img_body_1, ui_.pan_img_body_2};
    for (int i = 0; i < 3; ++i) images[i]->setPixmap(dessin_corps(i));

    connect(ui_.pan_opt_pan_0, &QRadioButton::clicked, this, [this] { pan_opt_pan_Click(true); });
    connect(ui_.pan_opt_pan_1, &QRadioButton::clicked, this, [this] { pan_opt_pan_Click(false); });
    connect(ui_.pan_list_conf, &QListWidget::currentRowChanged, this, &conf_panneaux::pan_list_conf_Click);
    connect(ui_.pan_sld_ang, &QSlider::valueChanged, this, &conf_panneaux::pan_sld_ang_Change);
    connect(ui_.pan_chk_fix, &QCheckBox::clicked, this, [this](bool fixe) {
        etat_.pwr.pan_fixed = fixe ? VRAI : FAUX;
        etat_.session.config_modifiee = 1;
    });
}

void conf_panneaux::charge() {
    const PowerRecord& p = etat_.pwr;
    affiche_champs();
    const bool externes = p.opt_panel_ext != 0;
    ui_.pan_opt_pan_0->setChecked(externes);
    ui_.pan_opt_pan_1->setChecked(!externes);
    ui_.pan_chk_fix->setChecked(p.pan_fixed == VRAI);
    {
        const QSignalBlocker b(ui_.pan_sld_ang);
        ui_.pan_sld_ang->setValue(static_cast<int>(std::lround(p.pan_angle_init)));
    }
    montre_corps();
}

void conf_panneaux::apres_saisie(const QString& champ) {
    if (champ != QLatin1String("pan_txt_ext_ang")) return;
    const QSignalBlocker b(ui_.pan_sld_ang);
    ui_.pan_sld_ang->setValue(static_cast<int>(std::lround(etat_.pwr.pan_angle_init)));
}

void conf_panneaux::pan_opt_pan_Click(bool externes) {
    etat_.pwr.opt_panel_ext = externes ? VRAI : FAUX;
    etat_.session.config_modifiee = 1;
    montre_corps();
}

// The list row of the body, the picture, the width caption and which controls
// apply to the panel choice.
void conf_panneaux::montre_corps() {
    const PowerRecord& p = etat_.pwr;
    const int entree = p.opt_faces == 0 || p.opt_faces == 1 ? p.opt_faces : 2;
    {
        const QSignalBlocker b(ui_.pan_list_conf);
        ui_.pan_list_conf->setCurrentRow(entree);
    }
    QLabel* images[] = {ui_.pan_img_body_0, ui_.pan_img_body_1, ui_.pan_img_body_2};
    for (int i = 0; i < 3; ++i) images[i]->setVisible(i == entree);
    ui_.pan_lab_s->setText(entree == 2 ? QStringLiteral("Diamètre (m)") : QStringLiteral("Largeur (m)"));
    const bool externes = p.opt_panel_ext != 0;
    for (QWidget* w : {static_cast<QWidget*>(ui_.pan_txt_ext_ang), static_cast<QWidget*>(ui_.pan_sld_ang),
                       static_cast<QWidget*>(ui_.pan_chk_fix), static_cast<QWidget*>(ui_.pan_txt_ext_omega),
                       static_cast<QWidget*>(ui_.pan_txt_ext_lag), static_cast<QWidget*>(ui_.pan_txt_ext_gap)})
        w->setEnabled(externes);
}

// Refused while the panels are external: the list goes back to the body in force.
void conf_panneaux::pan_list_conf_Click(int entree) {
    if (entree >= 0 && choix_corps(etat_.pwr, entree)) etat_.session.config_modifiee = 1;
    montre_corps();
}

void conf_panneaux::pan_sld_ang_Change(int angle) {
    etat_.pwr.pan_angle_init = static_cast<float>(angle);
    etat_.session.config_modifiee = 1;
    ui_.pan_txt_ext_ang->setText(QString::number(angle));
}

}  // namespace kestrel::gui

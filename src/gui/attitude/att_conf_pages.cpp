// att_conf: the controls beyond the plain boxes — the external mass, the three
// check boxes and the notes page "Gestion SCA".
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "attitude/att_conf.h"
#include "core/attitude/bilan_masses.h"
#include "core/attitude/saisie_attitude.h"
#include "core/etat/etat.h"
#include "core/shell/format_image.h"
#include "shell/saisie.h"
#include "ui_att_conf_actionneurs.h"
#include "ui_att_conf_gestion.h"
#include "ui_att_conf_masses.h"
#include "ui_att_conf_proprietes.h"

namespace kestrel::gui {

namespace {

QString image(double x, const char* picture) { return QString::fromStdString(format_image(x, picture)); }

// A number read from a box, handed on when it is one.
Verification reel(std::function<void(double)> suite) {
    return [suite = std::move(suite)](const QString& texte) {
        double x = 0;
        const Verdict v = verif_double(texte.toStdString(), x);
        if (v.ok) suite(x);
        return v;
    };
}

QString texte(double x) { return QString::number(x == 0.0 ? 0.0 : x, 'g', 15); }

}  // namespace

// --- external mass: one axis at a time ------------------------------------------------

void att_conf::branche_masse_externe() {
    // The axis is read back from the caption, as the scroll bar left it.
    auto position = [this] { return position_du_texte(masses_->lab_axe_grad->text().toStdString()); };
    surveille(masses_->txt_masse_grad, dialogues_, reel([this, position](double x) {
        if (position() >= 0) saisit_masse_externe(att(), position(), x);
        apres_saisie();
    }));
    surveille(masses_->txt_dist_grad, dialogues_, reel([this, position](double x) {
        if (position() >= 0) saisit_distance_externe(att(), position(), x);
        apres_saisie();
    }));
    connect(masses_->scroll_axe_grad, &QScrollBar::valueChanged, this, [this] { scroll_axe_grad_Change(); });
}

void att_conf::scroll_axe_grad_Change() {
    const int p = masses_->scroll_axe_grad->value();
    place_masse_externe(att(), p, masse_externe(att(), position_grad_));
    position_grad_ = p;
    apres_saisie();
}

void att_conf::affiche_masse_externe() {
    const MasseExterne m = masse_externe(att(), position_grad_);
    masses_->lab_axe_grad->setText(QString::fromUtf8(axes_masse_externe[position_grad_]));
    masses_->txt_masse_grad->setText(image(m.masse, "#0.00"));
    masses_->txt_dist_grad->setText(image(m.distance, "#0.00"));
}

// --- check boxes: unticking clears the feature's fields ------------------------------

void att_conf::branche_coches() {
    auto coche = [this](QCheckBox* chk, void (*retire)(AttitudeRecord&)) {
        connect(chk, &QCheckBox::toggled, this, [this, retire](bool actif) {
            if (actif)
                bilan_masses(att());
            else
                retire(att());
            active_coches();
            apres_saisie();
        });
    };
    coche(proprietes_->chk_magn, &retire_dipole_residuel);
    coche(actionneurs_->chk_roue, &retire_roues);
    coche(actionneurs_->chk_damp, &retire_amortisseurs);
}

void att_conf::active_coches() {
    const bool magn = proprietes_->chk_magn->isChecked();
    for (QLineEdit* c : {proprietes_->dip_x, proprietes_->dip_y, proprietes_->dip_z}) c->setEnabled(magn);
    const auto& a = *actionneurs_;
    const bool roue = a.chk_roue->isChecked();
    for (QLineEdit* c : {a.txt_JR1, a.txt_JR2, a.txt_JR3, a.txt_OM1, a.txt_OM2, a.txt_OM3}) c->setEnabled(roue);
    const bool damp = a.chk_damp->isChecked();
    for (QLineEdit* c : {a.txt_md1, a.txt_md2, a.txt_md3, a.txt_ld1, a.txt_ld2, a.txt_ld3, a.txt_c1, a.txt_c2,
                         a.txt_c3, a.txt_k1, a.txt_k2, a.txt_k3})
        c->setEnabled(damp);
}

// --- "Gestion SCA": values of this window only, by the axis chosen -------------------

void att_conf::branche_gestion() {
    // The three set points answer to one name, told apart by their index.
    QLineEdit* consignes[3] = {gestion_->a_con_0, gestion_->a_con_1, gestion_->a_con_2};
    for (int k = 0; k < 3; ++k) {
        a_con_[k] = consignes[k];
        a_con_[k]->setObjectName(QStringLiteral("a_con"));
        a_con_[k]->setProperty("Index", k);
        surveille(a_con_[k], dialogues_, reel([this, k](double x) {
            att().a_con[k] = x;
            affiche_gestion();
        }));
    }
    auto par_axe = [this](QLineEdit* champ, QComboBox* axes, Vec3 AttitudeRecord::*valeurs) {
        surveille(champ, dialogues_, reel([this, axes, valeurs](double x) {
            (att().*valeurs)[axes->currentIndex()] = x;
            affiche_gestion();
        }));
    };
    par_axe(gestion_->gain, gestion_->cmb_axes, &AttitudeRecord::gain);
    par_axe(gestion_->t_const, gestion_->cmb_axes, &AttitudeRecord::t_const);
    par_axe(gestion_->vs_r, gestion_->cmb_axe_roue, &AttitudeRecord::vs_r);
    par_axe(gestion_->in_roue, gestion_->cmb_axe_roue, &AttitudeRecord::in_roue);
    connect(gestion_->cmb_axes, &QComboBox::currentIndexChanged, this, [this] { affiche_gestion(); });
    connect(gestion_->cmb_axe_roue, &QComboBox::currentIndexChanged, this, [this] { affiche_gestion(); });
}

void att_conf::affiche_gestion() {
    const AttitudeRecord& a = etat_.att;
    for (int k = 0; k < 3; ++k) a_con_[k]->setText(texte(a.a_con[k]));
    const int axe = gestion_->cmb_axes->currentIndex();
    gestion_->gain->setText(texte(a.gain[axe]));
    gestion_->t_const->setText(texte(a.t_const[axe]));
    const int roue = gestion_->cmb_axe_roue->currentIndex();
    gestion_->vs_r->setText(texte(a.vs_r[roue]));
    gestion_->in_roue->setText(texte(a.in_roue[roue]));
}

}  // namespace kestrel::gui

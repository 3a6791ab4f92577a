#include "attitude/att_conf.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "attitude/att_dessin.h"
#include "core/attitude/bilan_masses.h"
#include "core/attitude/saisie_attitude.h"
#include "core/etat/etat.h"
#include "shell/menu.h"
#include "shell/saisie.h"
#include "ui_att_conf_actionneurs.h"
#include "ui_att_conf_gestion.h"
#include "ui_att_conf_masses.h"
#include "ui_att_conf_proprietes.h"

namespace kestrel::gui {

namespace {

QString u(const char* texte) { return QString::fromUtf8(texte); }

// Totals in the labels: six significant digits are plenty to read.
QString texte_total(double x) { return QString::number(x == 0.0 ? 0.0 : x, 'g', 6); }

}  // namespace

att_conf::att_conf(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent, Qt::Window),
      masses_(std::make_unique<Ui::att_conf_masses>()),
      proprietes_(std::make_unique<Ui::att_conf_proprietes>()),
      actionneurs_(std::make_unique<Ui::att_conf_actionneurs>()),
      gestion_(std::make_unique<Ui::att_conf_gestion>()),
      etat_(etat),
      dialogues_(dialogues) {
    setObjectName(QStringLiteral("att_conf"));
    setWindowTitle(u("Configuration SCA"));

    Onglet_att_ = new QTabWidget(this);
    Onglet_att_->setObjectName(QStringLiteral("Onglet_att"));
    auto page = [this](auto& forme, const char* titre) {
        auto* w = new QWidget(Onglet_att_);
        forme->setupUi(w);
        Onglet_att_->addTab(w, u(titre));
    };
    page(masses_, "Masses/Dimensions");
    page(proprietes_, "Propriétés satellites");
    page(actionneurs_, "Actionneurs");
    page(gestion_, "Gestion SCA");
    // A click on a tab hides the page before its box loses the focus: the
    // entry in progress is applied first, while its box is still shown.
    connect(Onglet_att_, &QTabWidget::tabBarClicked, this, [this] { Onglet_att_->setFocus(); });

    Pict_config_ = new dessin_config(att(), this);
    auto* cmd_ok = new QPushButton(u("OK"), this);
    cmd_ok->setObjectName(QStringLiteral("cmd_ok"));
    cmd_ok->setAutoDefault(false);
    connect(cmd_ok, &QPushButton::clicked, this, &QWidget::hide);

    auto* colonne = new QVBoxLayout(this);
    auto* haut = new QHBoxLayout();
    haut->addWidget(Onglet_att_, 1);
    haut->addWidget(Pict_config_, 0, Qt::AlignTop);
    colonne->addLayout(haut);
    auto* bas = new QHBoxLayout();
    bas->addStretch(1);
    bas->addWidget(cmd_ok);
    colonne->addLayout(bas);

    branche_cases();
    branche_masse_externe();
    branche_coches();
    branche_gestion();
    att_conf_load();
}

att_conf::~att_conf() = default;

AttitudeRecord& att_conf::att() { return etat_.att; }

// --- the boxes of the table: read, clamped, stored, shown back -------------------------

void att_conf::branche_cases() {
    for (std::size_t i = 0; i < cases_attitude.size(); ++i) {
        auto* champ = findChild<QLineEdit*>(u(cases_attitude[i].nom));
        if (!champ) continue;
        surveille(champ, dialogues_, [this, i](const QString& texte) {
            double x = 0;
            const Verdict v = verif_double(texte.toStdString(), x);
            if (v.ok) {
                saisit_attitude(att(), i, x);
                apres_saisie();
            }
            return v;
        });
    }
    for (auto* champ : findChildren<QLineEdit*>())
        connect(champ, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
}

void att_conf::affiche_cases() {
    for (std::size_t i = 0; i < cases_attitude.size(); ++i)
        if (auto* champ = findChild<QLineEdit*>(u(cases_attitude[i].nom))) {
            champ->setText(QString::fromStdString(texte_case(att(), i)));
            champ->setCursorPosition(0);  // a long number shows its first digits
        }
}

void att_conf::apres_saisie() {
    affiche_cases();
    affiche_masse_externe();
    affiche_bilan();
    montre_config();
    etat_.session.config_modifiee = 1;
}

void att_conf::affiche_bilan() {
    const AttitudeRecord& a = etat_.att;
    masses_->lbl_mass_all->setText(texte_total(a.Mt));
    masses_->lbl_Ixx_all->setText(texte_total(a.I(0, 0)));
    masses_->lbl_Iyy_all->setText(texte_total(a.I(1, 1)));
    masses_->lbl_Izz_all->setText(texte_total(a.I(2, 2)));
    masses_->lbl_Ixy_all->setText(texte_total(a.I(0, 1)));
    masses_->lbl_Ixz_all->setText(texte_total(a.I(0, 2)));
    masses_->lbl_Iyz_all->setText(texte_total(a.I(1, 2)));
}

// --- load ------------------------------------------------------------------------------

void att_conf::att_conf_load() {
    // The totals as the window shows them are always those of the fields shown.
    bilan_masses(att());
    affiche_cases();
    {
        const QSignalBlocker b1(proprietes_->chk_magn);
        const QSignalBlocker b2(actionneurs_->chk_roue);
        const QSignalBlocker b3(actionneurs_->chk_damp);
        proprietes_->chk_magn->setChecked(dipole_residuel_present(att()));
        actionneurs_->chk_roue->setChecked(roues_presentes(att()));
        actionneurs_->chk_damp->setChecked(amortisseurs_presents(att()));
    }
    active_coches();
    {
        const QSignalBlocker b(masses_->scroll_axe_grad);
        position_grad_ = position_masse_externe(att());
        masses_->scroll_axe_grad->setValue(position_grad_);
    }
    affiche_masse_externe();
    affiche_bilan();
    affiche_gestion();
    montre_config();
}

void att_conf::montre_config() {
    const auto masses = masses_externes_visibles(att());
    static constexpr const char* noms_masses[6] = {"Pict_masxp", "Pict_masxm", "Pict_masyp",
                                                   "pict_masym", "pict_maszp", "Pict_maszm"};
    for (int p = 0; p < 6; ++p) Pict_config_->montre(u(noms_masses[p]), masses[p]);
    Pict_config_->montre(QStringLiteral("Pict_mag"), proprietes_->chk_magn->isChecked());
    Pict_config_->montre(QStringLiteral("Pict_roues"), actionneurs_->chk_roue->isChecked());
    Pict_config_->montre(QStringLiteral("Pict_damp"), actionneurs_->chk_damp->isChecked());
    Pict_config_->update();
}

// --- opening from the main window ---------------------------------------------------

void ouvre_att_conf(menu& m, att_conf::Onglet onglet) {
    auto* fen = m.findChild<att_conf*>(QStringLiteral("att_conf"));
    if (!fen) {
        fen = new att_conf(m.etat(), m.dialogues(), &m);
        m.registre().inscrit(fen, QString::fromUtf8(tag_attitude), [fen] { fen->att_conf_load(); });
    } else {
        fen->att_conf_load();
    }
    fen->findChild<QTabWidget*>(QStringLiteral("Onglet_att"))->setCurrentIndex(onglet);
    fen->show();
    fen->raise();
    fen->activateWindow();
}

}  // namespace kestrel::gui

#include "orbit/orbito_attitude.h"

#include <QLineEdit>

#include "core/attitude/attitude_init.h"
#include "core/etat/etat.h"
#include "core/project/saisie_orbite.h"
#include "orbit/orbito_commun.h"
#include "shell/dialogues.h"
#include "ui_orbito_attitude.h"

namespace kestrel::gui {

namespace {
// Faces in the order of the 16-bit value 1..6.
constexpr const char* faces[] = {"+X", "+Y", "+Z", "-X", "-Y", "-Z"};
// Axes the spin turns around, in the order of axe_spin.
constexpr const char* axes_spin[] = {"Roulis (X)", "Tangage (Y)", "Lacet (Z)"};
}  // namespace

orbito_attitude::orbito_attitude(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::orbito_attitude>()), etat_(etat), dialogues_(dialogues) {
    ui_->setupUi(this);
    for (const char* f : faces) ui_->cmb_pointage->addItem(QString::fromUtf8(f));
    for (const char* a : axes_spin) ui_->Cmb_Spin->addItem(QString::fromUtf8(a));

    branche_cases(this, dialogues_, cases_pointage, [this](std::size_t i, double x) {
        saisit_pointage(etat_, i, x);
        affiche_angles();
        modifie();
    });
    connect(ui_->opt_att, &QRadioButton::toggled, this, [this](bool on) {
        if (on) choix_repere(true);
    });
    connect(ui_->opt_iner, &QRadioButton::toggled, this, [this](bool on) {
        if (on) choix_repere(false);
    });
    connect(ui_->cmd_sun, &QPushButton::clicked, this, [this] { cmd_sun_Click(); });
    connect(ui_->Chk_spin, &QCheckBox::toggled, this, [this](bool on) {
        etat_.pointage.spin = on ? VRAI : FAUX;
        ui_->txt_vspin->setEnabled(on);
        ui_->Cmb_Spin->setEnabled(on);
        modifie();
    });
    connect(ui_->Cmb_Spin, &QComboBox::currentIndexChanged, this, [this](int i) {
        etat_.pointage.axe_spin = static_cast<int16_t>(i);
        modifie();
    });
    connect(ui_->cmb_pointage, &QComboBox::currentIndexChanged, this, [this](int i) {
        etat_.pointage.face = static_cast<int16_t>(i + 1);
        // The attitude definition reads the face from the text ("-Y" keeps the last one).
        decode_pointage(ui_->cmb_pointage->currentText().toStdString(), etat_.att.mode_pointage);
        modifie();
    });
    charge();
}

orbito_attitude::~orbito_attitude() = default;

void orbito_attitude::charge() {
    en_charge_ = true;
    place_a_epoque(etat_);
    const Pointage& p = etat_.pointage;
    const bool orbital = p.pointage_orbital != FAUX;
    (orbital ? ui_->opt_att : ui_->opt_iner)->setChecked(true);
    choix_repere(orbital);
    affiche_angles();
    ui_->Chk_spin->setChecked(p.spin != FAUX);
    ui_->txt_vspin->setEnabled(p.spin != FAUX);
    ui_->Cmb_Spin->setEnabled(p.spin != FAUX);
    ui_->Cmb_Spin->setCurrentIndex(std::clamp<int>(p.axe_spin, 0, 2));
    ui_->cmb_pointage->setCurrentIndex(std::clamp<int>(p.face, 1, 6) - 1);
    en_charge_ = false;
}

void orbito_attitude::affiche_angles() {
    for (std::size_t i = 0; i < cases_pointage.size(); ++i) {
        auto* champ = findChild<QLineEdit*>(QString::fromUtf8(cases_pointage[i].nom));
        champ->setText(texte_image(valeur_pointage(etat_, i), cases_pointage[i].image));
    }
}

void orbito_attitude::choix_repere(bool orbital) {
    etat_.pointage.pointage_orbital = orbital ? VRAI : FAUX;
    for (QLineEdit* b : {ui_->txt_attx, ui_->txt_atty, ui_->txt_attz}) b->setEnabled(orbital);
    for (QLineEdit* b : {ui_->txt_inerx, ui_->txt_inery, ui_->txt_inerz}) b->setEnabled(!orbital);
    modifie();
}

void orbito_attitude::cmd_sun_Click() {
    if (const Erreur e = saisit_pointage_soleil(etat_)) {
        dialogues_.message(this, QString::fromStdString(texte_erreur(e)), Icone::critique);
        return;
    }
    affiche_angles();
    modifie();
}

void orbito_attitude::modifie() {
    if (!en_charge_) etat_.session.config_modifiee = 1;
}

}  // namespace kestrel::gui

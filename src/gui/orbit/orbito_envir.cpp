#include "orbit/orbito_envir.h"

#include "core/etat/etat.h"
#include "core/power/albedo_sinus.h"
#include "core/power/rayonnement_terre.h"
#include "orbit/env_graph1.h"
#include "orbit/orbito_commun.h"
#include "shell/dialogues.h"
#include "ui_orbito_envir.h"

namespace kestrel::gui {

orbito_envir::orbito_envir(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::orbito_envir>()), etat_(etat), dialogues_(dialogues) {
    ui_->setupUi(this);
    // Both flux boxes answer to one name, told apart by their index.
    env_txt_flux_[0] = ui_->env_txt_flux_0;
    env_txt_flux_[1] = ui_->env_txt_flux_1;
    for (int k = 0; k < 2; ++k) {
        env_txt_flux_[k]->setObjectName(QStringLiteral("env_txt_flux"));
        env_txt_flux_[k]->setProperty("Index", k);
        saisie_sur_sortie_et_entree(env_txt_flux_[k], dialogues_, [this, k](const QString& texte) {
            const Verdict v = saisit_flux(etat_.pwr, k, texte.toStdString());
            if (v.ok) {
                affiche_flux();
                graphe_->trace(etat_.pwr);
                modifie();
            }
            return v;
        });
    }
    for (const char* m : noms_mois) {
        ui_->env_list_months_alb->addItem(QString::fromUtf8(m));
        ui_->env_list_months_ir->addItem(QString::fromUtf8(m));
    }
    connect(ui_->env_list_months_alb, &QComboBox::currentIndexChanged, this, [this] { affiche_mois(); });
    connect(ui_->env_list_months_ir, &QComboBox::currentIndexChanged, this, [this] { affiche_mois(); });

    // A month's value, stored for the month shown in its list.
    using Saisie = Verdict (*)(PowerRecord&, int, const std::string&);
    auto mensuelle = [this](QLineEdit* champ, QComboBox* liste, Saisie saisit) {
        saisie_sur_sortie_et_entree(champ, dialogues_, [this, liste, saisit](const QString& texte) {
            const Verdict v = saisit(etat_.pwr, liste->currentIndex(), texte.toStdString());
            if (v.ok) {
                graphe_->trace(etat_.pwr);
                modifie();
            }
            return v;
        });
    };
    mensuelle(ui_->env_txt_albedo, ui_->env_list_months_alb, &saisit_albedo);
    mensuelle(ui_->env_txt_ir, ui_->env_list_months_ir, &saisit_ir);
    // The amplitude is only read by the sine command.
    connect(ui_->env_cmd_isoterre, &QPushButton::clicked, this, [this] { env_cmd_isoterre_Click(); });
    connect(ui_->env_cmd_sin, &QPushButton::clicked, this, [this] { env_cmd_sin_Click(); });

    graphe_ = new env_graph1(ui_->z_place_graphe);
    ui_->z_graphe->addWidget(graphe_);
    charge();
}

orbito_envir::~orbito_envir() = default;

void orbito_envir::charge() {
    affiche_flux();
    {
        const QSignalBlocker b1(ui_->env_list_months_alb);
        const QSignalBlocker b2(ui_->env_list_months_ir);
        ui_->env_list_months_alb->setCurrentIndex(0);
        ui_->env_list_months_ir->setCurrentIndex(0);
    }
    affiche_mois();
    graphe_->trace(etat_.pwr);
}

void orbito_envir::affiche_flux() {
    const PowerRecord& p = etat_.pwr;
    env_txt_flux_[0]->setText(texte_image(flux_solaire(p.sun_power, distance_soleil_max), "0.00"));
    env_txt_flux_[1]->setText(texte_image(flux_solaire(p.sun_power, distance_soleil_min), "0.00"));
    ui_->lab_luminosite->setText(texte_image(p.sun_power, "0.000E+00") + QStringLiteral(" W"));
}

void orbito_envir::affiche_mois() {
    const PowerRecord& p = etat_.pwr;
    ui_->env_txt_albedo->setText(texte_image(p.albedo[ui_->env_list_months_alb->currentIndex()], "0.00"));
    ui_->env_txt_ir->setText(texte_image(p.earth_ir[ui_->env_list_months_ir->currentIndex()], "0.00"));
}

void orbito_envir::env_cmd_isoterre_Click() {
    modele_isotherme(etat_.pwr);
    affiche_mois();
    graphe_->trace(etat_.pwr);
    modifie();
}

void orbito_envir::env_cmd_sin_Click() {
    const Verdict v = modele_sinus(etat_.pwr, ui_->env_txt_albedo->text().toStdString(),
                                   ui_->env_txt_var->text().toStdString(),
                                   ui_->env_list_months_alb->currentIndex());
    if (!v.ok) {
        dialogues_.message(this, QString::fromStdString(v.message), v.icone);
        return;
    }
    affiche_mois();
    graphe_->trace(etat_.pwr);
    modifie();
}

void orbito_envir::modifie() { etat_.session.config_modifiee = 1; }

}  // namespace kestrel::gui

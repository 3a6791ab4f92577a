#include "project/conf_gestion.h"

#include "core/etat/etat.h"

namespace kestrel::gui {

conf_gestion::conf_gestion(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : page_conf(etat, dialogues, parent) {
    ui_.setupUi(this);
    for (const char* nom : {"gst_txt_chini", "gst_txt_chvmax", "gst_txt_cour_ent", "gst_txt_ichmax", "gst_txt_kcharge",
                            "gst_txt_Vregul", "gst_txt_rendbat", "gst_txt_rendgs"})
        lie(QString::fromLatin1(nom));
    auto phase = [this] { return ui_.gst_opt_jn_1->isChecked() ? 1 : 0; };  // 0 day, 1 eclipse
    lie(QStringLiteral("gst_txt_pdem"), phase);
    lie(QStringLiteral("gst_txt_diss"), phase);
    ui_.gst_opt_jn_0->setChecked(true);
    connect(ui_.gst_opt_jn_0, &QRadioButton::toggled, this, [this] { affiche_champs(); });
    connect(ui_.gst_opt_regul_0, &QRadioButton::clicked, this, [this] { gst_opt_regul_Click(true); });
    connect(ui_.gst_opt_regul_1, &QRadioButton::clicked, this, [this] { gst_opt_regul_Click(false); });
}

void conf_gestion::charge() {
    affiche_champs();
    const bool regulee = etat_.pwr.gst_regulated != 0;
    ui_.gst_opt_regul_0->setChecked(regulee);
    ui_.gst_opt_regul_1->setChecked(!regulee);
    ui_.gst_txt_Vregul->setEnabled(regulee);
}

void conf_gestion::gst_opt_regul_Click(bool regulee) {
    etat_.pwr.gst_regulated = regulee ? 1 : 0;
    etat_.session.config_modifiee = 1;
    ui_.gst_txt_Vregul->setEnabled(regulee);
}

}  // namespace kestrel::gui

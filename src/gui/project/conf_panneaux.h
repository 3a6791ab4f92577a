// Panels tab of power_conf: external panels or panels on the faces, the body
// (square or hexagonal prism, cylinder) with its picture, and the drive of
// the external panels.
#pragma once
#include "project/page_conf.h"
#include "ui_conf_panneaux.h"

namespace kestrel::gui {

class conf_panneaux : public page_conf {
    Q_OBJECT
public:
    conf_panneaux(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    void charge() override;

private:
    void apres_saisie(const QString& champ) override;
    void pan_opt_pan_Click(bool externes);
    void pan_list_conf_Click(int entree);
    void pan_sld_ang_Change(int angle);
    void montre_corps();

    Ui::conf_panneaux ui_;
};

}  // namespace kestrel::gui

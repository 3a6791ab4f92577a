// Battery tab of power_conf: the battery catalogue ("Générique" opens the
// fields that the other entries fill and lock), the counts and capacity, the
// charge and discharge curve points and capacity factors, and the two charts
// of voltage against state, by current at 25 °C or by temperature at 1C.
#pragma once
#include "project/page_conf.h"
#include "ui_conf_batterie.h"

namespace kestrel::gui {

class conf_batterie : public page_conf {
    Q_OBJECT
public:
    conf_batterie(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    void charge() override;

private:
    void apres_saisie(const QString& champ) override;
    void bat_cmb_type_Click(int type);
    void trace();

    Ui::conf_batterie ui_;
};

}  // namespace kestrel::gui

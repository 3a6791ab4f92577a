// Cells tab of power_conf: the cell catalogue and characteristics, the
// end-of-life ratios, the efficiency and the chart of one cell's current or
// power against its voltage at the reference temperature and around it.
#pragma once
#include "project/page_conf.h"
#include "ui_conf_cellules.h"

namespace kestrel::gui {

class conf_cellules : public page_conf {
    Q_OBJECT
public:
    conf_cellules(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    void charge() override;

private:
    void apres_saisie(const QString& champ) override;
    void cel_cmb_type_Click(int type);
    void cel_opt_beol_Click(bool fin_de_vie);
    void montre_rendement();
    void trace();

    Ui::conf_cellules ui_;
};

}  // namespace kestrel::gui

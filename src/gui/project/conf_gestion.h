// Management tab of power_conf: battery charge settings, the regulated or
// non-regulated bus, and the payload's demand and dissipation by day or in
// eclipse.
#pragma once
#include "project/page_conf.h"
#include "ui_conf_gestion.h"

namespace kestrel::gui {

class conf_gestion : public page_conf {
    Q_OBJECT
public:
    conf_gestion(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    void charge() override;

private:
    void gst_opt_regul_Click(bool regulee);

    Ui::conf_gestion ui_;
};

}  // namespace kestrel::gui

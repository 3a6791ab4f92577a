// Thermal tab of power_conf: the date the coatings were new, then the frame of
// the model in force: nine nodes around external panels (panel front and
// rear, the face chosen in the list, the internal node), or three surface
// groups for panels on the faces.
#pragma once
#include "project/page_conf.h"
#include "ui_conf_thermique.h"

namespace kestrel::gui {

class conf_thermique : public page_conf {
    Q_OBJECT
public:
    conf_thermique(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    void charge() override;
    // Shows the frame of the panel configuration in force, hides the other.
    void montre_cadre();

private:
    void th_txt_date_Change();

    Ui::conf_thermique ui_;
};

}  // namespace kestrel::gui

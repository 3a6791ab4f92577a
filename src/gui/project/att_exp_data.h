// The torques' exploitation window: the five torques at the dates of the
// period, an axis ("X", "Y", "Z", "Total") per column.
#pragma once
#include "project/exploitation_donnees.h"

namespace kestrel::gui {

class menu;

class att_exp_data : public exploitation_donnees {
    Q_OBJECT
public:
    att_exp_data(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
};

// Creates the window the first time, then shows it again with its results.
att_exp_data* ouvre_att_exp_data(menu& m);

}  // namespace kestrel::gui

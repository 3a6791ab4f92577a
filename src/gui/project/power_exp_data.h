// The power system's exploitation window: the variables of the project's
// panel configuration, a panel per column for the faces' own entries.
#pragma once
#include "project/exploitation_donnees.h"

namespace kestrel::gui {

class menu;

class power_exp_data : public exploitation_donnees {
    Q_OBJECT
public:
    power_exp_data(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
};

// Creates the window the first time, then shows it again with its results.
power_exp_data* ouvre_power_exp_data(menu& m);

}  // namespace kestrel::gui

// power_conf, "Définition système énergie": every field of the power project
// on five tabs of Onglet_power (panels, cells, thermal, batteries,
// management). Each accepted entry goes straight into the shared record; there
// is no OK and no cancel, and cmd_quit only hides the window.
#pragma once
#include <QWidget>

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class menu;
class conf_panneaux;
class conf_cellules;
class conf_thermique;
class conf_batterie;
class conf_gestion;

class power_conf : public QWidget {
    Q_OBJECT
public:
    enum Onglet { panneaux = 0, cellules = 1, thermique = 2, batteries = 3, gestion = 4 };

    power_conf(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);

    // Every control from the record, charts redrawn: after a project is opened.
    void update_powerconf();
    void Form_Load() { update_powerconf(); }

private:
    void Onglet_power_Click(int onglet);

    conf_panneaux* panneaux_;
    conf_cellules* cellules_;
    conf_thermique* thermique_;
    conf_batterie* batterie_;
    conf_gestion* gestion_;
};

// The five energy "Configuration" entries (and their toolbar keys) open the
// one power_conf of the main window at their tab; it joins the "conf" reload.
void branche_power_conf(menu& m);

}  // namespace kestrel::gui

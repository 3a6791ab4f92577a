// att_conf, "Configuration SCA": the attitude record edited in place, on four
// pages of the tab set Onglet_att. Every box applies its entry when it loses
// the focus (Enter moves the focus on); cmd_ok only hides the window. Tagged
// "attconf": opening a .att fills every box again.
#pragma once
#include <QWidget>
#include <memory>

class QLineEdit;
class QTabWidget;

namespace Ui {
class att_conf_masses;
class att_conf_proprietes;
class att_conf_actionneurs;
class att_conf_gestion;
}  // namespace Ui

namespace kestrel {
struct Etat;
struct AttitudeRecord;
}  // namespace kestrel

namespace kestrel::gui {

class Dialogues;
class dessin_config;
class menu;

class att_conf : public QWidget {
    Q_OBJECT
public:
    // Pages of Onglet_att, in order.
    enum Onglet { onglet_masses, onglet_proprietes, onglet_actionneurs, onglet_gestion };

    att_conf(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    ~att_conf() override;

    // Form load: every box, check box and label from the record.
    void att_conf_load();
    // Shows or hides the pieces of the drawing by the check boxes and the external mass.
    void montre_config();

private:
    void branche_cases();
    void branche_masse_externe();
    void branche_coches();
    void branche_gestion();

    void affiche_cases();
    void affiche_masse_externe();
    void affiche_bilan();
    void affiche_gestion();
    void active_coches();
    // After an entry: the boxes, the totals, the drawing, the changed mark.
    void apres_saisie();
    void scroll_axe_grad_Change();

    AttitudeRecord& att();

    std::unique_ptr<Ui::att_conf_masses> masses_;
    std::unique_ptr<Ui::att_conf_proprietes> proprietes_;
    std::unique_ptr<Ui::att_conf_actionneurs> actionneurs_;
    std::unique_ptr<Ui::att_conf_gestion> gestion_;
    Etat& etat_;
    Dialogues& dialogues_;
    QTabWidget* Onglet_att_ = nullptr;
    dessin_config* Pict_config_ = nullptr;
    QLineEdit* a_con_[3] = {};  // the control array of the set points
    int position_grad_ = 0;     // scroll_axe_grad's value before a move
};

// Creates the window once (then reuses it), registers it under "attconf",
// shows it at the page.
void ouvre_att_conf(menu& m, att_conf::Onglet onglet);

}  // namespace kestrel::gui

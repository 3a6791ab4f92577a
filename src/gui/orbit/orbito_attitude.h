// Attitude page of orbito_conf: the simple pointing that the energy simulation
// uses (orbital or inertial angles, the Sun pointing, the spin) and the face
// that points.
#pragma once
#include <QWidget>
#include <memory>

namespace Ui {
class orbito_attitude;
}

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;

class orbito_attitude : public QWidget {
    Q_OBJECT
public:
    orbito_attitude(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    ~orbito_attitude() override;

    // Every control from the pointing record (orb_position at the epoch first,
    // for the inertial angles).
    void charge();
    void cmd_sun_Click();

private:
    void affiche_angles();
    void choix_repere(bool orbital);
    void modifie();

    std::unique_ptr<Ui::orbito_attitude> ui_;
    Etat& etat_;
    Dialogues& dialogues_;
    bool en_charge_ = false;  // controls being filled: no edit to record
};

}  // namespace kestrel::gui

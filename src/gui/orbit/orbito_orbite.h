// Orbit page of orbito_conf: the nine norad_* boxes of the orbite record, what
// follows from them (apogee, perigee, period, epoch), and the .orb file.
#pragma once
#include <QWidget>
#include <memory>

namespace Ui {
class orbito_orbite;
}

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;

class orbito_orbite : public QWidget {
    Q_OBJECT
public:
    orbito_orbite(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    ~orbito_orbite() override;

    // Every box from the record, then the derived labels. An edit also sets
    // the configuration-changed mark; a load does not.
    void affiche(bool apres_saisie);

    // Save and open of a .orb file through the dialogs. False when cancelled
    // or failed.
    bool orb_enre_Click();
    bool orb_ouvr_Click();

signals:
    void orb_quit_Click();
    // The record changed (an entry or an opened file).
    void orbite_modifiee();

private:
    std::unique_ptr<Ui::orbito_orbite> ui_;
    Etat& etat_;
    Dialogues& dialogues_;
};

}  // namespace kestrel::gui

// Orbit page of orbito_conf: the nine norad_* boxes of the orbite record, what
// follows from them (apogee, perigee, period, epoch), and the .orb file.
#pragma once
#include <QWidget>
#include <memory>
#include <vector>

namespace Ui {
class orbito_orbite;
}

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class ControleSaisie;
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

    // A two-line element set typed into the boxes, as a user would, in the
    // order that lets the mean motion set the axis; its name goes to
    // orbite_nom. A set that cannot be read: its message, nothing changed.
    bool importe_tle(const QString& texte);
    // The set from a .tle/.txt file chosen in a dialog, or from the clipboard.
    bool importe_tle_fichier();
    bool importe_tle_presse_papiers();

signals:
    void orb_quit_Click();
    // The record changed (an entry or an opened file).
    void orbite_modifiee();

private:
    std::unique_ptr<Ui::orbito_orbite> ui_;
    std::vector<ControleSaisie*> controles_;  // the norad_* boxes' checks
    Etat& etat_;
    Dialogues& dialogues_;
};

}  // namespace kestrel::gui

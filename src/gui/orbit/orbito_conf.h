// orbito_conf "Caractéristiques orbitales": the orbit, the pointing and the
// environment on three pages of the tab control Onglet_orbite. Created at the
// first use and kept (closing hides it); tagged "conf", it reloads when a
// power project is opened.
#pragma once
#include <QWidget>

class QTabWidget;

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class menu;
class orbito_orbite;
class orbito_attitude;
class orbito_envir;

class orbito_conf : public QWidget {
    Q_OBJECT
public:
    enum Onglet { onglet_orbite = 0, onglet_attitude = 1, onglet_environnement = 2 };

    orbito_conf(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);

    // Every page from the shared records again.
    void Form_Load();
    // Brings the window up at the page asked.
    void montre(Onglet onglet);

    orbito_orbite* page_orbite() const { return orbite_; }
    orbito_attitude* page_attitude() const { return attitude_; }
    orbito_envir* page_envir() const { return envir_; }

private:
    QTabWidget* Onglet_orbite_;
    orbito_orbite* orbite_;
    orbito_attitude* attitude_;
    orbito_envir* envir_;
};

// The command of the menu entries and keys: the one window of the main
// window, created and registered at the first call, shown at its page.
orbito_conf* ouvre_orbito_conf(menu& m, orbito_conf::Onglet onglet);

}  // namespace kestrel::gui

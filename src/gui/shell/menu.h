// menu: the main window. It owns nothing but its controls: the session, the
// orbit and the records live in the Etat it is given. It holds the menus, the
// three toolbars, the simulation period and step, and the two project sessions
// (energy .pwr, attitude .att).
#pragma once
#include <QMainWindow>
#include <QString>
#include <functional>

#include <string>

#include "shell/dialogues.h"
#include "shell/registre.h"

class QAction;
class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QGroupBox;
class QLabel;
class QMenu;
class QToolBar;

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class menu : public QMainWindow {
    Q_OBJECT
public:
    // The load of the window: every record back to a new project's defaults,
    // dossier_depart set, the default period from the orbit shown.
    menu(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);

    Etat& etat() { return etat_; }
    Dialogues& dialogues() { return dialogues_; }
    RegistreFenetres& registre() { return registre_; }

    // Gives a menu entry (mn_...) its command and enables it, with the
    // toolbar keys that forward to it. Entries of windows not built stay disabled.
    void branche(const QString& entree, std::function<void()> commande);

    // The one click handler of the three toolbars: forwards by key.
    void Toolbar_ButtonClick(const QString& barre, const QString& cle);

    // Project commands (menus Fichier and the open/save keys).
    void ouvre_energie();
    // The save commands return false when cancelled or failed. Without a
    // path yet, save runs save as.
    bool enregistre_energie();
    bool enregistre_energie_sous();
    void ouvre_attitude();
    bool enregistre_attitude();
    bool enregistre_attitude_sous();

    // Shows j_debut, j_fin and the list position of pas_sim, as after an open.
    void affiche_periode();

protected:
    void closeEvent(QCloseEvent* evt) override;

private:
    void construit_menus();
    void construit_barres();
    void construit_simulation();

    void cmb_pas_Click();
    void chk_RealTime_Click();
    void periode_modifiee(QDateTimeEdit* edite, QDateTimeEdit* autre);

    // Yes / no / cancel before ending; true when the program may end.
    bool accepte_fin();
    // Folders, titles and the common end of a successful open or save.
    QString dossier_depart() const;
    QString choisit(bool ouverture, const char* titre, const char* filtre,
                    const std::string& actuel, const char* extension);
    void titre_energie(const QString& chemin);
    void titre_attitude(const QString& chemin);
    void apres_ouverture(const QString& chemin, const QString& tag);
    void montre_erreur(const QString& texte);

    Etat& etat_;
    Dialogues& dialogues_;
    RegistreFenetres registre_;

    QGroupBox* fra_energie_ = nullptr;
    QGroupBox* fra_attitude_ = nullptr;
    QCheckBox* chk_RealTime_ = nullptr;
    QComboBox* cmb_pas_ = nullptr;
    QDateTimeEdit* txt_date_debut_ = nullptr;
    QDateTimeEdit* txt_date_fin_ = nullptr;
    QLabel* lab_scale_ = nullptr;
};

}  // namespace kestrel::gui

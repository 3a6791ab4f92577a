// power_exp_bat "Charge/Décharge des batteries": one accumulator discharged
// through an eclipse then recharged, on the laws of the project's battery and
// the window's own values. The loop is the core's; the window reads its boxes,
// keeps the bar moving and the events flowing, and draws the samples.
#pragma once
#include <QElapsedTimer>
#include <QWidget>
#include <memory>
#include <utility>
#include <vector>

#include "core/power/etude_batterie.h"
#include "shell/saisie.h"

namespace Ui {
class power_exp_bat;
}

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class GraphesBatterie;
class menu;

class power_exp_bat : public QWidget {
    Q_OBJECT
public:
    power_exp_bat(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    ~power_exp_bat() override;

    const EntreesBatterie& entrees() const { return entrees_; }
    bool en_cours() const { return en_cours_; }

    // cmd_saisir: restarts from a full accumulator and runs to the end, a stop
    // or a fault.
    void cmd_saisir_Click();

protected:
    void closeEvent(QCloseEvent* evt) override;
    bool eventFilter(QObject* objet, QEvent* evt) override;

private:
    void surveille_champs();
    // Every box read again through its check; false at the first refusal.
    bool lit_champs();
    void progression(const ProgressionBatterie& p);

    Etat& etat_;
    Dialogues& dialogues_;
    std::unique_ptr<Ui::power_exp_bat> ui_;
    GraphesBatterie* pict_graphs_ = nullptr;
    EntreesBatterie entrees_;
    std::vector<std::pair<QLineEdit*, Verification>> champs_;  // boxes and their checks
    bool stop_ = false;
    bool en_cours_ = false;
    QElapsedTimer pause_;  // since the events were last served
};

// Opens the one window of the main window (created on first use).
power_exp_bat* ouvre_power_exp_bat(menu& m);

}  // namespace kestrel::gui

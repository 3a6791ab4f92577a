// power_sim_all: the complete power simulation. Timer_sim_pwr (50 ms) runs
// tick_power on the shared Etat and refreshes the synoptic, the gauges and the
// 3D view; timer_icon_bat (500 ms) animates the battery picture. The buttons
// only set sim_state: the tick acts on it.
#pragma once
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "core/power/sim_tick.h"

namespace Ui {
class power_sim_all;
}

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class Pict_visu3d;
class menu;

class power_sim_all : public QWidget {
    Q_OBJECT
public:
    static constexpr int intervalle_ms = 50;   // Timer_sim_pwr
    static constexpr int intervalle_bat_ms = 500;  // timer_icon_bat

    // maj_principale brings the main window up to date after a reset.
    power_sim_all(Etat& etat, Dialogues& dialogues, std::function<void()> maj_principale,
                  QWidget* parent = nullptr);
    ~power_sim_all() override;

    int16_t sim_state() const { return sim_.sim_state; }
    // The 3D view, or nullptr when no OpenGL context could be made.
    Pict_visu3d* vue() const { return vue_; }

    // One tick of each timer; public so that a test runs them without a clock.
    void Timer_sim_pwr_Timer();
    void timer_icon_bat_Timer();

    // Labels, gauges, arrows and date of the present record (after a step).
    void affiche();

    void cmd_lance_Click();
    void cmd_pause_Click();
    void cmd_stop_Click();
    void cmd_quit_Click();

protected:
    void showEvent(QShowEvent* e) override;
    void hideEvent(QHideEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    void construit_vue();
    void signale_fautes();

    Etat& etat_;
    Dialogues& dialogues_;
    std::function<void()> maj_principale_;
    std::unique_ptr<Ui::power_sim_all> ui_;
    Pict_visu3d* vue_ = nullptr;
    QTimer* Timer_sim_pwr_ = nullptr;   // children of the window, found by name
    QTimer* timer_icon_bat_ = nullptr;
    SimPower sim_;
    int16_t etat_bat_ = 8;
    int animation_ = 0;
    bool dans_tick_ = false;
    std::vector<QPixmap> images_bat_;
};

// The command of mn_sim_pow_com: the one window, made on first use.
void ouvre_power_sim_all(menu& m);

}  // namespace kestrel::gui

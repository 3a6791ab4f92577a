// power_exp_pan "Simulation panneaux solaires": the power step over the
// session's period without a clock, and the panels' temperatures, powers and
// fluxes as a graph (trace_graph, six columns at a time) or a grid. The loop is
// the core's; the window serves the events once a step so that
// "Interrompre" works, and keeps its last results until the next run.
#pragma once
#include <QWidget>
#include <memory>

#include "core/power/etude_generateur.h"

namespace Ui {
class power_exp_pan;
}

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class ImageDessin;
class ModeleTextes;
class menu;

class power_exp_pan : public QWidget {
    Q_OBJECT
public:
    power_exp_pan(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    ~power_exp_pan() override;

    const ResultatGenerateur& resultat() const { return r_; }
    VueGenerateur vue() const { return vue_; }
    bool en_cours() const { return en_cours_; }

    void cmd_saisir_Click();
    void cmd_save_Click();

protected:
    void closeEvent(QCloseEvent* evt) override;
    void showEvent(QShowEvent* evt) override;

private:
    void choisit_vue(VueGenerateur v);
    // Grid and graph of the present view from the stored results.
    void affiche();
    void trace();
    void montre_faces();

    Etat& etat_;
    Dialogues& dialogues_;
    std::unique_ptr<Ui::power_exp_pan> ui_;
    ModeleTextes* modele_ = nullptr;
    ImageDessin* pict_graph_ = nullptr;
    ResultatGenerateur r_;
    VueGenerateur vue_ = VueGenerateur::temperature;
    double debut_ = 0, fin_ = 0, pas_ = 0;  // period of the stored run (days, s)
    bool stop_ = false;
    bool en_cours_ = false;
};

// Opens the one window of the main window (created on first use).
power_exp_pan* ouvre_power_exp_pan(menu& m);

}  // namespace kestrel::gui

// Environment page of orbito_conf: the solar constant over the year (and the
// luminosity behind it), the Earth's monthly albedo and infrared with their
// two models, and the yearly chart env_graph1.
#pragma once
#include <QWidget>
#include <memory>

class QLineEdit;

namespace Ui {
class orbito_envir;
}

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class env_graph1;

class orbito_envir : public QWidget {
    Q_OBJECT
public:
    orbito_envir(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);
    ~orbito_envir() override;

    // Flux elements, the lists at January and their boxes, the chart.
    void charge();
    void env_cmd_isoterre_Click();
    void env_cmd_sin_Click();

private:
    void affiche_flux();
    void affiche_mois();
    void modifie();

    std::unique_ptr<Ui::orbito_envir> ui_;
    Etat& etat_;
    Dialogues& dialogues_;
    QLineEdit* env_txt_flux_[2];  // the control array: 0 minimum, 1 maximum
    env_graph1* graphe_;
};

}  // namespace kestrel::gui

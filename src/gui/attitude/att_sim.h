// att_sim: the attitude simulation window. It runs att_run as soon as it
// opens (there is no start button), with its progress in temp_calcul, then
// draws the results file a page of 1000 records at a time: the wheel speeds
// in att_graph, the body rates and two Euler rates in att_graph_v, the page
// chosen with scr_diagr. The initial body rates are edited here (deg/s) for
// the next run.
#pragma once
#include <QString>
#include <QWidget>

class QChartView;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QScrollBar;

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class menu;

class att_sim : public QWidget {
    Q_OBJECT
public:
    att_sim(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);

    // The run over the session's period, then the first page.
    void att_run();
    // Draws page page() of the results file.
    void att_trace();
    void Quit_but_Click();

    int pages() const { return pages_; }
    int page() const { return page_; }
    const QString& fichier_temp() const { return fichier_temp_; }

private:
    void lit_vitesse(int k, QLineEdit* champ);

    Etat& etat_;
    Dialogues& dialogues_;
    double debut_ = 0, fin_ = 0, pas_ = 0;  // period and step (days) of the run drawn
    QString fichier_temp_;
    QString fichier_resultats_;  // stays empty: the window has no save command
    int pages_ = 0, page_ = 0;

    QChartView* att_graph_;
    QChartView* att_graph_v_;
    QProgressBar* temp_calcul_;
    QScrollBar* scr_diagr_;
    QLineEdit* txt_psi_;
    QLineEdit* txt_theta_;
    QLineEdit* txt_fi_;
    QPushButton* Quit_but_;
};

// Opens a new window, which starts its run, or raises the open one.
att_sim* ouvre_att_sim(menu& m);

}  // namespace kestrel::gui

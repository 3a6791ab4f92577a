#include "attitude/att_sim.h"

#include <QChart>
#include <QChartView>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QValueAxis>
#include <algorithm>

#include "core/attitude/att_run.h"
#include "core/attitude/page_resultats.h"
#include "core/etat/etat.h"
#include "core/shell/messages.h"
#include "shell/dialogues.h"
#include "shell/rapport_run.h"
#include "shell/periode_run.h"
#include "shell/menu.h"
#include "shell/saisie.h"

namespace kestrel::gui {

namespace {

constexpr double RAD_DEG = 180.0 / PI;

QChartView* graphe(QWidget* parent, const char* nom, const QString& titre, const QString& unite) {
    auto* chart = new QChart;
    chart->setTitle(titre);
    chart->legend()->setAlignment(Qt::AlignRight);
    auto* x = new QValueAxis;
    x->setTitleText(QStringLiteral("Temps depuis le début (s)"));
    auto* y = new QValueAxis;
    y->setTitleText(unite);
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    auto* v = new QChartView(chart, parent);
    v->setObjectName(QString::fromLatin1(nom));
    v->setRenderHint(QPainter::Antialiasing);
    v->setMinimumSize(640, 260);
    return v;
}

// The page's columns as series named by the results file's header.
void montre(QChartView* v, const PageResultats& p, double debut, std::initializer_list<int> colonnes) {
    static const char* noms[13] = {"j_courant", "omega(0)", "omega(1)", "omega(2)", "omega(3)", "omega(4)", "omega(5)",
                                   "yd(0)", "yd(2)", "yd(1)", "yd(3)", "yd(4)", "yd(5)"};
    QChart* c = v->chart();
    c->removeAllSeries();
    QAbstractAxis* ax = c->axes(Qt::Horizontal).first();
    QAbstractAxis* ay = c->axes(Qt::Vertical).first();
    double xmin = 0, xmax = 1, ymin = 0, ymax = 0;
    bool premier = true;
    for (int k : colonnes) {
        auto* s = new QLineSeries;
        s->setName(QString::fromLatin1(noms[k]));
        QList<QPointF> points;
        points.reserve(p.n);
        for (int r = 0; r < p.n; ++r) {
            const double x = (p.v[r][0] - debut) * 86400, y = p.v[r][k];
            points << QPointF(x, y);
            if (premier) xmin = xmax = x, ymin = ymax = y, premier = false;
            xmin = std::min(xmin, x), xmax = std::max(xmax, x);
            ymin = std::min(ymin, y), ymax = std::max(ymax, y);
        }
        s->replace(points);
        c->addSeries(s);
        s->attachAxis(ax);
        s->attachAxis(ay);
    }
    if (ymax == ymin) ymin -= 1, ymax += 1;
    if (xmax == xmin) xmax = xmin + 1;
    ax->setRange(xmin, xmax);
    ay->setRange(ymin, ymax);
    static_cast<QValueAxis*>(ay)->applyNiceNumbers();
}

}  // namespace

att_sim::att_sim(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent, Qt::Window), etat_(etat), dialogues_(dialogues) {
    setObjectName(QStringLiteral("att_sim"));
    setWindowTitle(QStringLiteral("Simulation du contrôle d'attitude"));
    att_graph_ = graphe(this, "att_graph", QStringLiteral("Roues"), QStringLiteral("tr/mn"));
    att_graph_v_ = graphe(this, "att_graph_v", QStringLiteral("Vitesses"), QStringLiteral("°/s"));
    temp_calcul_ = new QProgressBar(this);
    temp_calcul_->setObjectName(QStringLiteral("temp_calcul"));
    temp_calcul_->setRange(0, 1000);
    temp_calcul_->setTextVisible(false);
    temp_calcul_->setVisible(false);
    scr_diagr_ = new QScrollBar(Qt::Horizontal, this);
    scr_diagr_->setObjectName(QStringLiteral("scr_diagr"));
    scr_diagr_->setRange(0, 0);
    Quit_but_ = new QPushButton(QStringLiteral("Quitter"), this);
    Quit_but_->setObjectName(QStringLiteral("Quit_but"));

    auto* vitesses = new QFormLayout;
    QLineEdit** champs[3] = {&txt_psi_, &txt_theta_, &txt_fi_};
    const char* noms[3] = {"txt_psi", "txt_theta", "txt_fi"};
    const char* titres[3] = {"psi (°/s)", "theta (°/s)", "phi (°/s)"};
    for (int k = 0; k < 3; ++k) {
        QLineEdit* t = *champs[k] = new QLineEdit(this);
        t->setObjectName(QString::fromLatin1(noms[k]));
        t->setMaximumWidth(110);
        t->setText(QString::number(etat_.att.omega_init[k] * RAD_DEG, 'g', 15));
        vitesses->addRow(QString::fromUtf8(titres[k]), t);
        lit_vitesse(k, t);
    }

    auto* grille = new QGridLayout(this);
    grille->addWidget(att_graph_, 0, 0);
    grille->addLayout(vitesses, 0, 1, Qt::AlignTop);
    grille->addWidget(att_graph_v_, 1, 0);
    grille->addWidget(Quit_but_, 1, 1, Qt::AlignBottom);
    grille->addWidget(scr_diagr_, 2, 0);
    grille->addWidget(temp_calcul_, 3, 0, 1, 2);

    connect(scr_diagr_, &QScrollBar::valueChanged, this, [this](int v) {
        page_ = v;
        att_trace();
    });
    connect(Quit_but_, &QPushButton::clicked, this, &att_sim::Quit_but_Click);
}

void att_sim::lit_vitesse(int k, QLineEdit* champ) {
    // deg/s in the box, rad/s in omega_init, shown back through 180/pi
    surveille(champ, dialogues_, [this, k, champ](const QString& texte) {
        double x = 0;
        const Verdict v = verif_double(texte.trimmed().toStdString(), x);
        if (v.ok) {
            etat_.att.omega_init[k] = x / RAD_DEG;
            champ->setText(QString::number(etat_.att.omega_init[k] * RAD_DEG, 'g', 15));
        }
        return v;
    });
    connect(champ, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
}

void att_sim::att_run() {
    if (!periode_acceptee(this, dialogues_, etat_)) return;
    const Session& s = etat_.session;
    debut_ = s.j_debut;
    fin_ = s.j_fin;
    pas_ = s.pas_sim / 86400.0;
    ParametresRun p;
    p.pas_ecriture = 1;
    // no event is served inside a step: only the bar is repainted, about
    // twenty times a second, so that the window shows where the run is
    QElapsedTimer montre;
    montre.start();
    p.progression = [this, &montre](double pct) {
        temp_calcul_->setValue(static_cast<int>(pct * 10));
        if (montre.elapsed() >= 50) {
            montre.restart();
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        }
    };
    temp_calcul_->setValue(0);
    temp_calcul_->setVisible(true);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    const BilanRun b = kestrel::att_run(etat_, p);
    temp_calcul_->setVisible(false);
    fichier_temp_ = QString::fromStdString(b.fichier);
    // a fault ends the run; the records already written stay and are drawn
    rapporte_run(dialogues_, this, etat_.faute, etat_.alertes);

    pages_ = pas_ > 0 ? pages_resultats(debut_, fin_, pas_) : 1;
    page_ = 0;
    att_trace();
    QSignalBlocker bloque(scr_diagr_);
    scr_diagr_->setRange(0, pas_ > 0 ? std::max(0, max_defilement(debut_, fin_, pas_, pages_)) : 0);
    scr_diagr_->setSingleStep(1);
    scr_diagr_->setPageStep(1);
    scr_diagr_->setValue(0);
}

void att_sim::att_trace() {
    PageResultats p;
    lit_page_resultats(QFile::encodeName(fichier_temp_).toStdString(), page_, p);
    montre(att_graph_, p, debut_, {12, 11, 10});
    montre(att_graph_v_, p, debut_, {6, 5, 4, 3, 2, 1, 9, 8});
}

void att_sim::Quit_but_Click() {
    // The question and the deletion name a "kestrel" sub-folder that the
    // run's own path lacks, so the run's file normally stays: kept as it is.
    const QString nomme = QString::fromStdString(etat_.session.dossier_depart) + QStringLiteral("/kestrel/temp/temp.tmp");
    if (fichier_temp_ == nomme && fichier_resultats_.isEmpty())
        dialogues_.question(this, QString::fromLatin1(titre_messages), QString::fromUtf8(msg::question_resultats),
                            Boutons::oui_non);
    QFile::remove(nomme);  // a missing file is no failure
    close();
}

att_sim* ouvre_att_sim(menu& m) {
    if (auto* f = m.findChild<att_sim*>(QString(), Qt::FindDirectChildrenOnly)) {
        f->raise();
        f->activateWindow();
        return f;
    }
    auto* f = new att_sim(m.etat(), m.dialogues(), &m);
    f->setAttribute(Qt::WA_DeleteOnClose);
    f->show();
    QTimer::singleShot(0, f, &att_sim::att_run);
    return f;
}

}  // namespace kestrel::gui

#include "power/power_exp_pan.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QHeaderView>
#include <fstream>
#include <set>

#include "core/etat/etat.h"
#include "core/project/textes_generateur.h"
#include "core/project/trace_graph.h"
#include "core/shell/format_image.h"
#include "core/shell/messages.h"
#include "power/image_dessin.h"
#include "power/images_faces.h"
#include "power/modele_textes.h"
#include "shell/dialogues.h"
#include "shell/rapport_run.h"
#include "shell/periode_run.h"
#include "shell/menu.h"
#include "ui_power_exp_pan.h"

namespace kestrel::gui {

namespace {

constexpr int COURBES = 6;  // columns trace_graph draws at once

QString u(const std::string& s) { return QString::fromStdString(s); }

const char* nom_vue(VueGenerateur v) {
    switch (v) {
        case VueGenerateur::temperature:
            return "Température";
        case VueGenerateur::puissance:
            return "Puissance";
        case VueGenerateur::flux:
            break;
    }
    return "Flux";
}

}  // namespace

power_exp_pan::power_exp_pan(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent, Qt::Window), etat_(etat), dialogues_(dialogues), ui_(std::make_unique<Ui::power_exp_pan>()) {
    ui_->setupUi(this);
    modele_ = new ModeleTextes(this);
    ui_->grid->setModel(modele_);
    ui_->grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->grid->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    pict_graph_ = new ImageDessin();
    pict_graph_->setObjectName(QStringLiteral("pict_graph"));
    ui_->z_graphe->insertWidget(1, pict_graph_);
    ui_->img_pan4->setPixmap(image_faces(4));
    ui_->img_pan6->setPixmap(image_faces(6));
    ui_->lab_status->setText(QStringLiteral("0.0 %"));

    connect(ui_->opt_view, &QButtonGroup::idClicked, this, [this] {
        ui_->z_pages->setCurrentIndex(ui_->opt_view_1->isChecked() ? 1 : 0);
    });
    connect(ui_->cmd_temperature, &QPushButton::clicked, this, [this] { choisit_vue(VueGenerateur::temperature); });
    connect(ui_->cmd_puissance, &QPushButton::clicked, this, [this] { choisit_vue(VueGenerateur::puissance); });
    connect(ui_->cmd_flux, &QPushButton::clicked, this, [this] { choisit_vue(VueGenerateur::flux); });
    connect(ui_->txt_premiere, &QSpinBox::valueChanged, this, [this] { trace(); });
    connect(ui_->cmd_saisir, &QPushButton::clicked, this, &power_exp_pan::cmd_saisir_Click);
    connect(ui_->cmd_stopcalcul, &QPushButton::clicked, this, [this] { stop_ = true; });
    connect(ui_->cmd_save, &QPushButton::clicked, this, &power_exp_pan::cmd_save_Click);
    connect(ui_->cmd_quit, &QPushButton::clicked, this, &QWidget::close);
    r_ = colonnes_generateur(etat_.pwr);
    affiche();
    montre_faces();
}

power_exp_pan::~power_exp_pan() = default;

void power_exp_pan::montre_faces() {
    const bool faces = configuration(etat_.pwr) == ConfigPower::faces;
    ui_->img_pan4->setVisible(faces && etat_.pwr.nb_faces == 4);
    ui_->img_pan6->setVisible(faces && etat_.pwr.nb_faces == 6);
}

void power_exp_pan::showEvent(QShowEvent* evt) {
    montre_faces();  // a project opened since may have another layout
    QWidget::showEvent(evt);
}

void power_exp_pan::choisit_vue(VueGenerateur v) {
    vue_ = v;
    affiche();
}

void power_exp_pan::affiche() {
    const TableGenerateur& g = r_.table(vue_);
    QStringList entetes{QStringLiteral("Date")};
    for (std::size_t c = 0; c < g.colonnes(); ++c) entetes << u(entete_colonne(g, c));
    modele_->charge(textes_generateur(r_, vue_, pas_), entetes);
    const int n = static_cast<int>(g.colonnes());
    ui_->txt_premiere->setMaximum(std::max(1, n - COURBES + 1));
    trace();
}

void power_exp_pan::trace() {
    const TableTextes& t = modele_->table();
    const TableGenerateur& g = r_.table(vue_);
    const int premiere = ui_->txt_premiere->value();  // table column: 0 is the date
    EntreeGraphe e;
    e.table = &t;
    QString legende;
    std::set<std::string> unites;
    for (int i = 0; i < COURBES; ++i) {
        const int col = premiere + i;
        if (col > static_cast<int>(g.colonnes())) break;
        e.colonnes[i] = col;
        const Couleur k = graphe::couleurs[i];
        legende += QStringLiteral("<span style='color:rgb(%1,%2,%3)'>&#9632; %4</span>&nbsp;&nbsp; ")
                       .arg(k.r).arg(k.g).arg(k.b).arg(u(g.titres[col - 1]).toHtmlEscaped());
        unites.insert(g.unites[col - 1]);
    }
    Echelle ech = echelle_colonnes(t, premiere, COURBES);
    if (ech.max == ech.min) ech.max = ech.min + 1;  // all zero: still show the axes
    e.lim_max = ech.max;
    e.lim_min = ech.min;
    // The dates under the axis span the rows drawn: a stopped run ends early.
    e.debut = debut_;
    e.fin = r_.dates.empty() ? fin_ : r_.dates.back();
    if (!(e.fin > e.debut)) e.fin = e.debut + pas_ / 86400.0;
    pict_graph_->montre(t.lignes() ? trace_graph(e) : std::nullopt);
    QStringList u_textes;
    for (const auto& x : unites) u_textes << u(x);
    ui_->lab_y->setText(QStringLiteral("%1 (%2)").arg(QString::fromUtf8(nom_vue(vue_)), u_textes.join(", ")));
    ui_->lab_x->setText(QStringLiteral("Date et heure"));
    ui_->lab_x->setFixedWidth(pict_graph_->sizeHint().width());  // centred under the picture
    ui_->z_legende->setText(legende);
}

void power_exp_pan::cmd_saisir_Click() {
    if (en_cours_) return;
    const Session& s = etat_.session;
    if (!(s.j_debut > etat_.pwr.date_cell)) {
        dialogues_.message(this, QString::fromUtf8(msg::date_cellules), Icone::avertissement);
        return;
    }
    if (!periode_acceptee(this, dialogues_, etat_)) return;
    en_cours_ = true;
    stop_ = false;
    ui_->cmd_saisir->setEnabled(false);
    ui_->cmd_save->setEnabled(false);
    ui_->cmd_stopcalcul->setEnabled(true);
    ui_->statusbar->setValue(0);
    debut_ = s.j_debut;
    fin_ = s.j_fin;
    pas_ = s.pas_sim;

    ResultatGenerateur r = etude_generateur(
        etat_,
        [this](double pct) {
            ui_->statusbar->setValue(static_cast<int>(pct * 10));
            ui_->lab_status->setText(QString::fromStdString(format_image(pct, "0.0")) + QStringLiteral(" %"));
            QCoreApplication::processEvents();
        },
        &stop_);

    en_cours_ = false;
    r_ = std::move(r);
    ui_->cmd_saisir->setEnabled(true);
    ui_->cmd_stopcalcul->setEnabled(false);
    ui_->cmd_save->setEnabled(!r_.dates.empty());
    if (!r_.arrete && !r_.faute) {  // the last date may stop a hair short of the end
        ui_->statusbar->setValue(ui_->statusbar->maximum());
        ui_->lab_status->setText(QStringLiteral("100.0 %"));
    }
    montre_faces();
    affiche();
    rapporte_run(dialogues_, this, r_.faute, r_.alertes);
}

void power_exp_pan::cmd_save_Click() {
    DemandeFichier d;
    d.titre = QStringLiteral("Enregistrement des résultats");
    d.filtre = filtre_qt(QStringLiteral("Fichiers de texte (*.txt)|*.txt|All Files (*.*)|*.*"));
    d.dossier = QString::fromStdString(etat_.session.dossier_depart);
    d.extension = QStringLiteral("txt");
    const QString chemin = dialogues_.enregistrer(this, d);
    if (chemin.isEmpty()) return;
    std::ofstream f(QFile::encodeName(chemin).toStdString(), std::ios::binary);
    if (f) ecrit_texte_generateur(f, r_, vue_, modele_->table());
    if (!f) {
        Erreur e;
        e.code = CodeErreur::ecriture_resultats;
        e.detail = chemin.toStdString();
        dialogues_.message(this, u(texte_erreur(e)), Icone::critique);
    }
}

void power_exp_pan::closeEvent(QCloseEvent* evt) {
    stop_ = true;  // a running study ends after its step
    QWidget::closeEvent(evt);
}

power_exp_pan* ouvre_power_exp_pan(menu& m) {
    auto* f = m.findChild<power_exp_pan*>(QString(), Qt::FindDirectChildrenOnly);
    if (!f) f = new power_exp_pan(m.etat(), m.dialogues(), &m);
    f->show();
    f->raise();
    f->activateWindow();
    return f;
}

}  // namespace kestrel::gui

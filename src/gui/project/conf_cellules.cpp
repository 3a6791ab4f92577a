#include "project/conf_cellules.h"

#include <QSignalBlocker>

#include "core/etat/etat.h"
#include "core/project/catalogues.h"
#include "core/project/saisie_energie.h"
#include "core/shell/format_image.h"
#include "project/graphe_conf.h"

namespace kestrel::gui {

namespace {
const char* const champs[] = {"cel_txt_isc",   "cel_txt_imp",   "cel_txt_voc",    "cel_txt_vmp",
                              "cel_txt_disc",  "cel_txt_dimp",  "cel_txt_dvoc",   "cel_txt_dvmp",
                              "cel_txt_tref",  "cel_txt_ns",    "cel_txt_np",     "cel_txt_surf",
                              "cel_txt_tetad", "cel_txt_tetam", "cel_txt_radisc", "cel_txt_radimp",
                              "cel_txt_radvoc", "cel_txt_radvmp"};
}  // namespace

conf_cellules::conf_cellules(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : page_conf(etat, dialogues, parent) {
    ui_.setupUi(this);
    for (const char* nom : champs) lie(QString::fromLatin1(nom));
    ui_.cel_opt_cour->setChecked(true);
    // activated: choosing the entry already shown overwrites the edits again.
    connect(ui_.cel_cmb_type, &QComboBox::activated, this, &conf_cellules::cel_cmb_type_Click);
    connect(ui_.cel_opt_beol_0, &QRadioButton::clicked, this, [this] { cel_opt_beol_Click(false); });
    connect(ui_.cel_opt_beol_1, &QRadioButton::clicked, this, [this] { cel_opt_beol_Click(true); });
    connect(ui_.cel_opt_cour, &QRadioButton::toggled, this, [this] { trace(); });
}

void conf_cellules::charge() {
    const PowerRecord& p = etat_.pwr;
    affiche_champs();
    {
        const QSignalBlocker b(ui_.cel_cmb_type);
        ui_.cel_cmb_type->setCurrentIndex(p.cel_type == 1 ? 1 : 0);
    }
    const bool fin_de_vie = p.cel_opt_beol != 0;
    ui_.cel_opt_beol_0->setChecked(!fin_de_vie);
    ui_.cel_opt_beol_1->setChecked(fin_de_vie);
    for (QLineEdit* e : {ui_.cel_txt_radisc, ui_.cel_txt_radimp, ui_.cel_txt_radvoc, ui_.cel_txt_radvmp})
        e->setEnabled(fin_de_vie);
    montre_rendement();
    trace();
}

void conf_cellules::apres_saisie(const QString&) {
    montre_rendement();
    trace();
}

void conf_cellules::cel_cmb_type_Click(int type) {
    etat_.pwr.cel_type = static_cast<int16_t>(type);
    catalogue_cellules(etat_.pwr, type);
    etat_.session.config_modifiee = 1;
    charge();
}

void conf_cellules::cel_opt_beol_Click(bool fin_de_vie) {
    etat_.pwr.cel_opt_beol = fin_de_vie ? 1 : 0;
    etat_.session.config_modifiee = 1;
    charge();
}

void conf_cellules::montre_rendement() {
    const double r = rendement_cellules(etat_.pwr, etat_.pwr.cel_opt_beol != 0);
    ui_.lbl_eff->setText(QString::fromStdString(format_image(100 * r, "0.0")));
}

void conf_cellules::trace() {
    const bool puissance = ui_.cel_opt_puiss->isChecked();
    trace_series(ui_.cel_charac_graph, courbes_cellule(etat_.pwr, puissance),
                 puissance ? QStringLiteral("Puissance d'une cellule") : QStringLiteral("Courant d'une cellule"),
                 QStringLiteral("Tension (V)"), puissance ? QStringLiteral("Puissance (W)") : QStringLiteral("Courant (A)"));
}

}  // namespace kestrel::gui

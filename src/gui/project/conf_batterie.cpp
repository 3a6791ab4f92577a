#include "project/conf_batterie.h"

#include <QSignalBlocker>

#include "core/etat/etat.h"
#include "core/project/catalogues.h"
#include "project/graphe_conf.h"

namespace kestrel::gui {

namespace {
// Curve points, each a row of six coefficients (boxes nom_0 .. nom_5).
const char* const points[] = {"bat_txt_0",  "bat_txt_1",  "bat_txt_2",  "bat_txt_och",
                              "bat_txt_d0", "bat_txt_d1", "bat_txt_d2", "bat_txt_d100"};
// Fields that the catalogue fills: open only for "Générique".
const char* const catalogue[] = {"bat_txt_cmax", "bat_txt_c10", "bat_txt_cmin", "bat_txt_t99",
                                 "bat_txt_tmin", "bat_txt_tc0", "bat_txt_tc50"};
}  // namespace

conf_batterie::conf_batterie(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : page_conf(etat, dialogues, parent) {
    ui_.setupUi(this);
    for (const char* nom : {"bat_txt_ns", "bat_txt_np", "bat_txt_c"}) lie(QString::fromLatin1(nom));
    for (const char* nom : catalogue) lie(QString::fromLatin1(nom));
    for (const char* nom : points) lie_ligne(QString::fromLatin1(nom), 6);
    ui_.bat_ch_opt_courant->setChecked(true);
    ui_.bat_dch_opt_courant->setChecked(true);
    connect(ui_.bat_cmb_type, &QComboBox::activated, this, &conf_batterie::bat_cmb_type_Click);
    connect(ui_.bat_ch_opt_courant, &QRadioButton::toggled, this, [this] { trace(); });
    connect(ui_.bat_dch_opt_courant, &QRadioButton::toggled, this, [this] { trace(); });
}

void conf_batterie::charge() {
    const int type = etat_.pwr.bat_type;
    affiche_champs();
    {
        const QSignalBlocker b(ui_.bat_cmb_type);
        ui_.bat_cmb_type->setCurrentIndex(type >= 0 && type <= 3 ? type : 3);
    }
    const bool ouvert = batterie_modifiable(type);
    ui_.bat_frm_courbes->setEnabled(ouvert);
    for (const char* nom : catalogue) ctrl<QLineEdit>(nom)->setEnabled(ouvert);
    trace();
}

void conf_batterie::apres_saisie(const QString&) { trace(); }

// The entry's values replace the fields (the two management ones included),
// even when it is the entry already chosen.
void conf_batterie::bat_cmb_type_Click(int type) {
    etat_.pwr.bat_type = static_cast<int16_t>(type);
    catalogue_batterie(etat_.pwr, type);
    etat_.session.config_modifiee = 1;
    charge();
    emit modifie(QStringLiteral("bat_cmb_type"));
}

void conf_batterie::trace() {
    const QString v = QStringLiteral("Tension (V)");
    const bool ch_courant = ui_.bat_ch_opt_courant->isChecked();
    trace_series(ui_.bat_ch_graph, courbes_batterie(etat_.pwr, true, ch_courant),
                 ch_courant ? QStringLiteral("Caractéristiques de charge à 25°C")
                            : QStringLiteral("Caractéristiques de charge à Cnom"),
                 QStringLiteral("Etat de charge (%)"), v);
    const bool dch_courant = ui_.bat_dch_opt_courant->isChecked();
    trace_series(ui_.bat_dch_graph, courbes_batterie(etat_.pwr, false, dch_courant),
                 dch_courant ? QStringLiteral("Caractéristiques de décharge à 25°C")
                             : QStringLiteral("Caractéristiques de décharge à Cnom"),
                 QStringLiteral("Profondeur de décharge (%)"), v);
}

}  // namespace kestrel::gui

#include "project/conf_thermique.h"

#include <QSignalBlocker>
#include <cmath>

#include "core/etat/etat.h"
#include "core/shell/calendrier.h"

namespace kestrel::gui {

conf_thermique::conf_thermique(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : page_conf(etat, dialogues, parent) {
    ui_.setupUi(this);
    for (const char* nom : {"thex_txt_aire_pan", "thex_txt_aire_face", "thex_txt_alpha0_av", "thex_txt_alim_av",
                            "thex_txt_eps_av", "thex_txt_t99_av", "thex_txt_alpha0_ar", "thex_txt_alim_ar",
                            "thex_txt_eps_ar", "thex_txt_t99_ar", "thex_txt_masse_pan", "thex_txt_cp_pan",
                            "thex_txt_tinit_pan", "thex_txt_masse_int", "thex_txt_cp_int", "thex_txt_tinit_int",
                            "thbd_txt_masse_int", "thbd_txt_cp_int", "thbd_txt_tinit_int", "thbd_txt_condcyl"})
        lie(QString::fromLatin1(nom));
    auto face = [this] { return std::max(0, ui_.thex_list_cubeface->currentRow()); };
    for (const char* nom : {"thex_txt_alpha0_face", "thex_txt_alim_face", "thex_txt_eps_face", "thex_txt_t99_face",
                            "thex_txt_cond", "thex_txt_rad", "thex_txt_masse_face", "thex_txt_cp_face",
                            "thex_txt_tinit_face"})
        lie(QString::fromLatin1(nom), face);
    auto surface = [this] { return std::max(0, ui_.thbd_list_cond->currentRow()); };
    for (const char* nom : {"thbd_txt_cond", "thbd_txt_tinit", "thbd_txt_alpha0", "thbd_txt_alim", "thbd_txt_t99",
                            "thbd_txt_eps", "thbd_txt_cp", "thbd_txt_masse", "thbd_txt_rad"})
        lie(QString::fromLatin1(nom), surface);
    ui_.thex_list_cubeface->setCurrentRow(0);
    ui_.thbd_list_cond->setCurrentRow(0);
    connect(ui_.thex_list_cubeface, &QListWidget::currentRowChanged, this, [this] { affiche_champs(); });
    connect(ui_.thbd_list_cond, &QListWidget::currentRowChanged, this, [this] { affiche_champs(); });
    connect(ui_.th_txt_date, &QDateEdit::dateChanged, this, &conf_thermique::th_txt_date_Change);
}

void conf_thermique::charge() {
    affiche_champs();
    Date d;
    jour_vers_date(etat_.pwr.date_cell, d);
    const QSignalBlocker b(ui_.th_txt_date);
    ui_.th_txt_date->setDate(QDate(d.an, d.mois, d.jour));
    montre_cadre();
}

void conf_thermique::montre_cadre() {
    const bool externes = etat_.pwr.opt_panel_ext != 0;
    ui_.thex_frm->setVisible(externes);
    ui_.thbd_frm->setVisible(!externes);
}

// The day count of the date at midnight, rounded.
void conf_thermique::th_txt_date_Change() {
    const QDate q = ui_.th_txt_date->date();
    Date d;
    d.an = static_cast<int16_t>(q.year());
    d.mois = static_cast<int16_t>(q.month());
    d.jour = static_cast<int16_t>(q.day());
    etat_.pwr.date_cell = static_cast<int32_t>(std::lround(date_vers_jour(d)));
    etat_.session.config_modifiee = 1;
}

}  // namespace kestrel::gui

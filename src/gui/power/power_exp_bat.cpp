#include "power/power_exp_bat.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLineEdit>

#include "core/etat/etat.h"
#include "power/graphes_batterie.h"
#include "shell/dialogues.h"
#include "shell/rapport_run.h"
#include "shell/periode_run.h"
#include "shell/menu.h"
#include "shell/saisie.h"
#include "ui_power_exp_bat.h"

namespace kestrel::gui {

namespace {

// The bar runs 0..100 over the discharge, then 100..200 over the recharge.
constexpr int BARRE = 200;
constexpr qint64 PAUSE_MS = 30;  // events served at least this often

QString texte(double x) { return QString::number(x, 'g', 10); }

Verification borne(double& cible, const BorneEntree& b) {
    return reel_borne(cible, b.min, b.max, b.min_inclus, b.max_inclus);
}

}  // namespace

power_exp_bat::power_exp_bat(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent, Qt::Window), etat_(etat), dialogues_(dialogues), ui_(std::make_unique<Ui::power_exp_bat>()) {
    ui_->setupUi(this);
    pict_graphs_ = new GraphesBatterie();
    ui_->scroll_graphs->setWidget(pict_graphs_);
    ui_->statusbar->setRange(0, BARRE);
    ui_->statusbar->setValue(0);

    ui_->txt_tecl->setText(texte(entrees_.duree_eclipse));
    ui_->txt_tchde->setText(texte(entrees_.temperature));
    ui_->txt_chk->setText(texte(entrees_.k_recharge));
    ui_->txt_chvmax->setText(texte(entrees_.v_max));
    ui_->txt_chcour->setText(texte(entrees_.i_charge));
    ui_->txt_depuis->setText(texte(entrees_.puissance));
    ui_->txt_decour->setText(texte(entrees_.i_decharge));
    ui_->opt_depuis->setChecked(entrees_.puissance_constante);
    ui_->opt_decour->setChecked(!entrees_.puissance_constante);
    surveille_champs();

    connect(ui_->opt_depuis, &QRadioButton::toggled, this, [this](bool on) { entrees_.puissance_constante = on; });
    connect(ui_->cmd_saisir, &QPushButton::clicked, this, &power_exp_bat::cmd_saisir_Click);
    connect(ui_->cmd_stopcalcul, &QPushButton::clicked, this, [this] { stop_ = true; });
    connect(ui_->cmd_quit, &QPushButton::clicked, this, &QWidget::close);
    ui_->scroll_graphs->viewport()->installEventFilter(this);
}

bool power_exp_bat::eventFilter(QObject* objet, QEvent* evt) {
    // The curves fill the height of the scroll area and at least its width.
    if (objet == ui_->scroll_graphs->viewport() && evt->type() == QEvent::Resize)
        pict_graphs_->ajuste(ui_->scroll_graphs->viewport()->size());
    return QWidget::eventFilter(objet, evt);
}

power_exp_bat::~power_exp_bat() = default;

void power_exp_bat::surveille_champs() {
    // The lower limit of the temperature is the laws' own, read at each entry.
    auto temperature = [this](const QString& t) {
        BorneEntree b = BORNE_TEMPERATURE;
        b.min = etat_.pwr.bat_tmin;
        return borne(entrees_.temperature, b)(t);
    };
    champs_ = {{ui_->txt_tecl, borne(entrees_.duree_eclipse, BORNE_ECLIPSE)},
               {ui_->txt_tchde, temperature},
               {ui_->txt_chk, borne(entrees_.k_recharge, BORNE_K)},
               {ui_->txt_chvmax, borne(entrees_.v_max, BORNE_VMAX)},
               {ui_->txt_chcour, borne(entrees_.i_charge, BORNE_COURANT)},
               {ui_->txt_depuis, borne(entrees_.puissance, BORNE_PUISSANCE)},
               {ui_->txt_decour, borne(entrees_.i_decharge, BORNE_COURANT)}};
    for (const auto& [champ, verif] : champs_) {
        surveille(champ, dialogues_, verif);
        // Return moves on to the next box, as a tab would.
        connect(champ, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    }
}

bool power_exp_bat::lit_champs() {
    for (const auto& [champ, verif] : champs_) {
        const Verdict v = verif(champ->text());
        if (!v.ok) {
            dialogues_.message(this, QString::fromStdString(v.message), v.icone);
            champ->setFocus(Qt::OtherFocusReason);
            return false;
        }
    }
    return true;
}

void power_exp_bat::progression(const ProgressionBatterie& p) {
    if (pause_.isValid() && pause_.elapsed() < PAUSE_MS) return;
    pause_.start();
    const bool decharge = p.phase == PhaseBatterie::decharge;
    const long debut = decharge ? 0 : 100, fin = p.maximum;
    const double fraction = fin > debut ? double(p.valeur - debut) / double(fin - debut) : 1.0;
    const int valeur = (decharge ? 0 : 100) + static_cast<int>(std::clamp(fraction, 0.0, 1.0) * 100);
    ui_->statusbar->setValue(valeur);
    ui_->lab_status->setText(decharge ? QStringLiteral("Décharge…") : QStringLiteral("Recharge…"));
    QCoreApplication::processEvents();
}

void power_exp_bat::cmd_saisir_Click() {
    if (en_cours_ || !lit_champs()) return;
    if (const Verdict v = verifie_entrees(etat_.pwr, entrees_); !v.ok) {
        dialogues_.message(this, QString::fromStdString(v.message), v.icone);
        return;
    }
    if (!periode_acceptee(this, dialogues_, etat_)) return;
    en_cours_ = true;
    stop_ = false;
    ui_->cmd_saisir->setEnabled(false);
    ui_->cmd_stopcalcul->setEnabled(true);
    ui_->lab_dod->clear();
    ui_->lab_tch->clear();
    ui_->statusbar->setValue(0);
    pause_.invalidate();

    // The boxes stay editable while the events flow: the run keeps the values it started with.
    const EntreesBatterie entrees = entrees_;
    ResultatBatterie r = etude_batterie(
        etat_.pwr, entrees, [this](const ProgressionBatterie& p) { progression(p); }, &stop_);

    en_cours_ = false;
    ui_->cmd_saisir->setEnabled(true);
    ui_->cmd_stopcalcul->setEnabled(false);
    if (r.decharge_terminee) ui_->lab_dod->setText(QString::number(r.dod));
    if (r.termine) {
        ui_->lab_tch->setText(QString::fromStdString(texte_duree(r.temps_recharge)));
        ui_->statusbar->setValue(BARRE);
        ui_->lab_status->setText(QStringLiteral("100.0 %"));
    } else {
        ui_->lab_status->setText(r.arrete ? QStringLiteral("Interrompu") : QStringLiteral("Erreur"));
    }
    pict_graphs_->montre(std::move(r.echantillons), ui_->scroll_graphs->viewport()->size());
    rapporte_run(dialogues_, this, r.faute, r.alertes);
}

void power_exp_bat::closeEvent(QCloseEvent* evt) {
    stop_ = true;  // a running study ends at its next second
    QWidget::closeEvent(evt);
}

power_exp_bat* ouvre_power_exp_bat(menu& m) {
    auto* f = m.findChild<power_exp_bat*>(QString(), Qt::FindDirectChildrenOnly);
    if (!f) f = new power_exp_bat(m.etat(), m.dialogues(), &m);
    f->show();
    f->raise();
    f->activateWindow();
    return f;
}

}  // namespace kestrel::gui

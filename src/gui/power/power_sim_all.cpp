#include "power/power_sim_all.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDateTime>
#include <QLabel>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QStyle>
#include <QVBoxLayout>

#include "core/etat/etat.h"
#include "core/power/affichage_sim.h"
#include "core/power/geometrie_vue.h"
#include "core/power/ligne_power.h"
#include "core/power/power_step.h"
#include "core/shell/messages.h"
#include "power/images_sim.h"
#include "power/pict_visu3d.h"
#include "shell/dialogues.h"
#include "shell/rapport_run.h"
#include "shell/periode_run.h"
#include "shell/menu.h"
#include "ui_power_sim_all.h"

namespace kestrel::gui {

namespace {

QString u(const std::string& s) { return QString::fromStdString(s); }

// Whether this desktop can give the view a context of the format it asks.
bool contexte_possible() {
    QOpenGLContext ctx;
    ctx.setFormat(Pict_visu3d::SetupPixelFormat());
    if (!ctx.create()) return false;
    QOffscreenSurface surface;
    surface.setFormat(ctx.format());
    surface.create();
    return surface.isValid() && ctx.makeCurrent(&surface);
}

}  // namespace

power_sim_all::power_sim_all(Etat& etat, Dialogues& dialogues, std::function<void()> maj_principale,
                             QWidget* parent)
    : QWidget(parent, Qt::Window),
      etat_(etat),
      dialogues_(dialogues),
      maj_principale_(std::move(maj_principale)),
      ui_(std::make_unique<Ui::power_sim_all>()),
      images_bat_(ImageList_bat()) {
    ui_->setupUi(this);
    ui_->cmd_lance->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
    ui_->cmd_pause->setIcon(style()->standardIcon(QStyle::SP_MediaPause));
    ui_->cmd_stop->setIcon(style()->standardIcon(QStyle::SP_MediaStop));
    QFont gros = ui_->lab_cdate->font();
    gros.setPointSizeF(gros.pointSizeF() * 1.3);
    gros.setBold(true);
    for (QLabel* l : {ui_->lab_cdate, ui_->lab_chour, ui_->lab_voltmeter, ui_->lab_ammeter,
                      ui_->lab_chargemeter, ui_->lab_chtime, ui_->lab_distime, ui_->lab_state})
        l->setFont(gros);
    ui_->lab_state->setMinimumWidth(ui_->lab_state->fontMetrics().horizontalAdvance(QStringLiteral("Décharge...")) + 8);
    ui_->pict_bat->setPixmap(images_bat_[0]);
    ui_->img_pan_eclipse->setPixmap(image_eclipse(false));
    construit_vue();

    connect(ui_->cmd_lance, &QPushButton::clicked, this, &power_sim_all::cmd_lance_Click);
    connect(ui_->cmd_pause, &QPushButton::clicked, this, &power_sim_all::cmd_pause_Click);
    connect(ui_->cmd_stop, &QPushButton::clicked, this, &power_sim_all::cmd_stop_Click);
    connect(ui_->cmd_quit, &QPushButton::clicked, this, &power_sim_all::cmd_quit_Click);

    Timer_sim_pwr_ = new QTimer(this);
    Timer_sim_pwr_->setObjectName(QStringLiteral("Timer_sim_pwr"));
    Timer_sim_pwr_->setInterval(intervalle_ms);
    connect(Timer_sim_pwr_, &QTimer::timeout, this, &power_sim_all::Timer_sim_pwr_Timer);
    timer_icon_bat_ = new QTimer(this);
    timer_icon_bat_->setObjectName(QStringLiteral("timer_icon_bat"));
    timer_icon_bat_->setInterval(intervalle_bat_ms);
    connect(timer_icon_bat_, &QTimer::timeout, this, &power_sim_all::timer_icon_bat_Timer);

    sim_.sim_state = SIM_ARRET;
}

power_sim_all::~power_sim_all() = default;

void power_sim_all::construit_vue() {
    auto* l = new QVBoxLayout(ui_->zone_vue);
    l->setContentsMargins(0, 0, 0, 0);
    if (contexte_possible()) {
        vue_ = new Pict_visu3d(QString::fromStdString(etat_.session.dossier_depart), ui_->zone_vue);
        l->addWidget(vue_);
        return;
    }
    // No OpenGL here: the simulation runs on, the view is replaced by a notice.
    auto* avis = new QLabel(QStringLiteral("Vue 3D indisponible : aucun contexte OpenGL n'a pu être créé."),
                            ui_->zone_vue);
    avis->setObjectName(QStringLiteral("lab_sans_3d"));
    avis->setAlignment(Qt::AlignCenter);
    avis->setWordWrap(true);
    l->addWidget(avis);
}

void power_sim_all::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    if (e->spontaneous()) return;
    sim_.sim_state = SIM_ARRET;
    sim_.ouverture = true;
    Timer_sim_pwr_->start();
    timer_icon_bat_->start();
}

void power_sim_all::hideEvent(QHideEvent* e) {
    QWidget::hideEvent(e);
    if (e->spontaneous()) return;
    Timer_sim_pwr_->stop();
    timer_icon_bat_->stop();
}

void power_sim_all::closeEvent(QCloseEvent* e) {
    sim_.sim_state = SIM_ARRET;
    QWidget::closeEvent(e);
}

void power_sim_all::cmd_lance_Click() {
    if (!depart_autorise(etat_)) {
        dialogues_.message(this, QString::fromUtf8(msg::date_cellules), Icone::avertissement);
        return;
    }
    if (!periode_acceptee(this, dialogues_, etat_)) return;
    sim_.sim_state = SIM_MARCHE;
}

void power_sim_all::cmd_pause_Click() { sim_.sim_state = SIM_PAUSE; }
void power_sim_all::cmd_stop_Click() { sim_.sim_state = SIM_ARRET; }

void power_sim_all::cmd_quit_Click() {
    sim_.sim_state = SIM_ARRET;
    close();
}

void power_sim_all::Timer_sim_pwr_Timer() {
    if (dans_tick_) return;
    dans_tick_ = true;
    // A click lands here, between two ticks: the state word is the only link.
    QCoreApplication::processEvents();
    const double maintenant = jour_depuis_unix(QDateTime::currentMSecsSinceEpoch() / 1000.0);
    const DecisionTick d = tick_power(etat_, sim_, maintenant, intervalle_ms);
    if (d.pas || d.reinit) {
        affiche();
        signale_fautes();
    }
    if (d.reinit && maj_principale_) maj_principale_();
    if (vue_) {
        // While stopped or paused the record still holds the geometry of the last step.
        const double date = etat_.session.j_courant + (d.geometrie ? intervalle_ms / 1000.0 / 86400.0 : 0.0);
        vue_->set_geometrie(geometrie_vue(etat_, date), configuration(etat_.pwr) == ConfigPower::panneaux_externes,
                            etat_.pwr.pan_angle);
        vue_->update();
    }
    dans_tick_ = false;
}

void power_sim_all::signale_fautes() {
    LignePower ligne;
    if (!etat_.faute) ligne_power_finie(etat_, etat_.session.j_courant, ligne);
    // Paused, not stopped: a stop would reset and step again into the same fault.
    if (etat_.faute) sim_.sim_state = SIM_PAUSE;
    // each is shown once: the channel is emptied before the boxes open
    const Erreur faute = etat_.faute;
    const Alertes alertes = etat_.alertes;
    vide_canal(etat_);
    rapporte_run(dialogues_, this, faute, alertes);
}

void power_sim_all::affiche() {
    const AffichageSim a = affichage_sim(etat_);
    ui_->synoptique->affiche(a);
    ui_->lab_voltmeter->setText(u(a.voltmetre));
    ui_->lab_ammeter->setText(u(a.amperemetre));
    ui_->lab_chargemeter->setText(u(a.charge));
    ui_->pict_chargemeter->setValue(a.charge_pct);
    ui_->lab_chtime->setText(u(a.chtime));
    ui_->lab_distime->setText(u(a.distime));
    ui_->lab_cdate->setText(u(a.cdate));
    ui_->lab_chour->setText(u(a.chour));
    ui_->img_pan_eclipse->setPixmap(image_eclipse(a.eclipse));
    ui_->img_pan_eclipse->setToolTip(a.eclipse ? QStringLiteral("Eclipse") : QStringLiteral("Soleil"));
    etat_bat_ = a.etat_bat;
}

void power_sim_all::timer_icon_bat_Timer() {
    ui_->lab_state->setText(QString::fromUtf8(mot_etat_batterie(etat_bat_)));
    // Charging fills the picture by one level every other tick; otherwise the
    // picture of the present charge.
    const int image = image_batterie(etat_.pwr.bat_soc);
    animation_ = (animation_ + 1) % 2;
    const int montre = etat_bat_ == 7 && animation_ == 1 ? std::max(image - 1, 0) : image;
    ui_->pict_bat->setPixmap(images_bat_[static_cast<std::size_t>(montre)]);
    ui_->pict_bat->setProperty("image", montre);
}

void ouvre_power_sim_all(menu& m) {
    auto* f = m.findChild<power_sim_all*>();
    if (!f) f = new power_sim_all(m.etat(), m.dialogues(), [&m] { m.affiche_periode(); }, &m);
    f->show();
    f->raise();
    f->activateWindow();
}

}  // namespace kestrel::gui

#include "orbit/orbito_conf.h"

#include <QTabWidget>
#include <QVBoxLayout>

#include "orbit/orbito_attitude.h"
#include "orbit/orbito_envir.h"
#include "orbit/orbito_orbite.h"
#include "shell/menu.h"

namespace kestrel::gui {

orbito_conf::orbito_conf(Etat& etat, Dialogues& dialogues, QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("orbito_conf"));
    setWindowTitle(QStringLiteral("Caractéristiques orbitales"));
    auto* l = new QVBoxLayout(this);
    Onglet_orbite_ = new QTabWidget(this);
    Onglet_orbite_->setObjectName(QStringLiteral("Onglet_orbite"));
    orbite_ = new orbito_orbite(etat, dialogues, Onglet_orbite_);
    attitude_ = new orbito_attitude(etat, dialogues, Onglet_orbite_);
    envir_ = new orbito_envir(etat, dialogues, Onglet_orbite_);
    Onglet_orbite_->addTab(orbite_, QStringLiteral("Orbite"));
    Onglet_orbite_->addTab(attitude_, QStringLiteral("Attitude"));
    Onglet_orbite_->addTab(envir_, QStringLiteral("Environnement"));
    l->addWidget(Onglet_orbite_);

    connect(orbite_, &orbito_orbite::orb_quit_Click, this, &QWidget::close);
    // The inertial angles depend on where the orbit puts the satellite at its epoch.
    connect(orbite_, &orbito_orbite::orbite_modifiee, attitude_, &orbito_attitude::charge);
}

void orbito_conf::Form_Load() {
    orbite_->affiche(false);
    attitude_->charge();
    envir_->charge();
}

void orbito_conf::montre(Onglet onglet) {
    Onglet_orbite_->setCurrentIndex(onglet);
    show();
    raise();
    activateWindow();
}

orbito_conf* ouvre_orbito_conf(menu& m, orbito_conf::Onglet onglet) {
    auto* f = m.findChild<orbito_conf*>(QString(), Qt::FindDirectChildrenOnly);
    if (!f) {
        f = new orbito_conf(m.etat(), m.dialogues(), &m);
        m.registre().inscrit(f, QString::fromUtf8(tag_energie), [f] { f->Form_Load(); });
    }
    f->montre(onglet);
    return f;
}

}  // namespace kestrel::gui

#include "project/power_conf.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <memory>

#include "project/conf_batterie.h"
#include "project/conf_cellules.h"
#include "project/conf_gestion.h"
#include "project/conf_panneaux.h"
#include "project/conf_thermique.h"
#include "shell/menu.h"

namespace kestrel::gui {

power_conf::power_conf(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent, Qt::Window),
      panneaux_(new conf_panneaux(etat, dialogues)),
      cellules_(new conf_cellules(etat, dialogues)),
      thermique_(new conf_thermique(etat, dialogues)),
      batterie_(new conf_batterie(etat, dialogues)),
      gestion_(new conf_gestion(etat, dialogues)) {
    setObjectName(QStringLiteral("power_conf"));
    setWindowTitle(QStringLiteral("Définition système énergie"));
    auto* onglets = new QTabWidget;
    onglets->setObjectName(QStringLiteral("Onglet_power"));
    onglets->addTab(panneaux_, QStringLiteral("Panneaux"));
    onglets->addTab(cellules_, QStringLiteral("Cellules"));
    onglets->addTab(thermique_, QStringLiteral("Thermique"));
    onglets->addTab(batterie_, QStringLiteral("Batteries"));
    onglets->addTab(gestion_, QStringLiteral("Gestion"));
    auto* quitter = new QPushButton(QStringLiteral("Quitter"));
    quitter->setObjectName(QStringLiteral("cmd_quit"));
    auto* bas = new QHBoxLayout;
    bas->addStretch();
    bas->addWidget(quitter);
    auto* l = new QVBoxLayout(this);
    l->addWidget(onglets);
    l->addLayout(bas);

    connect(quitter, &QPushButton::clicked, this, &QWidget::close);
    connect(onglets, &QTabWidget::currentChanged, this, &power_conf::Onglet_power_Click);
    // The battery catalogue also sets two management fields.
    connect(batterie_, &page_conf::modifie, gestion_, [this] { gestion_->charge(); });
    update_powerconf();
}

void power_conf::update_powerconf() {
    for (page_conf* p : {static_cast<page_conf*>(panneaux_), static_cast<page_conf*>(cellules_),
                         static_cast<page_conf*>(thermique_), static_cast<page_conf*>(batterie_),
                         static_cast<page_conf*>(gestion_)})
        p->charge();
}

void power_conf::Onglet_power_Click(int onglet) {
    if (onglet == thermique) thermique_->montre_cadre();
}

void branche_power_conf(menu& m) {
    // Created on first use, child of the main window; closing only hides it.
    auto fenetre = std::make_shared<QPointer<power_conf>>();
    auto ouvre = [&m, fenetre](int onglet) {
        if (!*fenetre) {
            *fenetre = new power_conf(m.etat(), m.dialogues(), &m);
            m.registre().inscrit(*fenetre, QString::fromLatin1(tag_energie),
                                 [f = QPointer<power_conf>(*fenetre)] {
                                     if (f) f->Form_Load();
                                 });
        }
        power_conf* f = *fenetre;
        f->findChild<QTabWidget*>(QStringLiteral("Onglet_power"))->setCurrentIndex(onglet);
        f->show();
        f->raise();
        f->activateWindow();
    };
    const std::pair<const char*, int> entrees[] = {{"mn_conf_pow_pan", power_conf::panneaux},
                                                   {"mn_conf_pow_perf", power_conf::cellules},
                                                   {"mn_conf_pow_prop", power_conf::thermique},
                                                   {"mn_conf_pow_bat", power_conf::batteries},
                                                   {"mn_conf_pow_oper", power_conf::gestion}};
    for (const auto& [entree, onglet] : entrees)
        m.branche(QString::fromLatin1(entree), [ouvre, onglet = onglet] { ouvre(onglet); });
}

}  // namespace kestrel::gui

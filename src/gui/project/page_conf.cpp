#include "project/page_conf.h"

#include <QLineEdit>

#include "core/etat/etat.h"
#include "core/project/saisie_energie.h"
#include "shell/saisie.h"

namespace kestrel::gui {

page_conf::page_conf(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent), etat_(etat), dialogues_(dialogues) {}

void page_conf::lie(const QString& nom, std::function<int()> indice) {
    const QString champ = nom.section(QLatin1Char('#'), 0, 0);  // "bat_txt_0#3": box bat_txt_0_3
    const QString boite = nom.contains(QLatin1Char('#')) ? champ + QLatin1Char('_') + nom.section('#', 1) : nom;
    auto* edit = findChild<QLineEdit*>(boite);
    if (!edit) qFatal("power_conf: no box %s", qPrintable(boite));
    if (!indice) indice = [] { return 0; };
    liens_.push_back({edit, champ, indice});
    surveille(edit, dialogues_, [this, champ, indice](const QString& texte) {
        const std::string c = champ.toStdString();
        const double avant = valeur_energie(etat_.pwr, c, indice());
        const Verdict v = saisie_energie(etat_.pwr, c, indice(), texte.toStdString());
        if (v.ok) {
            // a box left as it was (another tab clicked) changes nothing
            if (valeur_energie(etat_.pwr, c, indice()) != avant) etat_.session.config_modifiee = 1;
            affiche_champs();
            apres_saisie(champ);
            emit modifie(champ);
        }
        return v;
    });
}

void page_conf::lie_ligne(const QString& nom, int n) {
    for (int k = 0; k < n; ++k) lie(nom + QLatin1Char('#') + QString::number(k), [k] { return k; });
}

void page_conf::affiche_champs() {
    for (const Lien& l : liens_)
        l.champ->setText(QString::fromStdString(texte_energie(etat_.pwr, l.nom.toStdString(), l.indice())));
}

}  // namespace kestrel::gui

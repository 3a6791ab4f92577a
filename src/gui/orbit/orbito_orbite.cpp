#include "orbit/orbito_orbite.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>

#include <fmt/format.h>

#include "core/etat/etat.h"
#include "core/orbit/elements_orbite.h"
#include "core/project/chemins.h"
#include "core/project/fichiers_binaires.h"
#include "core/project/saisie_orbite.h"
#include "core/project/tle.h"
#include "core/shell/calendrier.h"
#include "core/shell/format_image.h"
#include "core/shell/lecture_fichier.h"
#include "orbit/orbito_commun.h"
#include "shell/dialogues.h"
#include "ui_orbito_orbite.h"

namespace kestrel::gui {

namespace {
// The two filters differ on purpose: the save one names the file's origin.
constexpr const char* filtre_enre = "Orbites Meridan (*.orb)|*.orb";
constexpr const char* filtre_ouvr = "Orbites (*.orb)|*.orb";
constexpr const char* titre_enre = "Enregistrer l'orbite";
constexpr const char* titre_ouvr = "Ouvrir une orbite";
constexpr const char* filtre_tle = "Eléments TLE|*.tle *.txt|All Files (*.*)|*.*";
constexpr const char* titre_tle = "Importer un TLE";
}  // namespace

orbito_orbite::orbito_orbite(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::orbito_orbite>()), etat_(etat), dialogues_(dialogues) {
    ui_->setupUi(this);
    // No range message here: borne corrects silently. Only a text that is no
    // number at all is refused.
    controles_ = branche_cases(this, dialogues_, cases_orbite, [this](std::size_t i, double x) {
        saisit_orbite(etat_.orbite, i, x);
        affiche(true);
        emit orbite_modifiee();
    });
    connect(ui_->orb_enre, &QPushButton::clicked, this, [this] { orb_enre_Click(); });
    connect(ui_->orb_ouvr, &QPushButton::clicked, this, [this] { orb_ouvr_Click(); });
    auto* tle = new QMenu(ui_->orb_tle);
    QAction* depuis_fichier = tle->addAction(QStringLiteral("Depuis un fichier…"));
    depuis_fichier->setObjectName(QStringLiteral("orb_tle_fichier"));
    QAction* depuis_presse_papiers = tle->addAction(QStringLiteral("Depuis le presse-papiers"));
    depuis_presse_papiers->setObjectName(QStringLiteral("orb_tle_presse_papiers"));
    ui_->orb_tle->setMenu(tle);
    connect(depuis_fichier, &QAction::triggered, this, [this] { importe_tle_fichier(); });
    connect(depuis_presse_papiers, &QAction::triggered, this, [this] { importe_tle_presse_papiers(); });
    connect(ui_->orb_quit, &QPushButton::clicked, this, &orbito_orbite::orb_quit_Click);
    affiche(false);
}

orbito_orbite::~orbito_orbite() = default;

void orbito_orbite::affiche(bool apres_saisie) {
    const Orbite& o = etat_.orbite;
    for (std::size_t i = 0; i < cases_orbite.size(); ++i) {
        auto* champ = findChild<QLineEdit*>(QString::fromUtf8(cases_orbite[i].nom));
        champ->setText(texte_image(valeur_orbite(o, i), cases_orbite[i].image));
    }
    ui_->lab_apogee->setText(texte_image(altitude_apogee(o), "####0.00000"));
    ui_->lab_perigee->setText(texte_image(altitude_perigee(o), "####0.00000"));
    ui_->lab_periode->setText(QString::fromStdString(texte_periode(o)));
    Date d;
    jour_vers_date(epoque_orbite(o), d);
    ui_->lab_epoque->setText(QString::fromStdString(format_date(d, "dd/mm/yyyy hh:mm:ss")));
    if (apres_saisie) etat_.session.config_modifiee = 1;
}

bool orbito_orbite::orb_enre_Click() {
    const DemandeFichier d{QString::fromUtf8(titre_enre), filtre_qt(QString::fromUtf8(filtre_enre)),
                           QString::fromStdString(etat_.session.dossier_depart),
                           ui_->orbite_nom->text().trimmed() + QStringLiteral(".orb"), QStringLiteral("orb")};
    const QString chemin = dialogues_.enregistrer(this, d);
    if (chemin.isEmpty()) return false;
    if (const Erreur e = sauve_orbite(etat_, chemin.toStdString())) {
        dialogues_.message(this, QString::fromStdString(texte_erreur(e)), Icone::critique);
        return false;
    }
    ui_->orbite_nom->setText(QString::fromStdString(extrait_nom_fichier(chemin.toStdString())));
    return true;
}

bool orbito_orbite::orb_ouvr_Click() {
    const DemandeFichier d{QString::fromUtf8(titre_ouvr), filtre_qt(QString::fromUtf8(filtre_ouvr)),
                           QString::fromStdString(etat_.session.dossier_depart), QStringLiteral("*.orb"),
                           QString()};
    const QString chemin = dialogues_.ouvrir(this, d);
    // A file that cannot be read ends the command as a cancel does; a folder,
    // a device or a pipe is refused with its reason.
    if (chemin.isEmpty()) return false;
    if (const Erreur e = charge_orbite(etat_, chemin.toStdString())) {
        if (refus_fichier(e)) dialogues_.message(this, QString::fromStdString(texte_erreur(e)), Icone::critique);
        return false;
    }
    ui_->orbite_nom->setText(QString::fromStdString(extrait_nom_fichier(chemin.toStdString())));
    affiche(true);
    emit orbite_modifiee();
    return true;
}

bool orbito_orbite::importe_tle(const QString& texte) {
    Orbite lu = etat_.orbite;
    std::string nom;
    if (const FauteTle f = lit_tle(texte.toStdString(), lu, nom)) {
        dialogues_.message(this, QString::fromStdString(texte_faute_tle(f)), Icone::avertissement);
        return false;
    }
    // The year and day before the mean motion, which sets the axis last.
    for (const std::size_t i : {inclinaison, ascension, excentricite, argument, anomalie, an, jour, moy_mvt}) {
        auto* champ = findChild<QLineEdit*>(QString::fromUtf8(cases_orbite[i].nom));
        champ->setText(QString::fromStdString(fmt::format("{}", valeur_orbite(lu, i))));
        controles_[i]->verifie();
    }
    etat_.orbite.nom = lu.nom;
    if (!nom.empty()) ui_->orbite_nom->setText(QString::fromStdString(nom));
    return true;
}

bool orbito_orbite::importe_tle_fichier() {
    const DemandeFichier d{QString::fromUtf8(titre_tle), filtre_qt(QString::fromUtf8(filtre_tle)),
                           QString::fromStdString(etat_.session.dossier_depart), QString(), QString()};
    const QString chemin = dialogues_.ouvrir(this, d);
    if (chemin.isEmpty()) return false;
    std::string texte;
    if (const Erreur e = lit_fichier_projet(chemin.toStdString(), texte)) {
        const QString raison = QString::fromStdString(texte_erreur(e));
        dialogues_.message(this, QStringLiteral("Fichier « %1 » : %2").arg(chemin, raison), Icone::critique);
        return false;
    }
    return importe_tle(QString::fromStdString(texte));
}

bool orbito_orbite::importe_tle_presse_papiers() { return importe_tle(QApplication::clipboard()->text()); }

}  // namespace kestrel::gui

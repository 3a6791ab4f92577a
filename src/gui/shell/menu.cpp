#include "shell/menu.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWidgetAction>
#include <array>

#include "core/etat/etat.h"
#include "core/project/energie.h"
#include "core/project/fichiers_binaires.h"
#include "core/shell/calendrier.h"
#include "core/shell/dossiers.h"
#include "core/shell/messages.h"
#include "shell/dialogues.h"
#include "shell/fenetres.h"
#include "shell/icones.h"

namespace kestrel::gui {

namespace {

// --- texts of the project dialogs -------------------------------------------------
constexpr const char* titre_ouvrir_pwr = "Ouvrir un fichier configuration du système énergie";
constexpr const char* titre_sauver_pwr = "Enregistrer la configuration du système énergie";
constexpr const char* filtre_pwr = "Fichiers  Configuration (*.pwr)|*.pwr|All Files (*.*)|*.*";
constexpr const char* titre_ouvrir_att =
    "Ouvrir un fichier de configuration du contrôle d'attitude";
constexpr const char* titre_sauver_att =
    "Enregistrer le fichier de configuration du contrôle d'attitude";
constexpr const char* filtre_att = "Fichiers  Configuration (*.att)|*.att|All Files (*.*)|*.*";

// Tooltip of an entry whose window is not part of the program yet.
constexpr const char* indisponible = "Fenêtre non disponible dans cette version";

// --- menu tree ---------------------------------------------------------------------
enum class Genre { rubrique, sous_menu, commande, libelle, separateur };

struct EntreeMenu {
    int niveau;  // 0 heading of the bar, 1 in a heading, 2 in a sub-menu
    Genre genre;
    const char* nom;
    const char* texte;
};

constexpr EntreeMenu arbre[] = {
    {0, Genre::rubrique, "mn_fichier", "&Fichier"},
    {1, Genre::libelle, "mn_fic_pow", "Energie :"},
    {1, Genre::commande, "mn_fichier_ouvrir", "  Ouvrir un projet"},
    {1, Genre::commande, "mn_fichier_enreg", "  Enregistrer le projet"},
    {1, Genre::commande, "mn_fichier_enregsous", "  Enregistrer sous..."},
    {1, Genre::separateur, "", ""},
    {1, Genre::libelle, "mn_fic_att", "Contrôle d'attitude :"},
    {1, Genre::commande, "mn_attfich_ouvrir", "  Ouvrir un projet"},
    {1, Genre::commande, "mn_attfich_enreg", "  Enregistrer le projet"},
    {1, Genre::commande, "mn_attfich_enregsous", "  Enregistrer sous..."},
    {1, Genre::separateur, "", ""},
    {1, Genre::commande, "mn_fichier_quit", "Quitter"},
    {0, Genre::rubrique, "mn_pow", "Sytème énergie"},
    {1, Genre::sous_menu, "mn_pow_conf", "Configuration"},
    {2, Genre::commande, "mn_conf_pow_pan", "Géométrie des panneaux"},
    {2, Genre::commande, "mn_conf_pow_perf", "Performance des cellules"},
    {2, Genre::commande, "mn_conf_pow_prop", "Définition du modèle thermique"},
    {2, Genre::commande, "mn_conf_pow_bat", "Propriétés des batteries"},
    {2, Genre::commande, "mn_conf_pow_oper", "Gestion du sous-système"},
    {2, Genre::commande, "mn_conf_pow_rad", "Environnement thermique"},
    {1, Genre::sous_menu, "mn_pow_sim", "Simulation"},
    {2, Genre::commande, "mn_sim_pow_com", "Sous-système complet"},
    {2, Genre::commande, "mn_sim_pow_gs", "Générateurs solaires"},
    {1, Genre::sous_menu, "mn_pow_exp_data", "Exploitation"},
    {2, Genre::commande, "mn_exp_pow_bat", "Charge/Décharge des batteries"},
    {2, Genre::commande, "mn_exp_pow_data", "Exploitation de données"},
    {0, Genre::rubrique, "mn_att", "Contrôle d'attitude"},
    {1, Genre::sous_menu, "mn_att_conf", "Configuration"},
    {2, Genre::commande, "mn_conf_att_masses", "Masses/Géométrie"},
    {2, Genre::commande, "mn_conf_att_prop", "Propriétés satellite"},
    {2, Genre::commande, "mn_conf_att_act", "Actionneurs"},
    {2, Genre::commande, "mn_conf_att_gest", "Gestion du sous-système"},
    {1, Genre::sous_menu, "mn_att_sim", "Simulation"},
    {2, Genre::commande, "mn_sim_att_com", "Sous-système complet"},
    {1, Genre::sous_menu, "mn_att_exp", "Exploitation"},
    {2, Genre::commande, "mn_exp_att_data", "Exploitation de données"},
    {0, Genre::rubrique, "mn_orbito", "Orbitographie/Environnement"},
    {1, Genre::commande, "mn_sim_car", "Orbite/Attitude"},
};

// --- toolbars: each key forwards to one menu entry --------------------------------
struct Touche {
    const char* barre;
    const char* cle;
    const char* entree;
    const char* bulle;  // tooltip
};

constexpr Touche touches[] = {
    {"Toolbar_orb", "orbite", "mn_sim_car", "Définir l'orbite"},
    {"Toolbar_orb", "envir", "mn_conf_pow_rad", "Définir l'environnement"},
    {"Toolbar_power", "quit", "mn_fichier_quit", "Quitter"},
    {"Toolbar_power", "open", "mn_fichier_ouvrir", "Ouvrir un fichier énergie"},
    {"Toolbar_power", "save", "mn_fichier_enreg", "Enregistrer le projet énergie"},
    {"Toolbar_power", "cell", "mn_conf_pow_perf", "Performance des cellules"},
    {"Toolbar_power", "therm", "mn_conf_pow_prop", "Définition du modèle thermique"},
    {"Toolbar_power", "pan", "mn_conf_pow_pan", "Géométrie des panneaux"},
    {"Toolbar_power", "bat", "mn_conf_pow_bat", "Propriétés des batteries"},
    {"Toolbar_power", "oper", "mn_conf_pow_oper", "Gestion du sous-système énergie"},
    {"Toolbar_power", "rad", "mn_conf_pow_rad", "Environnement thermique"},
    {"Toolbar_power", "orb", "mn_sim_car", "Orbite/Attitude"},
    {"Toolbar_power", "sim_pow", "mn_sim_pow_gs", "Générateurs solaires"},
    {"Toolbar_power", "sim_all", "mn_sim_pow_com", "Simulation du sous-système complet"},
    {"Toolbar_power", "exp_bat", "mn_exp_pow_bat", "Charge/Décharge des batteries"},
    {"Toolbar_power", "exp_data", "mn_exp_pow_data", "Exploitation de données"},
    {"Toolbar_att", "open", "mn_attfich_ouvrir", "Ouvrir un projet pour le sous-système attitude"},
    {"Toolbar_att", "save", "mn_attfich_enreg", "Enregistrer le projet du sous-système attitude"},
    {"Toolbar_att", "masses", "mn_conf_att_masses", "Masse/Géométrie"},
    {"Toolbar_att", "proprietes", "mn_conf_att_prop", "Propriétés satellite"},
    {"Toolbar_att", "actuators", "mn_conf_att_act", "Définir les actionneurs"},
    {"Toolbar_att", "gestatt", "mn_conf_att_gest", "Gestion du sous-système"},
    {"Toolbar_att", "simulation", "mn_sim_att_com", "Simulation"},
    {"Toolbar_att", "expatt", "mn_exp_att_data", "Exploitation des données"},
};

// --- simulation step --------------------------------------------------------------
constexpr const char* pas_liste[] = {"1 s",    "2 s",    "5 s",    "10 s",   "30 s",
                                     "1 min",  "2 min",  "5 min",  "10 min", "15 min",
                                     "30 min", "45 min", "60 min"};
// Steps that a project brings back into the list, s; the first is item 3 ("10 s").
constexpr std::array<int, 10> pas_restaures{10, 30, 60, 120, 300, 600, 900, 1800, 2700, 3600};
constexpr int premier_restaure = 3;

// The number at the start of the text; items ending in "n" are minutes.
int32_t pas_du_texte(const QString& texte) {
    int32_t n = 0;
    for (const QChar c : texte) {
        if (!c.isDigit()) break;
        n = n * 10 + c.digitValue();
    }
    return texte.endsWith(QLatin1Char('n')) ? n * 60 : n;
}

// The pickers show UTC so that no daylight-saving gap hides a date.
QDateTime vers_picker(double j) {
    Date d;
    jour_vers_date(j, d);
    return QDateTime(QDate(d.an, d.mois, d.jour), QTime(d.heure, d.minute, d.seconde), Qt::UTC);
}

double depuis_picker(const QDateTimeEdit* p) {
    const QDateTime t = p->dateTime();
    Date d;
    d.an = static_cast<int16_t>(t.date().year());
    d.mois = static_cast<int16_t>(t.date().month());
    d.jour = static_cast<int16_t>(t.date().day());
    d.heure = static_cast<int16_t>(t.time().hour());
    d.minute = static_cast<int16_t>(t.time().minute());
    d.seconde = static_cast<int16_t>(t.time().second());
    return date_vers_jour(d);
}

// The project's name in titles and dialogs: the file's own name (no folders)
// less its last four characters, which a project file's extension and its
// point fill; a name of four characters or fewer leaves nothing.
QString nom_projet(const QString& chemin) {
    QString nom = QFileInfo(chemin).fileName();
    nom.chop(4);
    return nom;
}

QString u(const char* texte) { return QString::fromUtf8(texte); }

}  // namespace

// --- load -------------------------------------------------------------------------

menu::menu(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : QMainWindow(parent), etat_(etat), dialogues_(dialogues) {
    setObjectName(QStringLiteral("menu"));
    setWindowTitle(u("Energie (sans_nom)"));

    // A new session: every record at its defaults, the default period from
    // the orbit epoch to one orbital period later.
    etat_ = Etat();
    // The data stand beside the program in a build tree, in share/kestrel once installed.
    etat_.session.dossier_depart =
        dossier_donnees(QCoreApplication::applicationDirPath().toStdString());

    construit_menus();
    construit_barres();
    construit_simulation();
    affiche_periode();

    branche(QStringLiteral("mn_fichier_ouvrir"), [this] { ouvre_energie(); });
    branche(QStringLiteral("mn_fichier_enreg"), [this] { enregistre_energie(); });
    branche(QStringLiteral("mn_fichier_enregsous"), [this] { enregistre_energie_sous(); });
    branche(QStringLiteral("mn_attfich_ouvrir"), [this] { ouvre_attitude(); });
    branche(QStringLiteral("mn_attfich_enreg"), [this] { enregistre_attitude(); });
    branche(QStringLiteral("mn_attfich_enregsous"), [this] { enregistre_attitude_sous(); });
    branche(QStringLiteral("mn_fichier_quit"), [this] { close(); });
    branche_fenetres(*this);
}

void menu::construit_menus() {
    QMenu* rubrique = nullptr;
    QMenu* sous_menu = nullptr;
    for (const EntreeMenu& e : arbre) {
        QMenu* cible = e.niveau == 2 ? sous_menu : rubrique;
        switch (e.genre) {
            case Genre::rubrique:
                rubrique = menuBar()->addMenu(u(e.texte));
                rubrique->setObjectName(u(e.nom));
                rubrique->setToolTipsVisible(true);
                break;
            case Genre::sous_menu:
                sous_menu = rubrique->addMenu(u(e.texte));
                sous_menu->setObjectName(u(e.nom));
                sous_menu->setToolTipsVisible(true);
                break;
            case Genre::separateur:
                cible->addSeparator();
                break;
            case Genre::libelle: {
                // A label entry never runs anything, yet reads as the heading
                // of the entries below it, not as a greyed-out command.
                auto* a = new QWidgetAction(cible);
                a->setObjectName(u(e.nom));
                a->setText(u(e.texte));
                auto* titre = new QLabel(u(e.texte));
                QFont f = titre->font();
                f.setBold(true);
                titre->setFont(f);
                titre->setContentsMargins(8, 4, 8, 2);
                QPalette pal = titre->palette();
                pal.setColor(QPalette::Disabled, QPalette::WindowText,
                             pal.color(QPalette::Active, QPalette::WindowText));
                titre->setPalette(pal);
                a->setDefaultWidget(titre);
                a->setEnabled(false);
                cible->addAction(a);
                break;
            }
            case Genre::commande: {
                QAction* a = cible->addAction(u(e.texte));
                a->setObjectName(u(e.nom));
                // A command waits for branche(); until then the entry says why it is off.
                a->setEnabled(false);
                a->setToolTip(u(indisponible));
                break;
            }
        }
    }
}

void menu::construit_barres() {
    auto* central = new QWidget(this);
    auto* colonne = new QVBoxLayout(central);
    auto* ligne = new QHBoxLayout();
    colonne->addLayout(ligne);

    auto groupe = [&](const char* nom_cadre, const char* titre, const char* nom_barre) {
        auto* cadre = new QGroupBox(u(titre), central);
        cadre->setObjectName(u(nom_cadre));
        auto* l = new QHBoxLayout(cadre);
        l->setContentsMargins(4, 2, 4, 2);
        auto* barre = new QToolBar(cadre);
        barre->setObjectName(u(nom_barre));
        barre->setIconSize(QSize(24, 24));
        barre->setMovable(false);
        barre->setFloatable(false);
        l->addWidget(barre);
        ligne->addWidget(cadre);
        connect(barre, &QToolBar::actionTriggered, this, [this, barre](QAction* a) {
            Toolbar_ButtonClick(barre->objectName(), a->objectName());
        });
        return cadre;
    };
    groupe("fra_orbito", "Orbito", "Toolbar_orb");
    fra_energie_ = groupe("fra_energie", "Energie", "Toolbar_power");
    fra_attitude_ = groupe("fra_attitude", "Contrôle d'attitude", "Toolbar_att");
    ligne->addStretch(1);

    for (const Touche& t : touches) {
        auto* barre = central->findChild<QToolBar*>(u(t.barre));
        // The key's action is a child of its own toolbar: "open" and "save"
        // exist in two toolbars.
        auto* a = new QAction(icone_cle(u(t.cle)), u(t.bulle), barre);
        a->setObjectName(u(t.cle));
        a->setToolTip(u(t.bulle));
        a->setEnabled(false);
        barre->addAction(a);
    }
    // Every key stays in view: no overflow arrow hiding the last ones.
    for (auto* barre : central->findChildren<QToolBar*>())
        barre->setMinimumWidth(barre->sizeHint().width());
    setCentralWidget(central);
}

void menu::construit_simulation() {
    auto* colonne = static_cast<QVBoxLayout*>(centralWidget()->layout());
    auto* cadre = new QGroupBox(u("Contrôle simulation"), centralWidget());
    cadre->setObjectName(QStringLiteral("fraSimulation"));
    auto* l = new QHBoxLayout(cadre);

    chk_RealTime_ = new QCheckBox(u("Temps réel"), cadre);
    chk_RealTime_->setObjectName(QStringLiteral("chk_RealTime"));
    chk_RealTime_->setToolTip(QStringLiteral("Real time mode"));

    lab_scale_ = new QLabel(u("Pas :"), cadre);
    lab_scale_->setObjectName(QStringLiteral("lab_scale"));
    cmb_pas_ = new QComboBox(cadre);
    cmb_pas_->setObjectName(QStringLiteral("cmb_pas"));
    for (const char* p : pas_liste) cmb_pas_->addItem(u(p));
    lab_scale_->setBuddy(cmb_pas_);

    auto picker = [&](const char* nom) {
        auto* p = new QDateTimeEdit(cadre);
        p->setObjectName(u(nom));
        p->setTimeSpec(Qt::UTC);
        p->setDisplayFormat(QStringLiteral("dd/MM/yyyy HH:mm:ss"));
        p->setCalendarPopup(true);
        // The program's calendar has no century rule: it agrees with the
        // picker's only between 1901 and 2099.
        p->setDateTimeRange(QDateTime(QDate(1901, 1, 1), QTime(0, 0), Qt::UTC),
                            QDateTime(QDate(2099, 12, 31), QTime(23, 59, 59), Qt::UTC));
        return p;
    };
    txt_date_debut_ = picker("txt_date_debut");
    txt_date_fin_ = picker("txt_date_fin");
    auto* lbl_debut = new QLabel(u("Début :"), cadre);
    lbl_debut->setObjectName(QStringLiteral("lbl_debut"));
    auto* lbl_fin = new QLabel(u("Fin :"), cadre);
    lbl_fin->setObjectName(QStringLiteral("lbl_fin"));

    l->addWidget(chk_RealTime_);
    l->addSpacing(12);
    l->addWidget(lab_scale_);
    l->addWidget(cmb_pas_);
    l->addSpacing(12);
    l->addWidget(lbl_debut);
    l->addWidget(txt_date_debut_);
    l->addWidget(lbl_fin);
    l->addWidget(txt_date_fin_);
    l->addStretch(1);
    colonne->addWidget(cadre);
    colonne->addStretch(1);

    // activated also fires when the item shown is picked again: after the
    // real-time mode, picking the step on display must bring it back.
    connect(cmb_pas_, &QComboBox::activated, this, [this] { cmb_pas_Click(); });
    connect(cmb_pas_, &QComboBox::currentIndexChanged, this, [this] { cmb_pas_Click(); });
    connect(chk_RealTime_, &QCheckBox::toggled, this, [this] { chk_RealTime_Click(); });
    connect(txt_date_debut_, &QDateTimeEdit::dateTimeChanged, this,
            [this] { periode_modifiee(txt_date_debut_, txt_date_fin_); });
    connect(txt_date_fin_, &QDateTimeEdit::dateTimeChanged, this,
            [this] { periode_modifiee(txt_date_fin_, txt_date_debut_); });
}

// --- commands of the entries and keys ----------------------------------------------

void menu::branche(const QString& entree, std::function<void()> commande) {
    auto* a = findChild<QAction*>(entree);
    if (!a) return;
    disconnect(a, &QAction::triggered, nullptr, nullptr);
    connect(a, &QAction::triggered, this, [c = std::move(commande)] { c(); });
    a->setEnabled(true);
    a->setToolTip(QString());
    for (const Touche& t : touches) {
        if (entree != u(t.entree)) continue;
        auto* barre = findChild<QToolBar*>(u(t.barre));
        if (auto* cle = barre->findChild<QAction*>(u(t.cle))) cle->setEnabled(true);
    }
}

void menu::Toolbar_ButtonClick(const QString& barre, const QString& cle) {
    for (const Touche& t : touches) {
        if (barre != u(t.barre) || cle != u(t.cle)) continue;
        auto* a = findChild<QAction*>(u(t.entree));
        if (a && a->isEnabled()) a->trigger();
        return;
    }
}

// --- simulation frame --------------------------------------------------------------

void menu::affiche_periode() {
    {
        const QSignalBlocker b1(txt_date_debut_);
        const QSignalBlocker b2(txt_date_fin_);
        txt_date_debut_->setDateTime(vers_picker(etat_.session.j_debut));
        txt_date_fin_->setDateTime(vers_picker(etat_.session.j_fin));
    }
    // A step outside the table (1, 2, 5 s, 45 s...) leaves the list as it is.
    for (std::size_t i = 0; i < pas_restaures.size(); ++i) {
        if (pas_restaures[i] != etat_.session.pas_sim) continue;
        const QSignalBlocker b(cmb_pas_);
        cmb_pas_->setCurrentIndex(premier_restaure + static_cast<int>(i));
    }
}

void menu::cmb_pas_Click() { etat_.session.pas_sim = pas_du_texte(cmb_pas_->currentText()); }

void menu::chk_RealTime_Click() {
    const bool actif = chk_RealTime_->isChecked();
    if (actif) {
        etat_.session.config_modifiee = 1;
        etat_.session.temps_reel = VRAI;
        etat_.session.pas_sim = 1;
    } else {
        // pas_sim stays at 1 until a step is picked in the list again.
        etat_.session.temps_reel = FAUX;
    }
    cmb_pas_->setEnabled(!actif);
    txt_date_debut_->setEnabled(!actif);
    txt_date_fin_->setEnabled(!actif);
}

void menu::periode_modifiee(QDateTimeEdit* edite, QDateTimeEdit* autre) {
    if (depuis_picker(txt_date_debut_) > depuis_picker(txt_date_fin_)) {
        const QSignalBlocker b(edite);
        edite->setDateTime(autre->dateTime());
    }
    const double j = depuis_picker(edite);
    if (edite == txt_date_debut_)
        etat_.session.j_debut = j;
    else
        etat_.session.j_fin = j;
    etat_.session.config_modifiee = 1;
}

// --- projects ----------------------------------------------------------------------

QString menu::dossier_depart() const { return QString::fromStdString(etat_.session.dossier_depart); }

void menu::titre_energie(const QString& chemin) {
    const QString titre = u("Energie (") + nom_projet(chemin) + u(")");
    setWindowTitle(titre);
    fra_energie_->setTitle(titre);
}

void menu::titre_attitude(const QString& chemin) {
    fra_attitude_->setTitle(u("Contrôle d'attitude (") + nom_projet(chemin) + u(")"));
}

// Dialog of a project command: the kind's title and filter, dossier_depart,
// and the current project's name proposed (empty for a new project). Whatever
// the answer, the working folder goes back to dossier_depart. Empty: cancelled.
QString menu::choisit(bool ouverture, const char* titre, const char* filtre,
                      const std::string& actuel, const char* extension) {
    const DemandeFichier d{u(titre), filtre_qt(u(filtre)), dossier_depart(),
                           actuel.empty() ? QString() : nom_projet(QString::fromStdString(actuel)),
                           u(extension)};
    const QString chemin = ouverture ? dialogues_.ouvrir(this, d) : dialogues_.enregistrer(this, d);
    QDir::setCurrent(dossier_depart());
    return chemin;
}

void menu::montre_erreur(const QString& texte) { dialogues_.message(this, texte, Icone::critique); }

void menu::ouvre_energie() {
    const QString chemin = choisit(true, titre_ouvrir_pwr, filtre_pwr, etat_.session.chemin_energie, "pwr");
    if (chemin.isEmpty()) return;
    // A .pwr that cannot be read: its report (line and text), and the session
    // goes on as it was, so an unsaved attitude project is not lost. The load
    // hands the records back only when the whole file was read.
    const Erreur e = charge_energie(etat_, chemin.toStdString());
    if (e) {
        montre_erreur(QString::fromStdString(texte_erreur(e)));
        return;
    }
    etat_.session.chemin_energie = chemin.toStdString();
    apres_ouverture(chemin, u(tag_energie));
}

// The common end of both opens, in this order: title, reload of the windows
// of the tag (they see the mark as it was), the simulation frame, the mark.
void menu::apres_ouverture(const QString& chemin, const QString& tag) {
    if (tag == u(tag_energie))
        titre_energie(chemin);
    else
        titre_attitude(chemin);
    registre_.recharge(tag);
    affiche_periode();
    etat_.session.config_modifiee = 1;
}

bool menu::enregistre_energie() {
    if (etat_.session.chemin_energie.empty()) return enregistre_energie_sous();
    const Erreur e = sauve_energie(etat_, etat_.session.chemin_energie);
    if (e) montre_erreur(QString::fromStdString(texte_erreur(e)));
    return !e;
}

bool menu::enregistre_energie_sous() {
    const QString chemin = choisit(false, titre_sauver_pwr, filtre_pwr, etat_.session.chemin_energie, "pwr");
    if (chemin.isEmpty()) return false;
    const Erreur e = sauve_energie(etat_, chemin.toStdString());
    if (e) {
        montre_erreur(QString::fromStdString(texte_erreur(e)));
        return false;
    }
    etat_.session.chemin_energie = chemin.toStdString();
    titre_energie(chemin);
    return true;
}

void menu::ouvre_attitude() {
    const QString chemin = choisit(true, titre_ouvrir_att, filtre_att, etat_.session.chemin_attitude, "att");
    if (chemin.isEmpty()) return;
    const Erreur e = charge_attitude(etat_, chemin.toStdString());
    if (e) {
        montre_erreur(QString::fromStdString(texte_erreur(e)));
        return;
    }
    etat_.session.chemin_attitude = chemin.toStdString();
    apres_ouverture(chemin, u(tag_attitude));
}

bool menu::enregistre_attitude() {
    if (etat_.session.chemin_attitude.empty()) return enregistre_attitude_sous();
    // Rewriting the current file has no recovery: a failure ends the program.
    const Erreur e = sauve_attitude(etat_, etat_.session.chemin_attitude);
    if (e) dialogues_.fin_fatale(this, QString::fromStdString(texte_erreur(e)));
    return !e;
}

bool menu::enregistre_attitude_sous() {
    const QString chemin = choisit(false, titre_sauver_att, filtre_att, etat_.session.chemin_attitude, "att");
    if (chemin.isEmpty()) return false;
    // A failed write here ends as a cancel does: no message, nothing changed.
    if (sauve_attitude(etat_, chemin.toStdString())) return false;
    etat_.session.chemin_attitude = chemin.toStdString();
    titre_attitude(chemin);
    return true;
}

// --- end of the program ------------------------------------------------------------

bool menu::accepte_fin() {
    switch (dialogues_.question(this, u(msg::titre_configuration), u(msg::question_enregistrer))) {
        case Reponse::annuler:
            return false;
        case Reponse::non:
            return true;
        case Reponse::oui:
            break;
    }
    // Yes saves the energy project (through save as when it has no file yet)
    // and the attitude project when it has a file; a cancelled dialog or a
    // failed write keeps the program open so nothing is lost.
    if (!enregistre_energie()) return false;
    if (!etat_.session.chemin_attitude.empty() && !enregistre_attitude()) return false;
    return true;
}

void menu::closeEvent(QCloseEvent* evt) {
    if (!accepte_fin()) {
        evt->ignore();
        return;
    }
    // Ending the program closes every other window too.
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w != this && w->isVisible()) w->close();
    evt->accept();
}

}  // namespace kestrel::gui

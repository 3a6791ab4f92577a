// Every file dialog and message box of the windows goes through Dialogues, so
// that a test answers them (a path, a button, a cancel) with no real dialog.
#pragma once
#include <QString>

#include "core/shell/validateurs.h"

class QWidget;

namespace kestrel::gui {

enum class Reponse { oui, non, annuler };

// The buttons of a question box.
enum class Boutons { oui_non_annuler, oui_non };

// What a file dialog is asked to show.
struct DemandeFichier {
    QString titre;      // caption of the dialog
    QString filtre;     // Qt form: "Label (*.ext);;All Files (*.*)"
    QString dossier;    // first folder shown (dossier_depart)
    QString nom;        // proposed file name, may be empty
    QString extension;  // added to a typed name that has none ("pwr"), may be empty
};

class Dialogues {
public:
    virtual ~Dialogues() = default;
    // The chosen path, or an empty text when cancelled. ouvrir only accepts
    // a file that exists.
    virtual QString ouvrir(QWidget* parent, const DemandeFichier& d) = 0;
    virtual QString enregistrer(QWidget* parent, const DemandeFichier& d) = 0;
    // A question with the question icon; Escape or the close button answer
    // annuler (non when the box has no cancel button).
    virtual Reponse question(QWidget* parent, const QString& titre, const QString& texte,
                             Boutons boutons = Boutons::oui_non_annuler) = 0;
    // A box with one OK button; the icon tells how bad it is.
    virtual void message(QWidget* parent, const QString& texte, Icone icone) = 0;
    // A failure the program does not survive (a .pwr that cannot be read, an
    // attitude project that cannot be rewritten): the report, then the end of
    // the program with no question and no save.
    virtual void fin_fatale(QWidget* parent, const QString& rapport) = 0;
};

// The real boxes of the desktop.
class DialoguesQt : public Dialogues {
public:
    QString ouvrir(QWidget* parent, const DemandeFichier& d) override;
    QString enregistrer(QWidget* parent, const DemandeFichier& d) override;
    Reponse question(QWidget* parent, const QString& titre, const QString& texte, Boutons boutons) override;
    void message(QWidget* parent, const QString& texte, Icone icone) override;
    void fin_fatale(QWidget* parent, const QString& rapport) override;
};

// "Label|*.ext|All Files (*.*)|*.*" into Qt's "Label (*.ext);;All Files (*.*)".
// A label that does not already end with its pattern in brackets gets it.
QString filtre_qt(const QString& filtre);

// Caption of the program's own message boxes.
inline constexpr const char* titre_messages = "KESTREL";

}  // namespace kestrel::gui

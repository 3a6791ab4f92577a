// Input boxes checked when they lose the focus, the way every settings window
// edits the shared state in place: a refused entry shows the verdict's box,
// the text the box held when it took the focus comes back, and the box keeps
// the focus. An accepted entry is stored by the check itself.
#pragma once
#include <QObject>
#include <QString>
#include <functional>

#include "core/shell/validateurs.h"

class QLineEdit;

namespace kestrel::gui {

class Dialogues;

// Checks the text and, when it is good, stores the value where it belongs.
using Verification = std::function<Verdict(const QString& texte)>;

class ControleSaisie : public QObject {
    Q_OBJECT
public:
    // Watches the box for its whole life (the control is a child of the box).
    ControleSaisie(QLineEdit* champ, Dialogues& dialogues, Verification verif);

    // The text that a refused entry puts back.
    const QString& ancien() const { return ancien_; }
    // The check that leaving the box runs, now (Enter in a box).
    void verifie();

protected:
    bool eventFilter(QObject* objet, QEvent* evt) override;

private:

    QLineEdit* champ_;
    Dialogues& dialogues_;
    Verification verif_;
    QString ancien_;
    bool en_cours_ = false;  // the message box itself moves the focus
};

// Shorthand for a window: surveille(txt_masse, dlg, reel_borne(etat.att.Masse, 0, 1000)).
ControleSaisie* surveille(QLineEdit* champ, Dialogues& dialogues, Verification verif);

// A real number read from the box, checked against [min, max] (each limit
// inclusive or not), then stored in cible.
Verification reel_borne(double& cible, double min, double max, bool min_inclus = true,
                        bool max_inclus = true);
// A whole number, same rules.
Verification entier_borne(int32_t& cible, int32_t min, int32_t max, bool min_inclus = true,
                          bool max_inclus = true);

}  // namespace kestrel::gui

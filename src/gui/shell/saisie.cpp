#include "shell/saisie.h"

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>

#include "shell/dialogues.h"

namespace kestrel::gui {

namespace {

// Brings to the front every tab or stacked page that holds w.
void montre_page(QWidget* w) {
    for (; w && !w->isWindow(); w = w->parentWidget()) {
        auto* pile = qobject_cast<QStackedWidget*>(w->parentWidget());
        if (!pile) continue;
        if (auto* onglets = qobject_cast<QTabWidget*>(pile->parentWidget()))
            onglets->setCurrentWidget(w);
        else
            pile->setCurrentWidget(w);
    }
}

}  // namespace

ControleSaisie::ControleSaisie(QLineEdit* champ, Dialogues& dialogues, Verification verif)
    : QObject(champ), champ_(champ), dialogues_(dialogues), verif_(std::move(verif)),
      ancien_(champ->text()) {
    champ_->installEventFilter(this);
}

bool ControleSaisie::eventFilter(QObject* objet, QEvent* evt) {
    if (objet == champ_ && !en_cours_) {
        if (evt->type() == QEvent::FocusIn) ancien_ = champ_->text();
        // Going to another program, a popup or a window being closed is no
        // end of the entry; another tab of the same window is (the box's page
        // is already hidden then, its window is not).
        if (evt->type() == QEvent::FocusOut) {
            const auto raison = static_cast<QFocusEvent*>(evt)->reason();
            if (raison != Qt::ActiveWindowFocusReason && raison != Qt::PopupFocusReason &&
                champ_->window()->isVisible())
                verifie();
        }
    }
    return QObject::eventFilter(objet, evt);
}

void ControleSaisie::verifie() {
    const Verdict v = verif_(champ_->text());
    if (v.ok) {
        ancien_ = champ_->text();
        return;
    }
    en_cours_ = true;
    dialogues_.message(champ_, QString::fromStdString(v.message), v.icone);
    champ_->setText(ancien_);
    if (champ_->isVisible()) {
        champ_->setFocus(Qt::OtherFocusReason);
    } else {
        // Refused on a tab change: once the change is over, the box's page
        // comes back to the front with the focus in the box.
        QTimer::singleShot(0, champ_, [c = champ_] {
            montre_page(c);
            c->setFocus(Qt::OtherFocusReason);
        });
    }
    en_cours_ = false;
}

ControleSaisie* surveille(QLineEdit* champ, Dialogues& dialogues, Verification verif) {
    return new ControleSaisie(champ, dialogues, std::move(verif));
}

namespace {

// The text read by its type's check, then held to [min, max], then stored.
template <class T>
Verification lue_et_bornee(Verdict (*lire)(const std::string&, T&), T& cible, T min, T max,
                           bool min_inclus, bool max_inclus) {
    return [lire, &cible, min, max, min_inclus, max_inclus](const QString& texte) {
        T x{};
        Verdict v = lire(texte.toStdString(), x);
        if (v.ok) v = verif_bornes(x, min, max, min_inclus, max_inclus);
        if (v.ok) cible = x;
        return v;
    };
}

}  // namespace

Verification reel_borne(double& cible, double min, double max, bool min_inclus, bool max_inclus) {
    return lue_et_bornee(&verif_double, cible, min, max, min_inclus, max_inclus);
}

Verification entier_borne(int32_t& cible, int32_t min, int32_t max, bool min_inclus,
                          bool max_inclus) {
    return lue_et_bornee(&verif_entier, cible, min, max, min_inclus, max_inclus);
}

}  // namespace kestrel::gui

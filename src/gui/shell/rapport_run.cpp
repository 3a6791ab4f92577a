#include "shell/rapport_run.h"

#include <QString>

#include "core/shell/messages.h"
#include "shell/dialogues.h"

namespace kestrel::gui {

void rapporte_run(Dialogues& dialogues, QWidget* parent, const Erreur& faute, const Alertes& alertes) {
    if (alertes.incompat_charge) dialogues.message(parent, QString::fromUtf8(msg::incompat_charge), Icone::critique);
    if (!faute) return;
    // a limit of the user's settings warns; a computation that broke is critical
    const bool reglage = faute.code == CodeErreur::date_cellules || faute.code == CodeErreur::recharge_trop_longue;
    dialogues.message(parent, QString::fromStdString(texte_erreur(faute)),
                      reglage ? Icone::avertissement : Icone::critique);
}

}  // namespace kestrel::gui

#include "project/power_exp_data.h"

#include "shell/menu.h"

namespace kestrel::gui {

power_exp_data::power_exp_data(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : exploitation_donnees(Systeme::power, etat, dialogues, parent) {
    setObjectName(QStringLiteral("power_exp_data"));
    Form_Load();
}

power_exp_data* ouvre_power_exp_data(menu& m) {
    auto* f = m.findChild<power_exp_data*>(QString(), Qt::FindDirectChildrenOnly);
    if (!f) {
        f = new power_exp_data(m.etat(), m.dialogues(), &m);
        m.registre().inscrit(f, QString::fromLatin1(tag_energie), [f] { f->Form_Load(); });
    } else {
        f->Form_Load();
    }
    f->show();
    f->raise();
    f->activateWindow();
    return f;
}

}  // namespace kestrel::gui

#include "project/att_exp_data.h"

#include <QLineEdit>
#include <QScrollBar>

#include "shell/menu.h"

namespace kestrel::gui {

att_exp_data::att_exp_data(Etat& etat, Dialogues& dialogues, QWidget* parent)
    : exploitation_donnees(Systeme::attitude, etat, dialogues, parent) {
    setObjectName(QStringLiteral("att_exp_data"));
    scroll_selecteur_->setObjectName(QStringLiteral("scroll_axe"));
    txt_selecteur_->setObjectName(QStringLiteral("txt_axe"));
    Form_Load();
}

att_exp_data* ouvre_att_exp_data(menu& m) {
    auto* f = m.findChild<att_exp_data*>(QString(), Qt::FindDirectChildrenOnly);
    if (!f) f = new att_exp_data(m.etat(), m.dialogues(), &m);
    f->show();
    f->raise();
    f->activateWindow();
    return f;
}

}  // namespace kestrel::gui

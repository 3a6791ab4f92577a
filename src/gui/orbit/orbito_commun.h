// Helpers the three pages of orbito_conf share.
#pragma once
#include <QLineEdit>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "core/project/saisie_orbite.h"

#include "core/shell/format_image.h"
#include "shell/saisie.h"

namespace kestrel::gui {

// The box applies its entry when it loses the focus and at once on Enter. A
// text left as the box showed it is no entry: passing through a box must not
// round the value to its display picture (an epoch day shown "80.5500").
inline ControleSaisie* saisie_sur_sortie_et_entree(QLineEdit* champ, Dialogues& dialogues, Verification verif) {
    auto controle = std::make_shared<ControleSaisie*>(nullptr);
    ControleSaisie* c = surveille(champ, dialogues, [controle, verif = std::move(verif)](const QString& texte) {
        if (*controle && texte == (*controle)->ancien()) return Verdict{};
        return verif(texte);
    });
    *controle = c;
    QObject::connect(champ, &QLineEdit::returnPressed, c, [c] { c->verifie(); });
    return c;
}

// The boxes of a table on a page: a text that is a number goes to applique
// (box index, value), which stores it and shows the page again; any other
// text is refused with the type message.
// Returns the boxes' checks, in the table's order.
inline std::vector<ControleSaisie*> branche_cases(QWidget* page, Dialogues& dialogues,
                                                  std::span<const CaseSaisie> cases,
                                                  std::function<void(std::size_t, double)> applique) {
    std::vector<ControleSaisie*> controles;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        auto* champ = page->findChild<QLineEdit*>(QString::fromUtf8(cases[i].nom));
        controles.push_back(saisie_sur_sortie_et_entree(champ, dialogues, [applique, i](const QString& texte) {
            double x = 0;
            const Verdict v = verif_double(texte.toStdString(), x);
            if (v.ok) applique(i, x);
            return v;
        }));
    }
    return controles;
}

// x through a number picture, for a box or a label.
inline QString texte_image(double x, std::string_view image) {
    return QString::fromStdString(format_image(x, image));
}

}  // namespace kestrel::gui

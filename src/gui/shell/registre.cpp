#include "shell/registre.h"

#include <algorithm>

namespace kestrel::gui {

void RegistreFenetres::inscrit(QWidget* fenetre, const QString& tag,
                               std::function<void()> form_load) {
    entrees_.push_back({fenetre, tag, std::move(form_load)});
}

int RegistreFenetres::recharge(const QString& tag) {
    std::erase_if(entrees_, [](const Entree& e) { return e.fenetre.isNull(); });
    // A form load may open another window that joins: walk a copy.
    const std::vector<Entree> liste = entrees_;
    int n = 0;
    for (const Entree& e : liste) {
        if (e.tag != tag || e.fenetre.isNull()) continue;
        e.form_load();
        ++n;
    }
    return n;
}

}  // namespace kestrel::gui

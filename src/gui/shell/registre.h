// Windows that reload their fields when a project is opened join here under
// their tag: "conf" for the power project, "attconf" for the attitude project.
// A window that is destroyed leaves the registry by itself.
#pragma once
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

namespace kestrel::gui {

inline constexpr const char* tag_energie = "conf";
inline constexpr const char* tag_attitude = "attconf";

class RegistreFenetres {
public:
    // form_load fills the window's controls from the shared state again.
    void inscrit(QWidget* fenetre, const QString& tag, std::function<void()> form_load);
    // Runs form_load of every live window with this tag, in the order they
    // joined; returns how many ran.
    int recharge(const QString& tag);

private:
    struct Entree {
        QPointer<QWidget> fenetre;
        QString tag;
        std::function<void()> form_load;
    };
    std::vector<Entree> entrees_;
};

}  // namespace kestrel::gui

// kestrel-gui: the first screen, then the main window until the end.
#include <QApplication>
#include <memory>

#include "core/etat.h"
#include "shell/dialogues.h"
#include "shell/frm_first.h"
#include "shell/traduction.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("KESTREL"));

    kestrel::gui::installe_traduction_qt(app);

    // The one state of the program, alive until the end of exec().
    auto etat = std::make_unique<kestrel::Etat>();
    kestrel::gui::DialoguesQt dialogues;

    auto* premier = new kestrel::gui::frmFirst(*etat, dialogues);
    premier->setAttribute(Qt::WA_DeleteOnClose);
    premier->show();
    return app.exec();
}

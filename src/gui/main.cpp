// kestrel-gui: the first screen, then the main window until the end.
#include <QApplication>
#include <iostream>
#include <memory>
#include <string_view>

#include "core/etat/etat.h"
#include "shell/dialogues.h"
#include "shell/frm_first.h"
#include "shell/traduction.h"

int main(int argc, char** argv) {
    // Answered before the application starts, so that they need no display.
    for (int i = 1; i < argc; ++i) {
        const std::string_view a = argv[i];
        if (a == "--version") {
            std::cout << "kestrel-gui " << KESTREL_VERSION << '\n';
            return 0;
        }
        if (a == "--help" || a == "-h") {
            std::cout << "Usage: kestrel-gui [--version | --help]\n"
                         "KESTREL, simulateur de petit satellite : le programme de bureau.\n";
            return 0;
        }
    }
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

// kestrel-gui: the first screen, then the main window until the end.
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

#include "core/etat.h"
#include "shell/dialogues.h"
#include "shell/frm_first.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("KESTREL"));

    // The program speaks French whatever the desktop's language: Qt's own
    // words (file dialogs, buttons) too, when its translations are installed.
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    QTranslator traduction_qt;
    if (traduction_qt.load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&traduction_qt);

    // The one state of the program, alive until the end of exec().
    auto etat = std::make_unique<kestrel::Etat>();
    kestrel::gui::DialoguesQt dialogues;

    auto* premier = new kestrel::gui::frmFirst(*etat, dialogues);
    premier->setAttribute(Qt::WA_DeleteOnClose);
    premier->show();
    return app.exec();
}

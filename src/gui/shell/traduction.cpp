#include "shell/traduction.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kestrel::gui {

bool installe_traduction_qt(QCoreApplication& app) {
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto* traduction = new QTranslator(&app);
    if (!traduction->load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete traduction;
        return false;
    }
    return QCoreApplication::installTranslator(traduction);
}

}  // namespace kestrel::gui

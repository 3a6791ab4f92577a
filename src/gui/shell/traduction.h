// Qt's own words in French: the file dialogs (columns, file types, dates) and
// the standard buttons, from the qtbase_fr catalogue of Qt's translations
// folder. The program speaks French whatever the desktop's language.
#pragma once

class QCoreApplication;

namespace kestrel::gui {

// Sets the default locale to French (France) and installs the catalogue on
// the application, which owns it. False when the catalogue is not installed:
// the program then runs with Qt's English words.
bool installe_traduction_qt(QCoreApplication& app);

}  // namespace kestrel::gui

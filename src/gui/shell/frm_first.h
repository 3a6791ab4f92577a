// frmFirst: the first screen, captioned "MERIDAN": the title picture and cmdOK,
// which creates the main window, shows it and closes this one.
#pragma once
#include <QPixmap>
#include <QWidget>

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;
class menu;

class frmFirst : public QWidget {
    Q_OBJECT
public:
    frmFirst(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);

    void cmdOK_Click();
    // The main window once cmdOK was pressed, else null.
    menu* principal() const { return principal_; }

private:
    Etat& etat_;
    Dialogues& dialogues_;
    menu* principal_ = nullptr;
};

// The title picture: the Earth texture of dossier with the program's name over
// it; a plain night-blue field when the texture is missing.
QPixmap image_titre(const QString& dossier);

}  // namespace kestrel::gui

// The bench of the orbit window's tests: the main window, orbito_conf opened
// from its menu entry, controls found by object name, and entries typed then
// left (or ended by Enter) as a user does.
#pragma once
#include <QtTest>
#include <QtWidgets>
#include <memory>

#include "core/etat/etat.h"
#include "faux_dialogues.h"
#include "orbit/orbito_conf.h"
#include "shell/menu.h"


struct Banc {
    using menu = kestrel::gui::menu;
    using orbito_conf = kestrel::gui::orbito_conf;
    using Etat = kestrel::Etat;
    Etat etat;
    FauxDialogues dlg;
    std::unique_ptr<menu> principal;
    orbito_conf* fen = nullptr;
    QTemporaryDir tmp;

    // The window as the main window opens it, from its menu entry.
    Banc() : principal(std::make_unique<menu>(etat, dlg)) {
        principal->findChild<QAction*>("mn_sim_car")->trigger();
        fen = principal->findChild<orbito_conf*>();
        if (!fen) qFatal("orbito_conf not opened");
    }
    template <class T = QLineEdit>
    T* ctrl(const char* nom) {
        T* c = fen->findChild<T*>(QString::fromUtf8(nom));
        if (!c) qFatal("control %s not found", nom);
        return c;
    }
    QString texte(const char* nom) {
        if (auto* l = fen->findChild<QLabel*>(nom)) return l->text();
        return ctrl(nom)->text();
    }
    // Typing a value, then leaving the box (or pressing Enter).
    void saisit(QLineEdit* champ, const QString& valeur, bool entree = false) {
        champ->setFocus();
        QFocusEvent entree_focus(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(champ, &entree_focus);
        champ->setText(valeur);
        if (entree) {
            QTest::keyClick(champ, Qt::Key_Return);
        } else {
            QFocusEvent sortie(QEvent::FocusOut, Qt::TabFocusReason);
            QApplication::sendEvent(champ, &sortie);
        }
    }
    void saisit(const char* nom, const QString& valeur, bool entree = false) { saisit(ctrl(nom), valeur, entree); }
    QLineEdit* flux(int element) { return fen->findChildren<QLineEdit*>("env_txt_flux").at(element); }
    QString fichier(const char* nom) const { return tmp.filePath(nom); }
};

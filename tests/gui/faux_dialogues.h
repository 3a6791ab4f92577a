// Dialogues answered by the test: queued paths and buttons, and a record of
// every dialog and message the window asked for.
#pragma once
#include <QList>
#include <QString>
#include <deque>

#include "shell/dialogues.h"

struct FauxDialogues : kestrel::gui::Dialogues {
    struct Message {
        QString texte;
        kestrel::Icone icone;
        bool operator==(const Message&) const = default;
    };
    std::deque<QString> chemins;                    // answers of ouvrir / enregistrer ("" = cancel)
    std::deque<kestrel::gui::Reponse> reponses;     // answers of question
    QList<kestrel::gui::DemandeFichier> demandes;   // every file dialog shown
    QList<QString> questions;                       // "title|text" of every question
    QList<kestrel::gui::Boutons> boutons;           // the buttons of each question
    QList<Message> messages;
    QList<QString> fatales;                         // reports of fin_fatale (the program would end)

    // The next queued answer, or the given one when the queue is empty.
    template <class T>
    static T suivant(std::deque<T>& file, T sinon) {
        if (file.empty()) return sinon;
        T r = file.front();
        file.pop_front();
        return r;
    }
    QString ouvrir(QWidget*, const kestrel::gui::DemandeFichier& d) override {
        demandes << d;
        return suivant(chemins, QString());
    }
    QString enregistrer(QWidget* w, const kestrel::gui::DemandeFichier& d) override { return ouvrir(w, d); }
    kestrel::gui::Reponse question(QWidget*, const QString& titre, const QString& texte,
                                   kestrel::gui::Boutons b) override {
        questions << titre + QLatin1Char('|') + texte;
        boutons << b;
        return suivant(reponses, kestrel::gui::Reponse::annuler);
    }
    void message(QWidget*, const QString& texte, kestrel::Icone icone) override { messages << Message{texte, icone}; }
    void fin_fatale(QWidget*, const QString& rapport) override { fatales << rapport; }
};

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
    };
    std::deque<QString> chemins;                    // answers of ouvrir / enregistrer ("" = cancel)
    std::deque<kestrel::gui::Reponse> reponses;     // answers of question
    QList<kestrel::gui::DemandeFichier> demandes;   // every file dialog shown
    QList<QString> questions;                       // "title|text" of every question
    QList<Message> messages;
    QList<QString> fatales;                         // reports of fin_fatale (the program would end)

    QString suivant() {
        if (chemins.empty()) return {};
        QString c = chemins.front();
        chemins.pop_front();
        return c;
    }
    QString ouvrir(QWidget*, const kestrel::gui::DemandeFichier& d) override {
        demandes << d;
        return suivant();
    }
    QString enregistrer(QWidget*, const kestrel::gui::DemandeFichier& d) override {
        demandes << d;
        return suivant();
    }
    kestrel::gui::Reponse question(QWidget*, const QString& titre, const QString& texte) override {
        questions << titre + QLatin1Char('|') + texte;
        if (reponses.empty()) return kestrel::gui::Reponse::annuler;
        const auto r = reponses.front();
        reponses.pop_front();
        return r;
    }
    void message(QWidget*, const QString& texte, kestrel::Icone icone) override {
        messages << Message{texte, icone};
    }
    void fin_fatale(QWidget*, const QString& rapport) override { fatales << rapport; }
};

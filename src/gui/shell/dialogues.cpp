#include "shell/dialogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

namespace kestrel::gui {

namespace {

QString choisit_fichier(QWidget* parent, const DemandeFichier& d, bool ouverture) {
    QFileDialog dlg(parent, d.titre, d.dossier, d.filtre);
    dlg.setAcceptMode(ouverture ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dlg.setFileMode(ouverture ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (!d.extension.isEmpty()) dlg.setDefaultSuffix(d.extension);
    if (!d.nom.isEmpty()) dlg.selectFile(QDir(d.dossier).filePath(d.nom));
    if (dlg.exec() != QDialog::Accepted) return {};
    const QStringList choix = dlg.selectedFiles();
    return choix.isEmpty() ? QString() : choix.front();
}

}  // namespace

QString DialoguesQt::ouvrir(QWidget* parent, const DemandeFichier& d) {
    return choisit_fichier(parent, d, true);
}

QString DialoguesQt::enregistrer(QWidget* parent, const DemandeFichier& d) {
    return choisit_fichier(parent, d, false);
}

Reponse DialoguesQt::question(QWidget* parent, const QString& titre, const QString& texte, Boutons boutons) {
    const bool annuler = boutons == Boutons::oui_non_annuler;
    QMessageBox box(QMessageBox::Question, titre, texte,
                    annuler ? QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel
                            : QMessageBox::Yes | QMessageBox::No,
                    parent);
    // The words of the buttons stay French even without Qt's translations.
    box.button(QMessageBox::Yes)->setText(QStringLiteral("&Oui"));
    box.button(QMessageBox::No)->setText(QStringLiteral("&Non"));
    if (annuler) box.button(QMessageBox::Cancel)->setText(QStringLiteral("Annuler"));
    box.setDefaultButton(QMessageBox::Yes);
    box.exec();
    const auto r = box.standardButton(box.clickedButton());
    if (r == QMessageBox::Yes) return Reponse::oui;
    if (r == QMessageBox::No) return Reponse::non;
    return Reponse::annuler;  // Escape or the window's close button too
}

void DialoguesQt::message(QWidget* parent, const QString& texte, Icone icone) {
    const QString titre = QString::fromUtf8(titre_messages);
    switch (icone) {
        case Icone::critique: QMessageBox::critical(parent, titre, texte); break;
        case Icone::avertissement: QMessageBox::warning(parent, titre, texte); break;
        case Icone::aucune: QMessageBox::information(parent, titre, texte); break;
    }
}

void DialoguesQt::fin_fatale(QWidget* parent, const QString& rapport) {
    QMessageBox::critical(parent, QString::fromUtf8(titre_messages),
                          rapport + QString::fromUtf8("\n\nLe programme va s'arrêter."));
    // The event loop ends at once: no close event, so no save question.
    QCoreApplication::exit(1);
}

QString filtre_qt(const QString& filtre) {
    const QStringList morceaux = filtre.split(QLatin1Char('|'));
    QStringList sortie;
    for (qsizetype i = 0; i + 1 < morceaux.size(); i += 2) {
        QString libelle = morceaux[i];
        const QString motif = morceaux[i + 1];
        const QString entre = QLatin1Char('(') + motif + QLatin1Char(')');
        if (!libelle.trimmed().endsWith(entre)) libelle = libelle.trimmed() + QLatin1Char(' ') + entre;
        sortie << libelle;
    }
    return sortie.join(QStringLiteral(";;"));
}

}  // namespace kestrel::gui

// What the pages of power_conf share: each input box is tied to its field of
// the power record by its own name (and, for listed groups, the element that
// the page's list or option selects). An accepted entry is stored by the
// core check, marks the configuration as changed, shows every box of the page
// again (a repair may have moved another field) and tells the page.
#pragma once
#include <QWidget>
#include <functional>
#include <vector>

class QLineEdit;

namespace kestrel {
struct Etat;
}

namespace kestrel::gui {

class Dialogues;

class page_conf : public QWidget {
    Q_OBJECT
public:
    page_conf(Etat& etat, Dialogues& dialogues, QWidget* parent = nullptr);

    // Every control of the page from the record, charts redrawn.
    virtual void charge() = 0;

signals:
    // After an accepted entry (box name without an element suffix).
    void modifie(const QString& champ);

protected:
    // The box named nom (or nom_k for element k of a row) edits that field;
    // indice gives the selected element of a listed group.
    void lie(const QString& nom, std::function<int()> indice = {});
    // The boxes of a row of elements named nom_0 .. nom_{n-1}.
    void lie_ligne(const QString& nom, int n);
    // Shows every tied box from the record.
    void affiche_champs();
    // Called after an accepted entry, once the boxes show the record again.
    virtual void apres_saisie(const QString& champ) { (void)champ; }
    // The page's control of that name; a missing one is a form error.
    template <class T>
    T* ctrl(const char* nom) const {
        return findChild<T*>(QString::fromLatin1(nom));
    }

    Etat& etat_;
    Dialogues& dialogues_;

private:
    struct Lien {
        QLineEdit* champ;
        QString nom;  // field name in the core table
        std::function<int()> indice;
    };
    std::vector<Lien> liens_;
};

}  // namespace kestrel::gui

// The grid of a result table: a view over a TableTextes (the cells' texts),
// column headers given apart, rows computed in eclipse on a grey ground.
#pragma once
#include <QAbstractTableModel>
#include <QStringList>

#include "core/project/table_textes.h"

namespace kestrel::gui {

class ModeleTextes : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    // New table and headers (one per column of the table), in one reset.
    void charge(TableTextes table, QStringList entetes);
    const TableTextes& table() const { return table_; }

    // A table that a run fills while the grid shows it: vide() empties it,
    // the run appends to table_en_cours(), and montre_lignes_ajoutees() shows
    // the rows added since the last call in one insertion.
    void vide();
    TableTextes& table_en_cours() { return table_; }
    void montre_lignes_ajoutees();
    // Headers changed with the rows kept.
    void entetes(QStringList entetes);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    TableTextes table_{1};
    QStringList entetes_;
    int lignes_ = 0;  // rows the view knows of
};

}  // namespace kestrel::gui

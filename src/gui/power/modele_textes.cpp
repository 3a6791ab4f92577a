#include "power/modele_textes.h"

#include <QBrush>
#include <QColor>
#include <algorithm>

namespace kestrel::gui {

void ModeleTextes::charge(TableTextes table, QStringList entetes) {
    beginResetModel();
    table_ = std::move(table);
    entetes_ = std::move(entetes);
    lignes_ = static_cast<int>(table_.lignes());
    endResetModel();
}

void ModeleTextes::vide() {
    beginResetModel();
    table_ = TableTextes(std::max(1, static_cast<int>(entetes_.size())));
    lignes_ = 0;
    endResetModel();
}

void ModeleTextes::montre_lignes_ajoutees() {
    const int n = static_cast<int>(table_.lignes());
    if (n < lignes_) {  // the run emptied the table
        beginResetModel();
        lignes_ = n;
        endResetModel();
        return;
    }
    if (n == lignes_) return;
    beginInsertRows({}, lignes_, n - 1);
    lignes_ = n;
    endInsertRows();
}

void ModeleTextes::entetes(QStringList entetes) {
    const bool colonnes = entetes.size() != entetes_.size();
    if (colonnes) beginResetModel();
    entetes_ = std::move(entetes);
    if (colonnes) {
        table_ = TableTextes(std::max(1, static_cast<int>(entetes_.size())));
        lignes_ = 0;
        endResetModel();
    } else {
        emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(entetes_.size()) - 1);
    }
}

int ModeleTextes::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : lignes_;
}

int ModeleTextes::columnCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return lignes_ == 0 && entetes_.isEmpty() ? 0 : table_.colonnes();
}

QVariant ModeleTextes::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto ligne = static_cast<std::size_t>(index.row());
    switch (role) {
        case Qt::DisplayRole: {
            const std::string_view t = table_.cellule(ligne, index.column());
            return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size()));
        }
        case Qt::BackgroundRole:
            if (table_.eclipse(ligne)) return QBrush(QColor(224, 224, 224));
            return {};
        case Qt::TextAlignmentRole:
            return index.column() == 0 ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
        default:
            return {};
    }
}

QVariant ModeleTextes::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    if (orientation == Qt::Vertical) return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    return section < entetes_.size() ? entetes_[section] : QVariant();
}

}  // namespace kestrel::gui

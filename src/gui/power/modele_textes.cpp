#include "power/modele_textes.h"

#include <QBrush>
#include <QColor>

namespace kestrel::gui {

void ModeleTextes::charge(TableTextes table, QStringList entetes) {
    beginResetModel();
    table_ = std::move(table);
    entetes_ = std::move(entetes);
    endResetModel();
}

int ModeleTextes::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.lignes());
}

int ModeleTextes::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || table_.lignes() == 0 ? 0 : table_.colonnes();
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
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    return section < entetes_.size() ? entetes_[section] : QVariant();
}

}  // namespace kestrel::gui

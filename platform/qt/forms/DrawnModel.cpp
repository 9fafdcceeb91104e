#include "platform/qt/forms/DrawnModel.h"

#include "platform/qt/forms/Texts.h"

void DrawnModel::Take(const std::vector<DrawnRow>& rows) {
  if (rows.size() != rows_.size()) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
  } else if (!rows.empty()) {
    rows_ = rows;
    emit dataChanged(index(0), index(rowCount() - 1));
  }
}

int DrawnModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant DrawnModel::data(const QModelIndex& index, int role) const {
  const bool told = role == Qt::DisplayRole || role == Qt::ToolTipRole;
  return told && index.isValid() && index.row() < rowCount() ? Shown(Row(index.row()).text) : QVariant();
}

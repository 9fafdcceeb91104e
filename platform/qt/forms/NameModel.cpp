#include "platform/qt/forms/NameModel.h"

#include "platform/qt/forms/Texts.h"

void NameModel::Refill() {
  beginResetModel();
  endResetModel();
}

void NameModel::Forget() {
  control_ = nullptr;
  Refill();
}

int NameModel::rowCount(const QModelIndex& parent) const {
  return control_ == nullptr || parent.isValid() ? 0 : control_->ListCount();
}

QVariant NameModel::data(const QModelIndex& index, int role) const {
  const bool shown = role == Qt::DisplayRole || role == Qt::ToolTipRole;
  if (!shown || control_ == nullptr || !index.isValid() || index.row() >= control_->ListCount()) return {};
  return Shown(control_->List(index.row()));
}

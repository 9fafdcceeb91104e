#include "platform/qt/forms/NameModel.h"

#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Icons.h"

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
  if (control_ == nullptr || !index.isValid() || index.row() >= control_->ListCount()) return {};
  const QString name = Shown(control_->List(index.row()));
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return name;
  return role == Qt::DecorationRole && icons_ == Icons::kFiles ? QVariant(FileIcon(name)) : QVariant();
}

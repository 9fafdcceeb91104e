#include "platform/qt/forms/RowModel.h"

#include "platform/qt/forms/Texts.h"

RowModel::RowModel(const ListView& control, QStringList titles, std::vector<QIcon> icons, QObject* parent)
    : QAbstractTableModel(parent),
      control_(&control),
      titles_(std::move(titles)),
      icons_(std::move(icons)),
      rows_(control.Count()) {}

void RowModel::Follow(const ListChange& change) {
  switch (change.what) {
    case ListChange::What::kInserted:
      beginInsertRows({}, change.index - 1, change.index - 1);
      ++rows_;
      endInsertRows();
      break;
    case ListChange::What::kRemoved:
      beginRemoveRows({}, change.index - 1, change.index - 1);
      --rows_;
      endRemoveRows();
      break;
    case ListChange::What::kReset:
      beginResetModel();
      rows_ = control_->Count();
      endResetModel();
      break;
    case ListChange::What::kSelection:
    case ListChange::What::kEnsureVisible:
      break;  // of the view's concern alone
  }
}

void RowModel::Forget() {
  beginResetModel();
  control_ = nullptr;
  rows_ = 0;
  endResetModel();
}

int RowModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int RowModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(titles_.size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (control_ == nullptr || !index.isValid() || index.row() >= control_->Count()) return {};
  const ListRow& row = control_->Row(index.row() + 1);
  if (role == Qt::DecorationRole && index.column() == 0) return Icon(row);
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return Shown(index.column() == 0 ? row.text : row.SubItem(index.column()));
}

QVariant RowModel::Icon(const ListRow& row) const {
  if (row.smallIcon < 1 || row.smallIcon > static_cast<int>(icons_.size())) return {};
  return icons_[static_cast<std::size_t>(row.smallIcon) - 1];
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return titles_.value(section);
}

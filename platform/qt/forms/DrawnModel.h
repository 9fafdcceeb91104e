#pragma once

#include <QAbstractListModel>
#include <vector>

#include "platform/toolkit/DrawnList.h"

// The rows of a drawn list as they were when it was drawn last.
class DrawnModel : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  void Take(const std::vector<DrawnRow>& rows);

  const DrawnRow& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<DrawnRow> rows_;
};

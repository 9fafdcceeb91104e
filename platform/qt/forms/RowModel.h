#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QStringList>
#include <vector>

#include "platform/toolkit/ListView.h"

// The rows of a list view control, read from it as they are drawn: nothing is copied, so many thousand rows cost no
// more than the few in sight.
class RowModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // `icons` are the images of the form's image list, the first one counted as 1.
  RowModel(const ListView& control, QStringList titles, std::vector<QIcon> icons, QObject* parent);

  // Follows a change that the control has already made.
  void Follow(const ListChange& change);
  // The control is going: there are no rows any more.
  void Forget();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant Icon(const ListRow& row) const;

  const ListView* control_;
  QStringList titles_;
  std::vector<QIcon> icons_;
  int rows_ = 0;  // as told to the view; the control may be one step ahead
};

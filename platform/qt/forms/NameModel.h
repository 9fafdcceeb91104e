#pragma once

#include <QAbstractListModel>

#include "platform/toolkit/NameList.h"

// The names of a list control, read from it as they are drawn.
class NameModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum class Icons { kNone, kFiles };
  NameModel(const NameList& control, Icons icons, QObject* parent)
      : QAbstractListModel(parent), control_(&control), icons_(icons) {}

  // The control holds other names.
  void Refill();
  // The control is going: there are no names any more.
  void Forget();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const NameList* control_;
  Icons icons_;
};

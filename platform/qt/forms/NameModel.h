#pragma once

#include <QAbstractListModel>

#include "platform/toolkit/FileListBox.h"

// The names of a file list box control, read from it as they are drawn.
class NameModel : public QAbstractListModel {
  Q_OBJECT

 public:
  NameModel(const FileListBox& control, QObject* parent) : QAbstractListModel(parent), control_(&control) {}

  // The control has read its folder.
  void Refill();
  // The control is going: there are no names any more.
  void Forget();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const FileListBox* control_;
};

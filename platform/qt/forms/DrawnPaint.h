#pragma once

#include <QIcon>
#include <QStyledItemDelegate>
#include <vector>

#include "platform/qt/forms/DrawnModel.h"

// A colour of a drawn list's look; the palette gives those that the system has for a purpose.
QColor Painted(const LookColour& colour, const QPalette& palette);

// The ground behind the rows.
void PaintGround(QPainter& painter, const QRect& place, const DrawnLook& look, const QPalette& palette);

// Draws the rows of a list as its look says.
class DrawnDelegate : public QStyledItemDelegate {
 public:
  // `images` is what the numbers of the rows' images count, from 0.
  DrawnDelegate(const DrawnList& list, std::vector<QIcon> images, QObject* parent)
      : QStyledItemDelegate(parent), list_(list), images_(std::move(images)) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  QIcon IconFor(const DrawnRow& row) const;
  QRect IconPlace(const QRect& row) const;
  void PaintSelection(QPainter& painter, const QRect& place, const QPalette& palette) const;

  const DrawnList& list_;  // lives as long as it is drawn with
  std::vector<QIcon> images_;
};

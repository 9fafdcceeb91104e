#include "platform/qt/forms/DrawnPaint.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Icons.h"

namespace {

constexpr int kMargin = 4;  // pixels beside a text or an icon

void Fill(QPainter& painter, const QRect& place, const QColor& above, const QColor& below) {
  QLinearGradient gradient(place.topLeft(), place.bottomLeft());
  gradient.setColorAt(0, above);
  gradient.setColorAt(1, below);
  painter.fillRect(place, gradient);
}

Qt::Alignment AlignmentOf(const DrawnLook& look) {
  if (look.TextAlignment == 2) return Qt::AlignCenter;
  return Qt::AlignVCenter | (look.TextAlignment == 1 ? Qt::AlignRight : Qt::AlignLeft);
}

}  // namespace

QColor Painted(const LookColour& colour, const QPalette& palette) {
  switch (colour.system) {
    case LookColour::System::kWindow:
      return palette.color(QPalette::Base);
    case LookColour::System::kWindowText:
      return palette.color(QPalette::Text);
    case LookColour::System::kButtonFace:
      return palette.color(QPalette::Button);
    case LookColour::System::kButtonText:
      return palette.color(QPalette::ButtonText);
    case LookColour::System::kHighlight:
      return palette.color(QPalette::Highlight);
    case LookColour::System::kHighlightText:
      return palette.color(QPalette::HighlightedText);
    case LookColour::System::kNone:
      break;
  }
  return QColor(colour.fixed.red, colour.fixed.green, colour.fixed.blue);
}

void PaintGround(QPainter& painter, const QRect& place, const DrawnLook& look, const QPalette& palette) {
  const QColor ground = Painted(look.BackColor, palette);
  Fill(painter, place, ground, look.BackGradient ? Painted(look.BackGradientCol, palette) : ground);
}

QIcon DrawnDelegate::IconFor(const DrawnRow& row) const {
  if (!list_.ImageList.Get().empty() && row.image >= 0 && row.image < std::ssize(images_)) {
    return images_[static_cast<std::size_t>(row.image)];
  }
  if (!list_.ShowIcon) return {};
  switch (row.icon) {
    case DrawnRow::Icon::kFile:
      return FileIcon(Shown(row.iconOf));
    case DrawnRow::Icon::kFolder:
      return PlaceIcon(Place::kFolder);
    case DrawnRow::Icon::kDrive:
      return PlaceIcon(Place::kDrive);
    case DrawnRow::Icon::kNone:
      break;
  }
  return {};
}

QRect DrawnDelegate::IconPlace(const QRect& row) const {
  const int wanted = list_.IconExtractSize > 0 ? list_.IconExtractSize.Get()
                                               : QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
  const int size = list_.StrechIcon ? row.height() : std::min(wanted, row.height());
  QRect place(0, 0, size, size);
  place.moveCenter(row.center());
  place.moveLeft(row.left() + kMargin);
  return place;
}

void DrawnDelegate::PaintSelection(QPainter& painter, const QRect& place, const QPalette& palette) const {
  const QColor ground = Painted(list_.SelColor, palette);
  if (list_.SelectionStyle == 0) {
    painter.setPen(ground);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
  } else {
    Fill(painter, place, ground, list_.SelGradient ? Painted(list_.SelGradientCol, palette) : ground);
  }
}

void DrawnDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const DrawnRow& row = static_cast<const DrawnModel*>(index.model())->Row(index.row());
  const QIcon icon = IconFor(row);
  const QRect picture = icon.isNull() ? QRect() : IconPlace(option.rect);
  QRect words = option.rect.adjusted(kMargin, 0, -kMargin, 0);
  if (!picture.isNull()) words.setLeft(picture.right() + kMargin);
  QFont font = option.font;
  font.setBold(row.bold);
  const QFontMetrics metrics(font);
  const QString text = metrics.elidedText(index.data().toString(), Qt::ElideRight, words.width());

  painter->save();
  painter->setFont(font);
  if (row.selected) {
    QRect chosen = option.rect;
    if (!picture.isNull() && !list_.IconFocus) chosen.setLeft(picture.right() + 1);
    if (!list_.FullRowSelect) {
      const QRect drawn = metrics.boundingRect(words, static_cast<int>(AlignmentOf(list_)), text);
      chosen.setRight(std::min(chosen.right(), drawn.right() + kMargin));
      if (picture.isNull() || !list_.IconFocus) chosen.setLeft(std::max(chosen.left(), drawn.left() - kMargin));
    }
    PaintSelection(*painter, chosen, option.palette);
  }
  if (!icon.isNull()) icon.paint(painter, picture);
  const bool onSelection = row.selected && list_.SelectionStyle != 0;
  painter->setPen(Painted(onSelection ? list_.SelForeColor : list_.ForeColor, option.palette));
  painter->drawText(words, static_cast<int>(AlignmentOf(list_)) | Qt::TextSingleLine, text);
  if (list_.GridLines) {
    painter->setPen(Painted(list_.GridColor, option.palette));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  }
  if (list_.FocusRectangle && index.row() == list_.CurrentRow() && option.widget->hasFocus()) {
    painter->setPen(QPen(Painted(list_.ForeColor, option.palette), 1, Qt::DotLine));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  }
  painter->restore();
}

QSize DrawnDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {0, std::max(list_.RowHeight.Get(), option.fontMetrics.height() + kMargin)};
}

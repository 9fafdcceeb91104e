#include "platform/qt/forms/look/PathField.h"

#include <QHelpEvent>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolTip>

namespace {

constexpr int kTextMargin = 2;  // between a field's inside and its text, as QLineEdit has it

}  // namespace

bool IsPath(const QString& text) { return text.startsWith('/'); }

QRect PathField::Room() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  return inside.marginsRemoved(textMargins()).adjusted(kTextMargin, 0, -kTextMargin, 0);
}

bool PathField::Shortened() const {
  return !hasFocus() && IsPath(text()) && fontMetrics().horizontalAdvance(text()) > Room().width();
}

bool PathField::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !IsPath(text())) return QLineEdit::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

void PathField::paintEvent(QPaintEvent* event) {
  if (!Shortened()) {
    QLineEdit::paintEvent(event);
    return;
  }
  QStylePainter painter(this);
  QStyleOptionFrame option;
  initStyleOption(&option);
  painter.drawPrimitive(QStyle::PE_PanelLineEdit, option);
  painter.drawItemText(Room(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                       fontMetrics().elidedText(text(), Qt::ElideLeft, Room().width()), QPalette::Text);
}

void PathDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (IsPath(option->text)) option->textElideMode = Qt::ElideLeft;
}

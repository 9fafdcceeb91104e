#include "platform/qt/forms/RowView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/qt/forms/look/EmptyTexts.h"
#include "platform/qt/forms/look/PathField.h"

RowView::RowView(QWidget* parent) : QTreeView(parent) {
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionBehavior(SelectRows);
  setEditTriggers(NoEditTriggers);
  const int icon = style()->pixelMetric(QStyle::PM_ListViewIconSize);
  setIconSize(QSize(icon, icon));
  setItemDelegate(new PathDelegate(this));
  setExpandsOnDoubleClick(false);
  header()->setSectionsMovable(false);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void RowView::SizeColumns() {
  const QStringList samples = property("columnSamples").toStringList();
  const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + fontMetrics().averageCharWidth());
  for (int column = 0; column < samples.size(); ++column) {
    const int icon = column == 0 ? iconSize().width() + margins : 0;
    setColumnWidth(column, fontMetrics().horizontalAdvance(samples[column]) + margins + icon);
  }
}

void RowView::mousePressEvent(QMouseEvent* event) {
  pressed_ = indexAt(event->position().toPoint());
  clicking_ = event->button() == Qt::LeftButton;
  if (pressed_.isValid()) {
    QTreeView::mousePressEvent(event);
  } else {
    event->accept();  // on the empty ground the selection stays
  }
}

void RowView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (indexAt(event->position().toPoint()) != pressed_) {
    mousePressEvent(event);
    return;
  }
  clicking_ = false;
  event->accept();
}

void RowView::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton || !clicking_) return;
  clicking_ = false;
  // Rows that have been exchanged under the pointer are not what was pressed; nothing goes on air by such a chance.
  const QModelIndex released = indexAt(event->position().toPoint());
  if (released.row() != pressed_.row()) return;
  emit clickedRow(event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier) ? -1 : released.row());
}

void RowView::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  DrawEmptyText(*this);
}

void RowView::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  if (selectionModel() != nullptr && !selectionModel()->hasSelection())
    selectionModel()->clearCurrentIndex();  // it would look chosen
}

void RowView::keyPressEvent(QKeyEvent* event) {
  const bool click = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (!click || event->modifiers() & ~Qt::KeypadModifier) {
    QTreeView::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    emit clickedRow(-1);
  }
}

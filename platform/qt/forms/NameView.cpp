#include "platform/qt/forms/NameView.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/qt/forms/look/EmptyTexts.h"
#include "platform/qt/forms/look/PathField.h"

NameView::NameView(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setItemDelegate(new PathDelegate(this));
}

void NameView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton ? indexAt(event->position().toPoint()) : QModelIndex();
  if (pressed_.isValid()) QListView::mousePressEvent(event);
}

void NameView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons()) QListView::mouseMoveEvent(event);  // a drag selects nothing
}

void NameView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex at = indexAt(event->position().toPoint());
  if (!at.isValid() || at != currentIndex()) {
    mousePressEvent(event);
  } else if (event->button() == Qt::LeftButton) {
    emit doubled();
  }
}

void NameView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton || !pressed_.isValid()) return;
  const int row = pressed_.row();
  const bool same = indexAt(event->position().toPoint()) == pressed_;
  pressed_ = QModelIndex();
  if (same) {
    emit picked(row);
  } else {
    emit strayed();
  }
}

void NameView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  DrawEmptyText(*this);
}

void NameView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  if (selectionModel() != nullptr && !selectionModel()->hasSelection())
    selectionModel()->clearCurrentIndex();  // it would look chosen
}

void NameView::keyPressEvent(QKeyEvent* event) {
  const bool pick = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  const QModelIndex before = currentIndex();
  if (!pick) QListView::keyPressEvent(event);
  const QModelIndex now = currentIndex();
  if (now.isValid() && (now != before || (pick && !event->isAutoRepeat()))) emit picked(now.row());
}

#include "platform/qt/forms/DrawnView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <optional>

#include "platform/qt/forms/DrawnModel.h"
#include "platform/qt/forms/DrawnPaint.h"
#include "platform/qt/forms/PictureView.h"
#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/EmptyTexts.h"

namespace {

constexpr char kFlatBar[] = "QScrollBar { border: none; background: palette(base); width: 10px; }";

std::optional<DrawnList::Key> KeyOf(const QKeyEvent& event) {
  if (event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Up:
      return DrawnList::Key::kUp;
    case Qt::Key_Down:
      return DrawnList::Key::kDown;
    case Qt::Key_Home:
      return DrawnList::Key::kHome;
    case Qt::Key_End:
      return DrawnList::Key::kEnd;
    case Qt::Key_PageUp:
      return DrawnList::Key::kPageUp;
    case Qt::Key_PageDown:
      return DrawnList::Key::kPageDown;
    default:
      return std::nullopt;
  }
}

DrawnList::Held HeldWith(const QMouseEvent& event) {
  if (event.modifiers() & Qt::ControlModifier) return DrawnList::Held::kCtrl;
  return event.modifiers() & Qt::ShiftModifier ? DrawnList::Held::kShift : DrawnList::Held::kNone;
}

}  // namespace

DrawnView::DrawnView(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAutoScroll(false);  // the list says which row is to be in view
}

void DrawnView::Draw(const DrawnList& list, DrawnModel& model, PictureLoader* pictures) {
  list_ = &list;
  setModel(&model);
  if (pictures != nullptr) {
    behind_ = new PictureView(*pictures, this);
    behind_->lower();
  }
  TakeLook();
}

void DrawnView::Forget() {
  list_ = nullptr;
  setModel(nullptr);
  setItemDelegate(new QStyledItemDelegate(this));
}

void DrawnView::TakeLook() {
  const ListFont& font = list_->Font.Get();
  QFont own;
  if (!font.name.empty()) own.setFamily(Shown(font.name));
  if (font.points > 0) own.setPointSizeF(font.points);
  setFont(font == ListFont() ? QFont() : own);
  const bool flat = list_->Appearance == 0;
  setFrameStyle(list_->BorderStyle == 0 ? NoFrame : flat ? Box | Plain : StyledPanel | Sunken);
  setVerticalScrollBarPolicy(list_->AutoHideScrollBars ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOn);
  verticalScrollBar()->setStyleSheet(list_->FlatScrollBar ? kFlatBar : "");
  viewport()->setAutoFillBackground(list_->Picture.Get().empty());
  if (behind_ != nullptr) behind_->Show(Shown(list_->Picture));
  doItemsLayout();  // the height of the rows
}

int DrawnView::RowsOnPage() const {
  const int height = model() == nullptr ? 0 : sizeHintForRow(0);
  return height > 0 ? std::max(1, viewport()->height() / height) : 1;
}

void DrawnView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() != Qt::LeftButton) return;
  pressed_ = indexAt(event->position().toPoint());
  if (pressed_.isValid()) emit pressedRow(pressed_.row(), HeldWith(*event));
}

void DrawnView::mouseMoveEvent(QMouseEvent* event) { event->accept(); }  // a drag selects nothing

void DrawnView::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() != Qt::LeftButton) return;
  const bool same = pressed_.isValid() && indexAt(event->position().toPoint()) == pressed_;
  pressed_ = QModelIndex();
  if (same) emit clickedRows();
}

void DrawnView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex at = indexAt(event->position().toPoint());
  if (list_ != nullptr && at.isValid() && at.row() == list_->CurrentRow()) {
    event->accept();
    return;
  }
  mousePressEvent(event);
}

void DrawnView::keyPressEvent(QKeyEvent* event) {
  const bool click = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (const auto key = KeyOf(*event)) {
    emit keyed(*key);
  } else if (click && !(event->modifiers() & ~Qt::KeypadModifier)) {
    if (!event->isAutoRepeat()) emit clickedRows();
  } else {
    event->ignore();
  }
}

// The view would make the first row its own current one.
void DrawnView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  if (list_ != nullptr) setCurrentIndex(model()->index(list_->CurrentRow(), 0));
}

void DrawnView::paintEvent(QPaintEvent* event) {
  if (list_ == nullptr) return;
  if (list_->Picture.Get().empty()) {
    QPainter painter(viewport());
    PaintGround(painter, viewport()->rect(), *list_, palette());
  }
  QListView::paintEvent(event);
  DrawEmptyText(*this);
}

void DrawnView::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  if (behind_ != nullptr) behind_->setGeometry(viewport()->geometry());
}

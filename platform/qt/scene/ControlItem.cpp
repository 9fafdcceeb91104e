#include "platform/qt/scene/ControlItem.h"

#include <QMouseEvent>
#include <algorithm>

#include "platform/qt/Pressed.h"

ControlItem::ControlItem(Control& control, QQuickItem& parent) : QQuickItem(&parent), control_(&control) {
  setFlag(ItemHasContents);
  setAcceptedMouseButtons(Qt::AllButtons);
  setObjectName(QString::fromStdString(control.Name()));
  for (Property<Twips>* measure : {&control.Left, &control.Top, &control.Width, &control.Height}) {
    Follow(*measure, [this] { Place(); });
  }
  Follow(control.Visible, [this] { setVisible(control_->Visible); });
  Follow(control.Enabled, [this] { setEnabled(control_->Enabled); });  // presses on it go to what is behind
  Place();
  setEnabled(control.Enabled);
  setVisible(control.Visible);
}

void ControlItem::Detach() {
  following_.clear();
  control_ = nullptr;
}

void ControlItem::SetCovered(bool covered) {
  for (QQuickItem* child : childItems()) {
    if (auto* item = dynamic_cast<ControlItem*>(child)) item->SetCovered(covered);
  }
}

void ControlItem::Place() {
  setPosition(QPointF(ToPixels(control_->Left), ToPixels(control_->Top)));
  setSize(QSizeF(std::max(ToPixels(control_->Width), 0), std::max(ToPixels(control_->Height), 0)));
}

void ControlItem::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const auto button = Pressed(*event);
  if (control_ != nullptr && button) control_->PressMouse(*button);
}

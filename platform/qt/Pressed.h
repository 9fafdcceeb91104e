#pragma once

#include <QMouseEvent>
#include <optional>

#include "platform/toolkit/Control.h"

// The button, as forms know it, when the event is the press of one.
inline std::optional<MouseButton> Pressed(const QEvent& event) {
  if (event.type() != QEvent::MouseButtonPress) return {};
  switch (static_cast<const QMouseEvent&>(event).button()) {
    case Qt::LeftButton:
      return MouseButton::kLeft;
    case Qt::RightButton:
      return MouseButton::kRight;
    case Qt::MiddleButton:
      return MouseButton::kMiddle;
    default:
      return {};
  }
}

#pragma once

#include <QCursor>
#include <QMouseEvent>
#include <optional>

#include "platform/toolkit/Form.h"

// The button, as forms know it, when the event is of that type.
inline std::optional<MouseButton> ButtonOf(const QEvent& event, QEvent::Type type) {
  if (event.type() != type) return {};
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

inline std::optional<MouseButton> Pressed(const QEvent& event) { return ButtonOf(event, QEvent::MouseButtonPress); }
inline std::optional<MouseButton> Released(const QEvent& event) { return ButtonOf(event, QEvent::MouseButtonRelease); }

// Where on a form the pointer is. Qt's buttons bear the numbers of the forms' own.
inline MousePlace PlaceOn(QPointF pixels, Qt::MouseButtons buttons) {
  constexpr int kKnown = Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;
  return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel, static_cast<int>(buttons) & kKnown};
}

inline QCursor ShapeOf(MousePointer pointer) {
  switch (pointer) {
    case MousePointer::kSizeNESW:
      return Qt::SizeBDiagCursor;
    case MousePointer::kSizeNS:
      return Qt::SizeVerCursor;
    case MousePointer::kSizeNWSE:
      return Qt::SizeFDiagCursor;
    case MousePointer::kSizeWE:
      return Qt::SizeHorCursor;
    case MousePointer::kMove:
      return Qt::SizeAllCursor;
    case MousePointer::kDefault:
      break;
  }
  return Qt::ArrowCursor;
}

#pragma once

#include <QPalette>
#include <QWidget>

#include "platform/toolkit/Measures.h"

// Fills the ground of a widget with a colour of the form's own.
inline void Paint(QWidget& widget, const QColor& ground) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, ground);
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}
inline void Paint(QWidget& widget, const Colour& ground) {
  Paint(widget, QColor(ground.red, ground.green, ground.blue));
}
// And what is drawn on it with another.
inline void Paint(QWidget& widget, const QColor& ground, const QColor& ink) {
  Paint(widget, ground);
  QPalette palette = widget.palette();
  palette.setColor(QPalette::WindowText, ink);
  widget.setPalette(palette);
}

#pragma once

#include <QPalette>
#include <QWidget>

#include "platform/toolkit/Measures.h"

// Fills the ground of a widget with a colour of the form's own.
inline void Paint(QWidget& widget, const Colour& colour) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, QColor(colour.red, colour.green, colour.blue));
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}

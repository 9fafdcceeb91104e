#pragma once

#include <QWidget>
#include <functional>
#include <span>
#include <string_view>

#include "platform/qt/forms/Joint.h"

class Control;
class PictureLoader;
class ShowsFrames;

// What operator forms need of others: the widget that shows the picture of a player or a movie, which may be null, and
// what decodes pictures. Empty: such places stay black.
struct Surfaces {
  std::function<QWidget*(ShowsFrames*, QWidget* parent)> preview;
  PictureLoader* pictures = nullptr;
};

// How one kind of control is shown: the class of widget that its layout file must have for it, and what joins the two.
// A new kind of control is one more line in the table.
struct Binding {
  std::string_view kind;
  const QMetaObject* widget;
  void (*bind)(Joint& joint, Control& control, QWidget& widget, const Surfaces& surfaces);
};

std::span<const Binding> Bindings();

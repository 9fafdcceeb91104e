#include "platform/qt/forms/BindPictures.h"

#include <QFrame>
#include <QVBoxLayout>

#include "platform/qt/forms/Bindings.h"
#include "platform/qt/forms/Paint.h"
#include "platform/qt/forms/PictureView.h"
#include "platform/qt/forms/Texts.h"

namespace {

// Shows the file that `path` tells, now and at each change.
void BindPicture(Joint& joint, Event<>& changed, std::function<QString()> path, QFrame& widget,
                 const Surfaces& surfaces) {
  if (surfaces.pictures == nullptr) return;
  auto* view = new PictureView(*surfaces.pictures, &widget);
  auto* filled = new QVBoxLayout(&widget);
  filled->setContentsMargins(0, 0, 0, 0);
  filled->addWidget(view);
  joint.Follow(changed, [path, view] { view->Show(path()); });
}

}  // namespace

void Bind(Joint& joint, PictureBox& control, QFrame& widget, const Surfaces& surfaces) {
  joint.Watch(control.BackColor.Changed, [&] { Paint(widget, control.BackColor); });
  const auto path = [&control] { return Shown(control.Picture.Get().path); };
  BindPicture(joint, control.Picture.Changed, path, widget, surfaces);
}

void Bind(Joint& joint, FlashBox& control, QFrame& widget, const Surfaces& surfaces) {
  const auto path = [&control] { return Shown(control.File()); };
  BindPicture(joint, control.Movie.Changed, path, widget, surfaces);
}

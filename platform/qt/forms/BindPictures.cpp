#include "platform/qt/forms/BindPictures.h"

#include <QFrame>
#include <QPointer>
#include <QVBoxLayout>

#include "platform/qt/forms/Bindings.h"
#include "platform/qt/forms/DrawnPaint.h"
#include "platform/qt/forms/Paint.h"
#include "platform/qt/forms/PictureView.h"
#include "platform/qt/forms/Texts.h"
#include "platform/qt/frames/FrameSource.h"

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
  // Until the form says otherwise it has the colours and the frame of its layout.
  const auto paint = [&] {
    Paint(widget, Painted(control.BackColor, widget.palette()), Painted(control.ForeColor, widget.palette()));
  };
  if (control.BackColor.Get() != LookColour(kBlack)) paint();
  joint.Watch(control.BackColor.Changed, paint);
  joint.Watch(control.ForeColor.Changed, paint);
  const auto frame = [&] { widget.setFrameShape(control.BorderStyle == 0 ? QFrame::NoFrame : QFrame::Box); };
  if (control.BorderStyle != 0) frame();
  joint.Watch(control.BorderStyle.Changed, frame);
  const auto path = [&control] { return Shown(control.Picture.Get().path); };
  BindPicture(joint, control.Picture.Changed, path, widget, surfaces);
}

void Bind(Joint& joint, FlashBox& control, QFrame& widget, const Surfaces& surfaces) {
  control.KeepProportions = true;
  control.Silent = true;
  ShowFrames(joint, dynamic_cast<ShowsFrames*>(control.Platform()), widget, surfaces);
}

void ShowFrames(Joint& joint, ShowsFrames* source, QWidget& widget, const Surfaces& surfaces) {
  Paint(widget, kBlack);
  if (source == nullptr || !surfaces.preview) return;
  QPointer<QWidget> picture = surfaces.preview(source, &widget);
  picture->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* filled = new QVBoxLayout(&widget);
  filled->setContentsMargins(0, 0, 0, 0);
  filled->addWidget(picture);
  joint.AtEnd([picture] { delete picture.data(); });  // what it shows goes with the form
}

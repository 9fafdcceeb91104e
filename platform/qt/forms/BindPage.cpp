#include "platform/qt/forms/BindPage.h"

#include <QEvent>
#include <QFrame>
#include <QPointer>

#include "platform/qt/forms/BindPictures.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/frames/TakesInput.h"

namespace {

// Passes on what a widget is told by the mouse and the keys, unless it is disabled. The page goes with its form, a
// little before the widget.
class Hands : public QObject {
 public:
  Hands(QObject& page, QWidget& widget) : QObject(&widget), widget_(widget), page_(&page) {
    widget.setMouseTracking(true);
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* widget, QEvent* event) override {
    if (!widget_.isEnabled()) return false;
    if (auto* page = dynamic_cast<TakesInput*>(page_.data())) page->Take(*event);
    return event->type() == QEvent::Wheel || QObject::eventFilter(widget, event);
  }

 private:
  QWidget& widget_;
  QPointer<QObject> page_;
};

}  // namespace

void Bind(Joint& joint, BrowserControl& control, QFrame& widget, const Surfaces& surfaces) {
  ShowFrames(joint, dynamic_cast<ShowsFrames*>(control.Platform()), widget, surfaces);
  if (auto* page = dynamic_cast<QObject*>(control.Platform())) new Hands(*page, widget);
}

#include "platform/qt/forms/BindUserControl.h"

#include <QFrame>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <memory>

#include "platform/qt/forms/FormLoader.h"
#include "platform/qt/forms/KeyCodes.h"
#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Look.h"
#include "platform/toolkit/Measures.h"

namespace {

// No enabled part stands there.
bool IsBare(const QWidget& surface, QPointF place) {
  for (const QWidget* one = surface.childAt(place.toPoint()); one != nullptr && one != &surface;
       one = one->parentWidget()) {
    if (one->isEnabled()) return false;
  }
  return true;
}

// Tells a control what its surface sees. A press that a part has not used comes up to the surface as well: it is none
// of the surface's, and neither is what follows it until the buttons are up.
class SurfaceWatch {
 public:
  SurfaceWatch(UserControl& control, const QWidget& surface) : control_(control), surface_(surface) {}

  // The last act of each way calls the control: it may be gone behind it.
  void See(const QEvent& event) {
    switch (event.type()) {
      case QEvent::Resize:
        return control_.TakeSize(ToTwips(surface_.width()), ToTwips(surface_.height()));
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
      case QEvent::MouseMove:
      case QEvent::MouseButtonRelease:
        return SeeMouse(static_cast<const QMouseEvent&>(event));
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
        if (surface_.hasFocus()) SeeKey(static_cast<const QKeyEvent&>(event));
        return;
      default:
        return;
    }
  }

 private:
  void SeeMouse(const QMouseEvent& mouse) {
    const bool isDown = mouse.type() == QEvent::MouseButtonPress || mouse.type() == QEvent::MouseButtonDblClick;
    const bool isFirst = isDown && mouse.buttons() == Qt::MouseButtons(mouse.button());
    const bool isPassing = mouse.type() == QEvent::MouseMove && mouse.buttons() == Qt::NoButton;
    if (isFirst || isPassing) isItsOwn_ = IsBare(surface_, mouse.position());
    if (!isItsOwn_) return;
    const std::int16_t shift = ShiftOf(mouse.modifiers());
    const auto x = static_cast<float>(mouse.position().x() * kTwipsPerPixel);
    const auto y = static_cast<float>(mouse.position().y() * kTwipsPerPixel);
    const auto button = static_cast<std::int16_t>(mouse.button());
    if (mouse.type() == QEvent::MouseButtonDblClick) {
      control_.PressTwice();
    } else if (mouse.type() == QEvent::MouseMove) {
      control_.MoveTo(static_cast<std::int16_t>(mouse.buttons().toInt()), shift, x, y);
    } else if (mouse.type() == QEvent::MouseButtonPress) {
      control_.PressAt(button, shift, x, y);
    } else {
      control_.ReleaseAt(button, shift, x, y);
    }
  }

  void SeeKey(const QKeyEvent& key) {
    const std::int16_t code = KeyCodeOf(key);
    if (key.type() == QEvent::KeyPress) {
      control_.PressKey(code, ShiftOf(key.modifiers()), KeyAsciiOf(key));
    } else if (!key.isAutoRepeat()) {
      control_.ReleaseKey(code, ShiftOf(key.modifiers()));
    }
  }

  UserControl& control_;
  const QWidget& surface_;
  bool isItsOwn_ = false;
};

// Those that can be reached by the Tab key, in their order. A widget with a proxy is inside another one.
QWidgetList Reached(const QWidget& layout) {
  QWidgetList reached;
  for (QWidget* one = layout.nextInFocusChain(); one != &layout; one = one->nextInFocusChain()) {
    if ((one->focusPolicy() & Qt::TabFocus) != 0 && one->focusProxy() == nullptr) reached << one;
  }
  return reached;
}

}  // namespace

void Bind(Joint& joint, UserControl& control, QFrame& widget, const Surfaces&) {
  const QString name = Shown(std::string(control.Layout()));
  std::unique_ptr<QWidget> layout = LoadLayout(ControlLayoutFile(name));
  if (!layout) return;
  Dress(*layout, name);
  layout->setObjectName({});  // its parts have names, and it has the one of the frame
  layout->setMouseTracking(true);
  const QWidgetList reached = Reached(*layout);
  QWidget* surface = layout.get();
  auto* filled = new QVBoxLayout(&widget);
  filled->setContentsMargins(0, 0, 0, 0);
  filled->addWidget(layout.release());
  QWidget* before = &widget;  // and not at the end of the form
  for (QWidget* next : reached) {
    QWidget::setTabOrder(before, next);
    before = next;
  }
  joint.Watch(control.Redraw, [surface] { surface->update(); });
  joint.OnEvents(surface, [watch = std::make_shared<SurfaceWatch>(control, *surface)](QEvent& event) {
    watch->See(event);
    return false;
  });
}

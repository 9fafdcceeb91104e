#include "platform/qt/forms/OperatorWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <optional>

#include "platform/qt/Pressed.h"
#include "platform/qt/desktop/MapWatch.h"
#include "platform/qt/desktop/WindowClass.h"
#include "platform/qt/forms/FormLoader.h"
#include "platform/qt/forms/PointerDrag.h"
#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/TrayBinding.h"
#include "platform/qt/forms/WindowPlace.h"
#include "platform/qt/forms/look/Look.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/MenuItem.h"

namespace {

constexpr char kNoMinimize[] = "noMinimize";
constexpr std::chrono::milliseconds kWindowSettles(100), kScreensSettle(1000);

QWidget* NewWindow(const Form& form) {
  std::unique_ptr<QWidget> window = LoadLayout(LayoutFile(Shown(form.Name())));
  if (!window) window = std::make_unique<QWidget>();
  Dress(*window, Shown(form.Name()));
  Qt::WindowFlags flags = Qt::Window;
  if (window->property("frameless").toBool()) flags |= Qt::FramelessWindowHint;
  if (window->property(kNoMinimize).toBool()) {
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
             Qt::WindowCloseButtonHint;
  }
  window->setWindowFlags(flags);
  return window.release();
}

QList<QRect> ScreenAreas() {
  QList<QRect> areas;
  for (const QScreen* screen : QGuiApplication::screens()) areas.append(screen->availableGeometry());
  return areas;
}

}  // namespace

OperatorWindow::OperatorWindow(Form& form, const Surfaces& surfaces)
    : form_(form), joint_(NewWindow(form)), binder_(joint_, form, surfaces) {
  TakeLayoutsMeasures();
  FollowForm();
  for (Component* component : form.Components()) {
    if (auto* icon = dynamic_cast<TrayIcon*>(component)) Bind(joint_, *icon);
  }
  joint_.On(qGuiApp, &QGuiApplication::screenRemoved,
            [this](QScreen*) { joint_.Later([this] { BringIntoReach(); }, kScreensSettle); });
  joint_.OnEvents(&Widget(), [this](QEvent& event) { return Seen(event); });
}

OperatorWindow::~OperatorWindow() = default;

void OperatorWindow::TakeLayoutsMeasures() {
  if (form_.Width == 0) form_.Width = ToTwips(Widget().width());
  if (form_.Height == 0) form_.Height = ToTwips(Widget().height());
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  QRect centred(0, 0, ToPixels(form_.Width), ToPixels(form_.Height));
  centred.moveCenter(screen.center());
  if (form_.Left == 0) form_.Left = ToTwips(std::max(screen.left(), centred.left()));
  if (form_.Top == 0) form_.Top = ToTwips(std::max(screen.top(), centred.top()));
  if (form_.Caption.Get().empty()) form_.Caption = Stored(Widget().windowTitle());
}

void OperatorWindow::FollowForm() {
  joint_.Follow(form_.Caption.Changed, [this] { Widget().setWindowTitle(Shown(form_.Caption)); });
  for (Property<Twips>* measure : {&form_.Left, &form_.Top, &form_.Width, &form_.Height}) {
    joint_.Follow(measure->Changed, [this] { Place(); });
  }
  joint_.Follow(form_.OnTop.Changed, [this] { ApplyOnTop(); });
  joint_.Watch(form_.Pointer.Changed, [this] { Widget().setCursor(ShapeOf(form_.Pointer)); });
  joint_.Watch(form_.Maximised.Changed, [this] { ApplyState(); });
  joint_.Follow(form_.Visible.Changed, [this] { ShowSoon(); });
  joint_.Watch(form_.ShowAsked, [this] { ShowSoon(); });
}

// A worker form is shown and hidden in one breath to bring it to life: only what stands after the handler counts.
void OperatorWindow::ShowSoon() {
  if (showPending_) return;
  showPending_ = true;
  joint_.Later([this] { ShowAsTheFormSays(); });
}

void OperatorWindow::ApplyState() {
  Widget().setWindowState(form_.Maximised ? Qt::WindowMaximized : Qt::WindowNoState);
}

void OperatorWindow::Place() {
  if (noting_) return;
  const QPoint place(ToPixels(form_.Left), ToPixels(form_.Top));
  const QSize size(ToPixels(form_.Width), ToPixels(form_.Height));
  if (Widget().pos() != place) Widget().move(place);
  if (Widget().size() != size) Widget().resize(size);
}

void OperatorWindow::ApplyOnTop() {
  Qt::WindowFlags flags = Widget().windowFlags();
  flags.setFlag(Qt::WindowStaysOnTopHint, form_.OnTop);
  Widget().overrideWindowFlags(flags);  // setWindowFlags would take a window that stands off the screen
  if (QWindow* window = Widget().windowHandle()) window->setFlags(flags);
  if (form_.OnTop) Widget().raise();
}

void OperatorWindow::ShowAsTheFormSays() {
  showPending_ = false;
  if (!form_.Visible) {
    Widget().hide();
    return;
  }
  BringIntoReach();
  Widget().show();
  Widget().raise();
  Widget().activateWindow();
}

void OperatorWindow::BringIntoReach() {
  const QRect reachable = Reachable(QRect(Widget().pos(), Widget().size()), ScreenAreas());
  if (reachable.topLeft() != Widget().pos()) Widget().move(reachable.topLeft());
  if (reachable.size() != Widget().size()) Widget().resize(reachable.size());
}

bool OperatorWindow::Seen(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      event.ignore();
      form_.Close();
      return true;
    case QEvent::Move:
    case QEvent::Resize:
      // The window manager settles a window in several steps; the last one counts.
      if (!notePending_ && Widget().isVisible()) {
        notePending_ = true;
        joint_.Later([this] { NotePlace(); }, kWindowSettles);
      }
      return false;
    case QEvent::WindowStateChange:
      form_.Maximised = Widget().isMaximized();
      // Some window managers offer the box all the same; the window is not to be lost behind it.
      if (Widget().property(kNoMinimize).toBool() && Widget().isMinimized()) {
        joint_.Later([this] { Widget().setWindowState(Widget().windowState() & ~Qt::WindowMinimized); });
      }
      return false;
    case QEvent::WinIdChange:
      watch_.reset();
      if (Widget().windowHandle() == nullptr) return false;
      SetWindowClass(*Widget().windowHandle(), form_.Name());
      watch_ = std::make_unique<MapWatch>(*Widget().windowHandle(), MapWatch::Until::kSeen);
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove: {
      const auto& mouse = static_cast<QMouseEvent&>(event);
      const MousePlace place = PlaceOn(mouse.position(), mouse.buttons());
      event.type() == QEvent::MouseMove ? form_.MoveMouse(place) : form_.PressMouse(place);
      return false;
    }
    default:
      return false;
  }
}

void OperatorWindow::NotePlace() {
  notePending_ = false;
  if (!Widget().isVisible() || Widget().isMinimized() || Widget().isMaximized()) return;
  const QRect now(Widget().pos(), Widget().size());
  // Written only where it is another pixel: a place between two pixels that the program chose stays exact.
  const auto note = [](Property<Twips>& measure, int pixels) {
    if (ToPixels(measure) != pixels) measure = ToTwips(pixels);
  };
  noting_ = true;
  note(form_.Left, now.left());
  note(form_.Top, now.top());
  note(form_.Width, now.width());
  note(form_.Height, now.height());
  noting_ = false;
}

void OperatorWindow::Focus(const Control& control) {
  if (QWidget* widget = binder_.WidgetOf(control)) widget->setFocus(Qt::OtherFocusReason);
}

void OperatorWindow::DragWindow(std::function<void()> done) {
  const QPoint from = Widget().pos();
  new PointerDrag(
      Widget(), [window = &Widget(), from](QPoint moved) { window->move(from + moved); },
      joint_.WhileHere(std::move(done)));
}

void OperatorWindow::PutPointer(Twips right, Twips down) {
  QCursor::setPos(Widget().mapToGlobal(QPoint(ToPixels(right), ToPixels(down))));
}

void OperatorWindow::FollowPointer(std::function<void(Twips right, Twips down)> moved) {
  new PointerDrag(
      Widget(), [moved = std::move(moved)](QPoint by) { moved(ToTwips(by.x()), ToTwips(by.y())); }, [] {});
}

void OperatorWindow::PopUp(const MenuItem& menu) {
  if (auto* shown = Widget().findChild<QMenu*>(Shown(menu.Name()))) shown->popup(QCursor::pos());
}

void OperatorWindow::DragPane(Control&, std::function<void()> done) { done(); }

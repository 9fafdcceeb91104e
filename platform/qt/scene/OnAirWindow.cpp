#include "platform/qt/scene/OnAirWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegion>
#include <QScreen>
#include <algorithm>
#include <chrono>

#include "platform/qt/OfKind.h"
#include "platform/qt/Pressed.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/desktop/MapWatch.h"
#include "platform/qt/desktop/WindowClass.h"
#include "platform/qt/scene/PaneItem.h"
#include "platform/qt/scene/SceneItems.h"
#include "platform/qt/scene/Sheet.h"
#include "platform/toolkit/BrowserControl.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"

namespace {

// The window system answers a wish for a place with steps in between; where it stands after this is where it stays.
constexpr std::chrono::milliseconds kToSettle{300};

// What is behind all panes: the form itself.
class FormItem : public QQuickItem {
 public:
  using Told = std::function<void(const MousePlace&)>;

  FormItem(Told pressed, Told moved, QQuickItem& parent)
      : QQuickItem(&parent), pressed_(std::move(pressed)), moved_(std::move(moved)) {
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
  }
  bool contains(const QPointF&) const override { return true; }

 protected:
  void mousePressEvent(QMouseEvent* event) override { pressed_(PlaceOn(event->position(), event->buttons())); }
  void mouseMoveEvent(QMouseEvent* event) override { moved_(PlaceOn(event->position(), event->buttons())); }
  void hoverMoveEvent(QHoverEvent* event) override {
    if (IsBare(event->position())) moved_(PlaceOn(event->position(), Qt::NoButton));
  }

 private:
  // No pane that takes presses for itself stands there.
  bool IsBare(QPointF place) const {
    const QList<QQuickItem*> items = parentItem()->childItems();
    return std::ranges::none_of(items, [&](const QQuickItem* item) {
      return item != this && item->isVisible() && item->isEnabled() && item->contains(mapToItem(item, place));
    });
  }

  Told pressed_;
  Told moved_;
};

// A form may become see-through while it is shown. One with a pane on it never does: panes are opaque.
bool MayBeSeeThrough(const Form& form) {
  const auto isPane = [](const Control* control) { return dynamic_cast<const PictureBox*>(control) != nullptr; };
  return form.Type() != Form::Kind::kPreview && std::ranges::none_of(form.Controls(), isPane);
}

// Nobody types into a window on the air, but into a page on it.
bool MayBeTypedInto(const std::vector<Control*>& controls) {
  return std::ranges::any_of(controls, [](const Control* control) {
    return dynamic_cast<const BrowserControl*>(control) != nullptr || MayBeTypedInto(control->Children());
  });
}

bool MeetsNoScreen(const QRect& place) {
  return std::ranges::none_of(QGuiApplication::screens(),
                              [&](const QScreen* screen) { return screen->geometry().intersects(place); });
}

}  // namespace

// A native window has an alpha channel from its beginning or never: its painter would not take over one that is made
// anew. One that has it is painted opaque where its form is. Nobody looks for such a window in a list of windows.
OnAirWindow::OnAirWindow(Form& form, Scene& scene)
    : form_(form), scene_(scene), window_(new QQuickWindow), hasAlpha_(MayBeSeeThrough(form)) {
  KeepAlpha();
  Qt::WindowFlags flags = Qt::Window;
  flags.setFlag(Qt::FramelessWindowHint, !HasFrame());
  flags.setFlag(Qt::WindowDoesNotAcceptFocus, !HasFrame() && !MayBeTypedInto(form.Controls()));
  window_->setFlags(flags);
  window_->setProperty("_q_showWithoutActivating", true);
  window_->installEventFilter(this);
  new FormItem(
      [self = QPointer(this)](const MousePlace& place) {
        if (self) self->form_.PressMouse(place);
      },
      [self = QPointer(this)](const MousePlace& place) {
        if (self) self->form_.MoveMouse(place);
      },
      *window_->contentItem());
  Mirror(form.Controls(), *window_->contentItem());
  for (ControlItem* pane : panes_) {
    for (const auto changed : {&QQuickItem::xChanged, &QQuickItem::yChanged, &QQuickItem::widthChanged,
                               &QQuickItem::heightChanged, &QQuickItem::visibleChanged}) {
      connect(pane, changed, &coverIsDue_, [this] { coverIsDue_.start(0); });
    }
  }
  coverIsDue_.start(0);
  if (!HasFrame()) sheet_ = std::make_unique<Sheet>(*window_, items_, scene.stack);
  connect(window_, &QWindow::screenChanged, this, &OnAirWindow::FollowScreen);
  connect(qGuiApp, &QGuiApplication::screenAdded, &placeIsDue_, [this] { placeIsDue_.start(0); });

  for (QTimer* timer : {&placeIsDue_, &coverIsDue_, &settled_}) timer->setSingleShot(true);
  settled_.setInterval(kToSettle);
  connect(&placeIsDue_, &QTimer::timeout, this, &OnAirWindow::ApplyPlace);
  connect(&coverIsDue_, &QTimer::timeout, this, &OnAirWindow::FindCovered);
  connect(&settled_, &QTimer::timeout, this, &OnAirWindow::AdoptPlace);
  for (Property<Twips>* measure : {&form.Left, &form.Top, &form.Width, &form.Height}) {
    following_.push_back(measure->Changed.Subscribe([this] { placeIsDue_.start(0); }));
  }
  const auto title = [this] { window_->setTitle(QString::fromStdString(form_.Caption)); };
  const auto onTop = [this] {
    window_->setFlag(Qt::WindowStaysOnTopHint, form_.OnTop);
    if (form_.OnTop) window_->raise();
    if (sheet_) sheet_->SetOnTop(form_.OnTop);
  };
  const auto visible = [this] { ApplyVisible(); };
  const auto style = [this] { ApplyStyle(); };
  following_.push_back(form.Pointer.Changed.Subscribe([this] { window_->setCursor(ShapeOf(form_.Pointer)); }));
  following_.push_back(form.Caption.Changed.Subscribe(title));
  following_.push_back(form.OnTop.Changed.Subscribe(onTop));
  following_.push_back(form.Visible.Changed.Subscribe(visible));
  following_.push_back(form.ShowAsked.Subscribe([this] { ComeForward(); }));
  following_.push_back(form.BackColor.Changed.Subscribe(style));
  following_.push_back(form.ExtendedStyle.Changed.Subscribe(style));
  watch_ = std::make_unique<MapWatch>(*window_, HasFrame() ? MapWatch::Until::kSeen : MapWatch::Until::kHidden);
  if (hasAlpha_) window_->create();  // what its shape and its back are told before would be lost
  title();
  style();
  onTop();
  visible();
}

// The form may be unloaded by what the window is handling this very moment.
OnAirWindow::~OnAirWindow() {
  watch_.reset();
  sheet_.reset();
  for (ControlItem* item : items_) item->Detach();
  window_->removeEventFilter(this);
  window_->hide();
  window_->deleteLater();
}

void OnAirWindow::Mirror(const std::vector<Control*>& controls, QQuickItem& parent) {
  // Above zero throughout: an item below zero would stand behind its own pane's colour.
  auto z = static_cast<qreal>(controls.size());
  for (Control* control : controls) {
    const SceneItem* shown = OfKind(SceneItems(), *control);
    if (shown == nullptr) {
      qWarning("%s: nothing on the air shows a %s", control->Name().c_str(), std::string(control->Kind()).c_str());
      continue;
    }
    ControlItem* item = shown->make(*control, parent, scene_);
    item->setZ(z--);
    items_.push_back(item);
    if (control->Container() == nullptr) panes_.push_back(item);
    Mirror(control->Children(), *item);
  }
}

void OnAirWindow::ApplyVisible() {
  ApplyPlace();
  window_->create();
  if (sheet_) sheet_->SetShown(form_.Visible);
  window_->setVisible(form_.Visible);
  SetWindowClass(*window_, form_.Name());  // showing may have made the native window anew
  if (form_.Visible && hasAlpha_) HideFromTaskbar(*window_);
  if (form_.Visible && !HasFrame()) StandOnEveryDesktop(*window_);
  FollowScreen();
}

bool OnAirWindow::IsSeeThrough() const { return hasAlpha_ && (form_.ExtendedStyle & kLayered) != 0; }

void OnAirWindow::ApplyStyle() {
  const Colour back = form_.BackColor;
  window_->setColor(IsSeeThrough() ? QColor(Qt::transparent) : QColor(back.red, back.green, back.blue));
  KeepAlpha();  // the colour takes it away and gives it
  if (sheet_) sheet_->SetSeeThrough(IsSeeThrough());
}

void OnAirWindow::KeepAlpha() {
  QSurfaceFormat format = window_->requestedFormat();
  format.setAlphaBufferSize(hasAlpha_ ? 8 : 0);
  window_->setFormat(format);
}

void OnAirWindow::ComeForward() {
  window_->raise();
  if (sheet_) sheet_->ComeForward();
}

// A player behind an online channel plays on for hours: its picture need not be made meanwhile. Every pane that is not
// see-through is opaque.
void OnAirWindow::FindCovered() {
  QRegion front;
  for (ControlItem* pane : panes_) {
    if (!pane->isVisible()) continue;
    const QRect place = QRectF(pane->position(), pane->size()).toRect();
    pane->SetCovered(QRegion(place).subtracted(front).isEmpty());
    if (const auto* opaque = dynamic_cast<PaneItem*>(pane); opaque != nullptr && !opaque->IsSeeThrough())
      front += place;
  }
}

// The viewers' display gives the rate. A preview stands on the operator's; so may an overlay.
void OnAirWindow::FollowScreen() {
  if (IsOutput() && window_->screen() != nullptr) scene_.scheduler.SetFrameRate(window_->screen()->refreshRate());
}

bool OnAirWindow::IsOutput() const { return sheet_ && scene_.stack.IsLargest(*sheet_); }

bool OnAirWindow::HasFrame() const { return form_.Type() == Form::Kind::kPreview; }

// Of what is inside the frame. A frame's lower edge stands where the form says, and its upper one where it comes to.
QRect OnAirWindow::WantedPlace() {
  const int width = std::max(ToPixels(form_.Width), 1);
  if (!HasFrame()) return {ToPixels(form_.Left), ToPixels(form_.Top), width, std::max(ToPixels(form_.Height), 1)};
  frame_ = window_->frameMargins();
  const int height = std::max(ToPixels(form_.Height - kPreviewFrame), 1);
  const int bottom = ToPixels(form_.Top + form_.Height) - frame_.bottom();
  return {ToPixels(form_.Left) + frame_.left(), bottom - height, width, height};
}

void OnAirWindow::ApplyPlace() {
  placeIsDue_.stop();
  const QRect place = WantedPlace();
  if (window_->geometry() != place) window_->setGeometry(place);
}

void OnAirWindow::AdoptPlace() {
  if (!window_->isVisible() || placeIsDue_.isActive()) return;
  if (HasFrame() && window_->frameMargins() != frame_) {  // it has only just been given its frame
    ApplyPlace();
    return;
  }
  const QRect wanted = WantedPlace();
  if (!IsOutput() && MeetsNoScreen(wanted)) return;  // its screen is gone for now: what is remembered stays
  const QRect actual = window_->geometry();
  const auto adopt = [](Property<Twips>& measure, int by) {
    if (by != 0) measure = ToTwips(ToPixels(measure) + by);
  };
  const int taller = actual.height() - wanted.height();
  adopt(form_.Left, actual.x() - wanted.x());
  adopt(form_.Top, HasFrame() ? actual.bottom() - wanted.bottom() - taller : actual.y() - wanted.y());
  adopt(form_.Width, actual.width() - wanted.width());
  adopt(form_.Height, taller);
}

void OnAirWindow::DragWindow(std::function<void()> done) {
  const QPoint from = window_->position();
  drag_ = {pressedAt_,
           [this, from](QPoint moved) {
             form_.Left = ToTwips(from.x() + moved.x());
             form_.Top = ToTwips(from.y() + moved.y());
           },
           std::move(done)};
}

void OnAirWindow::DragPane(Control& pane, std::function<void()> done) {
  drag_ = {pressedAt_,
           [&pane, left = pane.Left.Get(), top = pane.Top.Get()](QPoint moved) {
             pane.Left = left + ToTwips(moved.x());
             pane.Top = top + ToTwips(moved.y());
           },
           std::move(done)};
}

void OnAirWindow::FollowPointer(std::function<void(Twips right, Twips down)> moved) {
  drag_ = {pressedAt_,
           [moved = std::move(moved)](QPoint by) { moved(by.x() * kTwipsPerPixel, by.y() * kTwipsPerPixel); }, [] {}};
}

void OnAirWindow::PutPointer(Twips right, Twips down) {
  pressedAt_ = window_->mapToGlobal(QPoint(ToPixels(right), ToPixels(down)));
  QCursor::setPos(pressedAt_);
}

void OnAirWindow::EndDrag() {
  const Drag ended = std::exchange(drag_, {});
  if (ended.done) ended.done();
}

bool OnAirWindow::eventFilter(QObject* object, QEvent* event) {
  if (sheet_ && sheet_->PassOn(*event)) return true;
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
      settled_.start();
      break;
    case QEvent::Close:
      event->ignore();  // a close key on the output display does not take the channel off the air
      if (HasFrame()) form_.Close();
      return true;  // the form, and with it this object, may be gone
    case QEvent::MouseButtonPress:
      pressedAt_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
      if (IsSeeThrough()) ComeForward();
      break;
    case QEvent::MouseMove:
      if (!drag_.move) break;
      if (const auto* mouse = static_cast<QMouseEvent*>(event); mouse->buttons() == Qt::NoButton) {
        EndDrag();  // the release was lost
      } else {
        drag_.move(mouse->globalPosition().toPoint() - drag_.pressedAt);
      }
      return true;
    case QEvent::MouseButtonRelease:
      if (drag_.move) EndDrag();
      break;
    default:
      break;
  }
  return QObject::eventFilter(object, event);
}

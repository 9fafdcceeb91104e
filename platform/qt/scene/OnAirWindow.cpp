#include "platform/qt/scene/OnAirWindow.h"

#include <QMouseEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegion>
#include <QScreen>
#include <chrono>

#include "platform/qt/OfKind.h"
#include "platform/qt/Pressed.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/desktop/WindowClass.h"
#include "platform/qt/scene/PaneItem.h"
#include "platform/qt/scene/SceneItems.h"
#include "platform/toolkit/Form.h"

namespace {

// The window system answers a wish for a place with steps in between; where it stands after this is where it stays.
constexpr std::chrono::milliseconds kToSettle{300};

// What is behind all panes: the form itself.
class FormItem : public QQuickItem {
 public:
  FormItem(std::function<void(MouseButton)> pressed, QQuickItem& parent)
      : QQuickItem(&parent), pressed_(std::move(pressed)) {
    setAcceptedMouseButtons(Qt::AllButtons);
  }
  bool contains(const QPointF&) const override { return true; }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (const auto button = Pressed(*event)) pressed_(*button);
  }

 private:
  std::function<void(MouseButton)> pressed_;
};

QRect PlaceOf(const Form& form) {
  return {ToPixels(form.Left), ToPixels(form.Top), std::max(ToPixels(form.Width), 1),
          std::max(ToPixels(form.Height), 1)};
}

}  // namespace

OnAirWindow::OnAirWindow(Form& form, Scene& scene) : form_(form), scene_(scene), window_(new QQuickWindow) {
  QSurfaceFormat format = window_->format();
  format.setAlphaBufferSize(0);
  window_->setFormat(format);
  window_->setColor(Qt::black);
  window_->setFlags(Qt::Window | Qt::FramelessWindowHint);
  window_->setProperty("_q_showWithoutActivating", true);
  window_->installEventFilter(this);
  new FormItem(
      [self = QPointer(this)](MouseButton button) {
        if (self) self->form_.PressMouse(button);
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
  connect(window_, &QWindow::screenChanged, this, &OnAirWindow::FollowScreen);
  FollowScreen(window_->screen());

  for (QTimer* timer : {&placeIsDue_, &coverIsDue_, &settled_}) timer->setSingleShot(true);
  settled_.setInterval(kToSettle);
  connect(&placeIsDue_, &QTimer::timeout, this, &OnAirWindow::ApplyPlace);
  connect(&coverIsDue_, &QTimer::timeout, this, &OnAirWindow::FindCovered);
  connect(&settled_, &QTimer::timeout, this, &OnAirWindow::AdoptPlace);
  for (Property<Twips>* measure : {&form.Left, &form.Top, &form.Width, &form.Height}) {
    following_.push_back(measure->Changed.Subscribe([this] { placeIsDue_.start(0); }));
  }
  const auto title = [this] { window_->setTitle(QString::fromStdString(form_.Caption)); };
  const auto onTop = [this] { window_->setFlag(Qt::WindowStaysOnTopHint, form_.OnTop); };
  const auto visible = [this] {
    ApplyPlace();
    window_->create();
    SetWindowClass(*window_, form_.Name());
    window_->setVisible(form_.Visible);
  };
  following_.push_back(form.Caption.Changed.Subscribe(title));
  following_.push_back(form.OnTop.Changed.Subscribe(onTop));
  following_.push_back(form.Visible.Changed.Subscribe(visible));
  title();
  onTop();
  visible();
}

// The form may be unloaded by what the window is handling this very moment.
OnAirWindow::~OnAirWindow() {
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

// A player behind an online channel plays on for hours: its picture need not be made meanwhile. Every pane is opaque.
void OnAirWindow::FindCovered() {
  QRegion front;
  for (ControlItem* pane : panes_) {
    if (!pane->isVisible()) continue;
    const QRect place = QRectF(pane->position(), pane->size()).toRect();
    pane->SetCovered(QRegion(place).subtracted(front).isEmpty());
    if (dynamic_cast<PaneItem*>(pane) != nullptr) front += place;
  }
}

void OnAirWindow::FollowScreen(QScreen* screen) {
  if (screen != nullptr) scene_.scheduler.SetFrameRate(screen->refreshRate());
}

void OnAirWindow::ApplyPlace() {
  placeIsDue_.stop();
  const QRect place = PlaceOf(form_);
  if (window_->geometry() != place) window_->setGeometry(place);
}

void OnAirWindow::AdoptPlace() {
  if (!window_->isVisible() || placeIsDue_.isActive()) return;
  const QRect wanted = PlaceOf(form_);
  const QRect actual = window_->geometry();
  const auto adopt = [](Property<Twips>& measure, int wish, int is) {
    if (wish != is) measure = is * kTwipsPerPixel;
  };
  adopt(form_.Left, wanted.x(), actual.x());
  adopt(form_.Top, wanted.y(), actual.y());
  adopt(form_.Width, wanted.width(), actual.width());
  adopt(form_.Height, wanted.height(), actual.height());
}

void OnAirWindow::DragWindow(std::function<void()> done) {
  const QPoint from = window_->position();
  drag_ = {pressedAt_,
           [this, from](QPoint moved) {
             form_.Left = (from.x() + moved.x()) * kTwipsPerPixel;
             form_.Top = (from.y() + moved.y()) * kTwipsPerPixel;
           },
           std::move(done)};
}

void OnAirWindow::DragPane(Control& pane, std::function<void()> done) {
  drag_ = {pressedAt_,
           [&pane, left = pane.Left.Get(), top = pane.Top.Get()](QPoint moved) {
             pane.Left = left + moved.x() * kTwipsPerPixel;
             pane.Top = top + moved.y() * kTwipsPerPixel;
           },
           std::move(done)};
}

void OnAirWindow::EndDrag() {
  const Drag ended = std::exchange(drag_, {});
  if (ended.done) ended.done();
}

bool OnAirWindow::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
      settled_.start();
      break;
    case QEvent::Close:
      event->ignore();  // a close key on the output display does not take the channel off the air
      return true;
    case QEvent::MouseButtonPress:
      pressedAt_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
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

#include "platform/qt/scene/Sheet.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <algorithm>
#include <chrono>

#include "platform/qt/desktop/WindowClass.h"
#include "platform/qt/scene/FrameItem.h"
#include "platform/qt/scene/GlassItem.h"
#include "platform/qt/scene/OnAirStack.h"
#include "platform/qt/scene/PaneItem.h"

namespace {

constexpr std::chrono::milliseconds kBetweenShapes{100};
constexpr std::chrono::seconds kUntilSettled{5};  // most movies have come round by then
constexpr int kSolid = 128;                       // where nobody paints what is behind, a pixel is seen or it is not
const QRect kNowhere(-1, -1, 1, 1);               // an empty shape would mean none
constexpr qreal kInFrontOfAll = 1 << 20;

}  // namespace

Sheet::Sheet(QQuickWindow& window, const std::vector<ControlItem*>& items, OnAirStack& stack)
    : window_(window), stack_(stack) {
  for (ControlItem* item : items) {
    if (auto* frames = dynamic_cast<FrameItem*>(item)) {
      Surface& surface = surfaces_.emplace_back();
      surface.item = frames;
      surface.following = {frames->PictureChanged.Subscribe([this, &surface] { PictureCame(surface); }),
                           frames->Renewed.Subscribe([this, &surface] { Restart(surface); })};
    } else if (dynamic_cast<PaneItem*>(item) != nullptr) {
      panes_.push_back(item);
    }
  }
  for (QTimer* timer : {&shapeIsDue_, &settled_}) timer->setSingleShot(true);
  settled_.setInterval(kUntilSettled);
  connect(&shapeIsDue_, &QTimer::timeout, this, &Sheet::ApplyShape);
  connect(&settled_, &QTimer::timeout, this, &Sheet::Settle);
  const auto moved = [this] { stack_.ArrangeSoon(); };
  for (const auto changed : {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged}) {
    connect(&window, changed, this, moved);
  }
  stack_.Add(*this);
}

Sheet::~Sheet() { stack_.Remove(*this); }

void Sheet::SetShown(bool shown) {
  if (std::exchange(isShown_, shown) == shown) return;
  base_.clear();
  if (shown) stack_.ComeForward(*this);
  stack_.Arrange();
  stack_.ArrangeSoon();
}

void Sheet::SetOnTop(bool onTop) {
  isOnTop_ = onTop;
  if (onTop) ComeForward();
  stack_.ArrangeSoon();
}

void Sheet::SetSeeThrough(bool seeThrough) {
  if (std::exchange(isSeeThrough_, seeThrough) == seeThrough) return;
  if (!seeThrough) BeWhole();
  stack_.Arrange();
}

void Sheet::ComeForward() { stack_.ComeForward(*this); }

bool Sheet::PassOn(const QEvent& event) {
  const auto* mouse = dynamic_cast<const QMouseEvent*>(&event);
  if (mouse == nullptr) return false;
  if (mouse->type() == QEvent::MouseButtonPress && !passedTo_) {
    const auto isThere = [&](const GlassItem* item) { return item->contains(item->mapFromScene(mouse->position())); };
    const auto found = std::ranges::find_if(glass_, isThere);
    if (found != glass_.end()) passedTo_ = (*found)->Whose();
  }
  if (!passedTo_) return false;
  QQuickWindow& other = *passedTo_;
  if (mouse->buttons() == Qt::NoButton) passedTo_.clear();
  const QPointF place = mouse->globalPosition() - other.position();
  QMouseEvent told(mouse->type(), place, place, mouse->globalPosition(), mouse->button(), mouse->buttons(),
                   mouse->modifiers());
  QCoreApplication::sendEvent(&other, &told);
  return true;  // what was pressed may have taken any window down, this one too
}

void Sheet::BeWhole() {
  isCut_ = false;
  shapeIsDue_.stop();
  if (!window_.mask().isEmpty()) window_.setMask({});
  if (isSeeThrough_) SetBackground(window_, Background::kTransparent);
}

void Sheet::BeCut(const Surroundings& around) {
  const bool stays = isCut_ && around == around_;
  around_ = around;
  if (!std::exchange(isCut_, true)) {
    SetBackground(window_, Background::kNone);
    for (Surface& surface : surfaces_) {
      Restart(surface);
      surface.lasting.Take(surface.item->Picture());
    }
  }
  if (!stays) ApplyShape();
}

void Sheet::BelongTo(Sheet* base) {
  QQuickWindow* window = base != nullptr ? &base->window_ : nullptr;
  if (window == base_ || !window_.isVisible()) return;  // what it is told before it is shown is lost
  base_ = window;
  StandBefore(window_, window);
}

void Sheet::Restart(Surface& surface) {
  surface.lasting.Restart();
  settled_.start();
}

void Sheet::Settle() {
  for (Surface& surface : surfaces_) surface.lasting.Settle();
  if (isCut_) ApplyShape();
}

void Sheet::PictureCame(Surface& surface) {
  if (!isCut_) return;
  surface.lasting.Take(surface.item->Picture());
  if (shapeIsDue_.isActive()) return;
  const std::chrono::milliseconds since(sinceShape_.isValid() ? sinceShape_.elapsed() : kBetweenShapes.count());
  if (since >= kBetweenShapes) {
    ApplyShape();  // before the picture is painted: nothing of the former one is left standing
  } else {
    shapeIsDue_.start(kBetweenShapes - since);
  }
}

void Sheet::ApplyShape() {
  shapeIsDue_.stop();
  sinceShape_.start();
  const QRegion shape = Shape();
  const QRegion mask = shape.isEmpty() ? QRegion(kNowhere) : shape;
  if (window_.mask() != mask) window_.setMask(mask);
}

// Where an opaque window behind paints the picture, the window itself shows only what lets nothing through and goes on
// doing so. It is not needed there for the picture; it keeps it in front of what is not the station's.
QRegion Sheet::Shape() {
  const QPoint corner = window_.position();
  const QRegion painted = around_.opaqueBehind.translated(-corner);
  const QRegion covered = around_.glassInFront.translated(-corner);
  const bool isAllPainted = (QRegion({{}, window_.size()}) - painted).isEmpty();
  QRegion shape;
  for (Surface& surface : surfaces_) {
    const QImage& picture = surface.item->Picture();
    if (picture.isNull() || !surface.item->isVisible()) continue;
    const QPoint place = surface.item->mapToScene(surface.item->PicturePlace().topLeft()).toPoint();
    if (!isAllPainted) shape += AlphaShape(picture, kSolid).translated(place) - painted;
    if (!painted.isEmpty()) shape += (surface.lasting.Region().translated(place) & painted) - covered;
  }
  for (const ControlItem* pane : panes_) {
    if (pane->isVisible()) shape += pane->mapRectToScene(pane->boundingRect()).toRect();
  }
  return shape;
}

GlassItem* Sheet::GlassOf(const FrameItem& surface) const {
  const auto found = std::ranges::find_if(glass_, [&](const GlassItem* item) { return item->Shows(surface); });
  return found == glass_.end() ? nullptr : *found;
}

// The items stay as long as what they show: one of them may hold the pointer that drags its window.
void Sheet::PaintGlass(const std::vector<Sheet*>& sheets) {
  std::vector<GlassItem*> wanted;
  qreal z = kInFrontOfAll;
  for (const Sheet* sheet : sheets) {
    for (const Surface& surface : sheet->surfaces_) {
      GlassItem* item = GlassOf(*surface.item);
      if (item == nullptr) item = new GlassItem(*surface.item, *window_.contentItem());
      item->setZ(z--);
      item->Place();
      wanted.push_back(item);
    }
  }
  for (GlassItem* item : glass_) {
    if (std::ranges::find(wanted, item) != wanted.end()) continue;
    item->setParentItem(nullptr);
    item->deleteLater();
  }
  glass_ = std::move(wanted);
}

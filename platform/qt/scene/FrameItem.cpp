#include "platform/qt/scene/FrameItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <utility>

#include "platform/qt/QtScheduler.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/PlayerControl.h"

namespace {

template <class Platform>
FrameSource* SourceOf(Platform* platform) {
  auto* shows = dynamic_cast<ShowsFrames*>(platform);
  return shows == nullptr ? nullptr : &shows->Frames();
}

}  // namespace

QSGImageNode* FrameNode(QSGImageNode* old, const QImage& frame, bool& isNew, const QRectF& place,
                        QQuickWindow& window) {
  if (frame.isNull()) {
    delete old;
    return nullptr;
  }
  QSGImageNode* node = old;
  if (node == nullptr) {
    node = window.createImageNode();
    node->setOwnsTexture(true);
    node->setFiltering(QSGTexture::Nearest);
    isNew = true;
  }
  if (std::exchange(isNew, false)) {
    const auto kind = frame.hasAlphaChannel() ? QQuickWindow::TextureHasAlphaChannel : QQuickWindow::TextureIsOpaque;
    node->setTexture(window.createTextureFromImage(frame, kind));
    node->markDirty(QSGNode::DirtyMaterial);
  }
  node->setRect(place);
  return node;
}

MediaItem::MediaItem(PlayerControl& player, QQuickItem& parent, Scene& scene)
    : FrameItem(player, SourceOf(player.Platform()), Back::kBlack, parent, scene) {}

QRectF MediaItem::Part() const {
  const QRectF whole(0, 0, width(), height());
  return parentItem() == nullptr ? whole : whole & mapRectFromItem(parentItem(), parentItem()->boundingRect());
}

FlashItem::FlashItem(FlashBox& box, QQuickItem& parent, Scene& scene)
    : FrameItem(box, SourceOf(box.Platform()), Back::kNone, parent, scene) {
  const auto key = [this, &form = box.Owner()] { SetKey(form.KeyInForce()); };
  Follow(box.Owner().ExtendedStyle, key);
  Follow(box.Owner().KeyColour, key);
  key();
}

FrameItem::FrameItem(Control& control, FrameSource* source, Back back, QQuickItem& parent, Scene& scene)
    : ControlItem(control, parent), scene_(scene), frames_(source), back_(back) {
  if (frames_) {
    connect(frames_, &FrameSource::Changed, this, &FrameItem::AskForFrame);
    connect(frames_, &FrameSource::Renewed, this, [this] { Renewed.Raise(); });
  }
  placeIsDue_.setSingleShot(true);
  connect(&placeIsDue_, &QTimer::timeout, this, &FrameItem::PlacePicture);
  const auto due = [this] { placeIsDue_.start(0); };
  connect(&parent, &QQuickItem::widthChanged, this, due);
  connect(&parent, &QQuickItem::heightChanged, this, due);
  connect(parent.window(), &QWindow::visibleChanged, this, due);
  due();
}

void FrameItem::Detach() {
  ControlItem::Detach();
  if (frames_) frames_->SetTarget({});
  frames_.clear();
}

// The last frame stays: a break leaves the paused item just as it found it.
void FrameItem::SetCovered(bool covered) {
  if (covered == covered_) return;
  covered_ = covered;
  placeIsDue_.start(0);
}

void FrameItem::geometryChange(const QRectF& now, const QRectF& before) {
  ControlItem::geometryChange(now, before);
  placeIsDue_.start(0);
}

void FrameItem::itemChange(ItemChange change, const ItemChangeData& data) {
  ControlItem::itemChange(change, data);
  if (change != ItemVisibleHasChanged) return;
  // A surface that is hidden asks for no frames, and comes back black rather than with what it showed long ago.
  if (!data.boolValue) {
    if (frames_) frames_->SetTarget({});
    Show({});
  }
  placeIsDue_.start(0);
}

// Not when the item is painted: a see-through window of which nothing is seen yet is never painted.
void FrameItem::PlacePicture() {
  if (const QRectF part = Part(); part != part_) {
    part_ = part;
    PictureChanged.Raise();
  }
  if (frames_) frames_->SetTarget(IsSeen() ? part_.size().toSize() : QSize());
  update();
}

bool FrameItem::IsSeen() const { return isVisible() && !covered_ && window() != nullptr && window()->isVisible(); }

void FrameItem::AskForFrame() {
  if (std::exchange(asked_, true)) return;
  scene_.scheduler.OnNextFrame([self = QPointer(this)] {
    if (self) self->TakeFrame();
  });
}

void FrameItem::TakeFrame() {
  asked_ = false;
  if (!frames_) return;
  if (const auto frame = frames_->Take()) Show(*frame);
}

void FrameItem::Show(const QImage& frame) {
  frame_ = frame;
  frameIsNew_ = true;
  update();
  PictureChanged.Raise();
}

void FrameItem::SetKey(const std::optional<Colour>& key) {
  if (!frames_) return;
  frames_->SetKey(key ? std::optional(qRgb(key->red, key->green, key->blue)) : std::nullopt);
}

QSGNode* FrameItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  if (back_ == Back::kNone) return PictureNode(static_cast<QSGImageNode*>(old));
  auto* black = static_cast<QSGRectangleNode*>(old);
  if (black == nullptr) black = window()->createRectangleNode();
  black->setColor(Qt::black);
  black->setRect(boundingRect());
  auto* picture = static_cast<QSGImageNode*>(black->firstChild());
  QSGImageNode* now = PictureNode(picture);
  if (now != nullptr && picture == nullptr) black->appendChildNode(now);  // it has its texture by now, as it must
  return black;
}

QSGImageNode* FrameItem::PictureNode(QSGImageNode* old) {
  return FrameNode(old, frame_, frameIsNew_, part_, *window());
}

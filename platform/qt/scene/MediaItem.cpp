#include "platform/qt/scene/MediaItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <utility>

#include "platform/qt/QtScheduler.h"
#include "platform/qt/media/FrameSource.h"
#include "platform/toolkit/PlayerControl.h"

MediaItem::MediaItem(PlayerControl& player, QQuickItem& parent, Scene& scene)
    : ControlItem(player, parent), scene_(scene) {
  if (auto* shows = dynamic_cast<ShowsFrames*>(player.Platform())) {
    frames_ = &shows->Frames();
    connect(frames_, &FrameSource::Changed, this, &MediaItem::AskForFrame);
  }
  connect(&parent, &QQuickItem::widthChanged, this, &MediaItem::polish);
  connect(&parent, &QQuickItem::heightChanged, this, &MediaItem::polish);
  connect(&parent, &QQuickItem::windowChanged, this, &MediaItem::polish);
  polish();
}

void MediaItem::Detach() {
  ControlItem::Detach();
  if (frames_) frames_->SetTarget({});
  frames_.clear();
}

// The last frame stays: a break leaves the paused item just as it found it.
void MediaItem::SetCovered(bool covered) {
  if (covered == covered_) return;
  covered_ = covered;
  polish();
}

void MediaItem::geometryChange(const QRectF& now, const QRectF& before) {
  ControlItem::geometryChange(now, before);
  polish();
}

void MediaItem::itemChange(ItemChange change, const ItemChangeData& data) {
  ControlItem::itemChange(change, data);
  if (change != ItemVisibleHasChanged) return;
  // A surface that is hidden asks for no frames, and comes back black rather than with what it showed long ago.
  if (!data.boolValue) {
    if (frames_) frames_->SetTarget({});
    frame_ = {};
    frameIsNew_ = true;
    update();
  }
  polish();
}

void MediaItem::updatePolish() {
  const QRectF whole(0, 0, width(), height());
  seen_ = parentItem() == nullptr ? whole : whole & mapRectFromItem(parentItem(), parentItem()->boundingRect());
  if (frames_) frames_->SetTarget(isVisible() && !covered_ ? seen_.size().toSize() : QSize());
  update();
}

// Frames come when they are due; they are shown with the ticks of the next output frame, so that a band that moves and
// the picture under it are painted once.
void MediaItem::AskForFrame() {
  if (std::exchange(asked_, true)) return;
  scene_.scheduler.OnNextFrame([self = QPointer(this)] {
    if (self) self->TakeFrame();
  });
}

void MediaItem::TakeFrame() {
  asked_ = false;
  if (!frames_) return;
  if (const auto frame = frames_->Take()) {
    frame_ = *frame;
    frameIsNew_ = true;
    update();
  }
}

QSGNode* MediaItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  auto* node = static_cast<QSGRectangleNode*>(old);
  if (node == nullptr) {
    node = window()->createRectangleNode();
    node->setColor(Qt::black);
    frameIsNew_ = true;
  }
  node->setRect(boundingRect());
  auto* picture = static_cast<QSGImageNode*>(node->firstChild());
  if (frame_.isNull()) {
    delete picture;
    return node;
  }
  const bool isNew = picture == nullptr;
  if (isNew) {
    picture = window()->createImageNode();
    picture->setOwnsTexture(true);
    picture->setFiltering(QSGTexture::Nearest);
  }
  if (std::exchange(frameIsNew_, false)) {
    picture->setTexture(window()->createTextureFromImage(frame_, QQuickWindow::TextureIsOpaque));
    picture->markDirty(QSGNode::DirtyMaterial);
  }
  picture->setRect(seen_);
  if (isNew) node->appendChildNode(picture);  // only now: a node in the tree must have its texture
  return node;
}

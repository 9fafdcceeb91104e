#include "platform/qt/scene/FrameItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <utility>

#include "platform/qt/QtScheduler.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/PlayerControl.h"

namespace {

template <class Platform>
FrameSource* SourceOf(Platform* platform) {
  auto* shows = dynamic_cast<ShowsFrames*>(platform);
  return shows == nullptr ? nullptr : &shows->Frames();
}

}  // namespace

MediaItem::MediaItem(PlayerControl& player, QQuickItem& parent, Scene& scene)
    : FrameItem(player, SourceOf(player.Platform()), Back::kBlack, parent, scene) {}

QRectF MediaItem::Part() const {
  const QRectF whole(0, 0, width(), height());
  return parentItem() == nullptr ? whole : whole & mapRectFromItem(parentItem(), parentItem()->boundingRect());
}

FlashItem::FlashItem(FlashBox& box, QQuickItem& parent, Scene& scene)
    : FrameItem(box, SourceOf(box.Platform()), Back::kNone, parent, scene) {}

FrameItem::FrameItem(Control& control, FrameSource* source, Back back, QQuickItem& parent, Scene& scene)
    : ControlItem(control, parent), scene_(scene), frames_(source), back_(back) {
  if (frames_) connect(frames_, &FrameSource::Changed, this, &FrameItem::AskForFrame);
  connect(&parent, &QQuickItem::widthChanged, this, &FrameItem::polish);
  connect(&parent, &QQuickItem::heightChanged, this, &FrameItem::polish);
  connect(&parent, &QQuickItem::windowChanged, this, &FrameItem::polish);
  polish();
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
  polish();
}

void FrameItem::geometryChange(const QRectF& now, const QRectF& before) {
  ControlItem::geometryChange(now, before);
  polish();
}

void FrameItem::itemChange(ItemChange change, const ItemChangeData& data) {
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

void FrameItem::updatePolish() {
  part_ = Part();
  if (frames_) frames_->SetTarget(isVisible() && !covered_ ? part_.size().toSize() : QSize());
  update();
}

void FrameItem::AskForFrame() {
  if (std::exchange(asked_, true)) return;
  scene_.scheduler.OnNextFrame([self = QPointer(this)] {
    if (self) self->TakeFrame();
  });
}

void FrameItem::TakeFrame() {
  asked_ = false;
  if (!frames_) return;
  if (const auto frame = frames_->Take()) {
    frame_ = *frame;
    frameIsNew_ = true;
    update();
  }
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
  if (frame_.isNull()) {
    delete old;
    return nullptr;
  }
  QSGImageNode* node = old;
  if (node == nullptr) {
    node = window()->createImageNode();
    node->setOwnsTexture(true);
    node->setFiltering(QSGTexture::Nearest);
    frameIsNew_ = true;
  }
  if (std::exchange(frameIsNew_, false)) {
    const auto kind = back_ == Back::kBlack ? QQuickWindow::TextureIsOpaque : QQuickWindow::TextureHasAlphaChannel;
    node->setTexture(window()->createTextureFromImage(frame_, kind));
    node->markDirty(QSGNode::DirtyMaterial);
  }
  node->setRect(part_);
  return node;
}

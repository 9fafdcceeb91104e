#include "platform/qt/scene/GlassItem.h"

#include <QQuickWindow>
#include <QSGImageNode>

GlassItem::GlassItem(FrameItem& surface, QQuickItem& parent) : QQuickItem(&parent), surface_(&surface) {
  setFlag(ItemHasContents);
  following_ = surface.PictureChanged.Subscribe([this] { Follow(); });
  Follow();
}

void GlassItem::Follow() {
  pictureIsNew_ = true;
  Place();
  update();
}

void GlassItem::Place() {
  if (!surface_ || surface_->window() == nullptr || window() == nullptr) return;
  const QRectF place = surface_->mapRectToScene(surface_->PicturePlace());
  setPosition(place.topLeft() + surface_->window()->position() - window()->position());
  setSize(place.size());
}

bool GlassItem::contains(const QPointF& point) const {
  if (!surface_) return false;
  const QImage& picture = surface_->Picture();
  const QPoint pixel(qFloor(point.x()), qFloor(point.y()));
  return picture.rect().contains(pixel) && qAlpha(picture.pixel(pixel)) > 0;
}

QSGNode* GlassItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  const QImage picture = surface_ ? surface_->Picture() : QImage();
  return FrameNode(static_cast<QSGImageNode*>(old), picture, pictureIsNew_, boundingRect(), *window());
}

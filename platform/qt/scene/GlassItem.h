#pragma once

#include <QPointer>
#include <QQuickItem>

#include "platform/qt/scene/FrameItem.h"

// The picture of a see-through window's surface, painted once more by an opaque window behind it, where it stands on
// the screen: so a half-transparent pixel stands over what that window shows, without a compositing manager.
class GlassItem : public QQuickItem {
 public:
  // `parent` fills the opaque window. The surface may go before it.
  GlassItem(FrameItem& surface, QQuickItem& parent);

  bool Shows(const FrameItem& surface) const { return surface_ == &surface; }
  // The see-through window; null when it is gone.
  QQuickWindow* Whose() const { return surface_ ? surface_->window() : nullptr; }
  // One of either window has moved.
  void Place();

  // True of a place where something of the picture is seen.
  bool contains(const QPointF& point) const override;

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;

 private:
  void Follow();

  QPointer<FrameItem> surface_;
  Subscription following_;
  bool pictureIsNew_ = true;
};

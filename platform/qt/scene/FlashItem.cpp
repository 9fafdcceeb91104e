#include "platform/qt/scene/FlashItem.h"

#include <utility>

FlashItem::FlashItem(FlashBox& box, QQuickItem& parent, Scene& scene) : ControlItem(box, parent), scene_(scene) {
  const auto load = [this, &box] {
    path_ = QString::fromStdString(box.File());
    polish();
  };
  Follow(box.Movie, load);
  load();
}

void FlashItem::geometryChange(const QRectF& now, const QRectF& before) {
  ControlItem::geometryChange(now, before);
  if (now.size() != before.size()) polish();
}

// Once for all the changes of a handler: a layout sets file, width and height one by one.
void FlashItem::updatePolish() {
  const auto show = [this, wish = ++wish_](SharedPicture picture) {
    const bool isBad = !picture && !path_.isEmpty();
    if (wish != wish_ || isBad || picture == picture_) return;
    picture_ = std::move(picture);
    pictureIsNew_ = true;
    update();
  };
  const QSize pixels = size().toSize();
  if (path_.isEmpty()) {
    show(nullptr);
  } else if (!pixels.isEmpty()) {
    scene_.pictures.Load(path_, pixels, this, show);
  }
}

QSGNode* FlashItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  if (old != nullptr && !std::exchange(pictureIsNew_, false)) return old;
  return PictureNode(old, picture_, window());
}

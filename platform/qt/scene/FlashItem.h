#pragma once

#include "platform/qt/scene/ControlItem.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/toolkit/FlashBox.h"

// A flash surface that shows pictures, each over the whole of its rectangle. What is no picture leaves what was shown.
class FlashItem : public ControlItem {
 public:
  FlashItem(FlashBox& box, QQuickItem& parent, Scene& scene);

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void updatePolish() override;

 private:
  QString path_;
  Scene& scene_;
  SharedPicture picture_;
  bool pictureIsNew_ = true;
  int wish_ = 0;  // counts the loads asked for; only the last one is shown
};

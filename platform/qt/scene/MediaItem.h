#pragma once

#include <QImage>

#include "platform/qt/scene/ControlItem.h"

class FrameSource;
class PlayerControl;

// A player's surface: black, and its picture over it. The picture is laid out in the part of the surface that its pane
// lets be seen: what of it stands below the pane's edge is the place of a transport bar that nobody sees.
class MediaItem : public ControlItem {
 public:
  MediaItem(PlayerControl& player, QQuickItem& parent, Scene& scene);

  void Detach() override;
  void SetCovered(bool covered) override;

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void updatePolish() override;

 private:
  void AskForFrame();
  void TakeFrame();

  Scene& scene_;
  QPointer<FrameSource> frames_;
  QRectF seen_;  // the part that is seen, in the item's own measures
  QImage frame_;
  bool covered_ = false;
  bool asked_ = false;
  bool frameIsNew_ = true;
};

#pragma once

#include <QImage>

#include "platform/qt/scene/ControlItem.h"

class FlashBox;
class FrameSource;
class PlayerControl;
class QSGImageNode;

// A surface whose pictures come from elsewhere, one after the other: of a player, a movie or a page. They are taken at
// the next output frame after they are due, so that a band that moves and the pictures over it are painted once.
class FrameItem : public ControlItem {
 public:
  void Detach() override;
  void SetCovered(bool covered) override;

 protected:
  enum class Back { kBlack, kNone };

  // `source` may be null: nothing but the back is shown.
  FrameItem(Control& control, FrameSource* source, Back back, QQuickItem& parent, Scene& scene);

  // The part in which the picture is laid out, in the item's own measures.
  virtual QRectF Part() const { return {0, 0, width(), height()}; }

  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void updatePolish() override;

 private:
  void AskForFrame();
  void TakeFrame();
  QSGImageNode* PictureNode(QSGImageNode* old);

  Scene& scene_;
  QPointer<FrameSource> frames_;
  Back back_;
  QRectF part_;
  QImage frame_;
  bool covered_ = false;
  bool asked_ = false;
  bool frameIsNew_ = true;
};

// A player's surface: black, and its picture over it. The picture is laid out in the part of the surface that its pane
// lets be seen: what of it stands below the pane's edge is the place of a transport bar that nobody sees.
class MediaItem : public FrameItem {
 public:
  MediaItem(PlayerControl& player, QQuickItem& parent, Scene& scene);

 protected:
  QRectF Part() const override;
};

// A flash surface: its movie over the whole of it, and nothing behind.
class FlashItem : public FrameItem {
 public:
  FlashItem(FlashBox& box, QQuickItem& parent, Scene& scene);
};

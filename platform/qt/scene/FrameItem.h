#pragma once

#include <QImage>
#include <QTimer>

#include "platform/qt/scene/ControlItem.h"
#include "platform/toolkit/Event.h"

class FlashBox;
class FrameSource;
class PlayerControl;
class QSGImageNode;

// The node that shows a picture at a place of its own size; null for the null picture. `old` is what the last call
// gave, and `isNew` says whether the picture has changed since: it is spent.
QSGImageNode* FrameNode(QSGImageNode* old, const QImage& frame, bool& isNew, const QRectF& place, QQuickWindow& window);

// A surface whose pictures come from elsewhere, one after the other: of a player, a movie or a page. They are taken at
// the next output frame after they are due, so that a band that moves and the pictures over it are painted once.
class FrameItem : public ControlItem {
 public:
  void Detach() override;
  void SetCovered(bool covered) override;

  // What it shows now, null for nothing, and where in the item.
  const QImage& Picture() const { return frame_; }
  QRectF PicturePlace() const { return part_; }
  Event<> PictureChanged;  // or its place in the item
  Event<> Renewed;         // the next picture is the first one of another file

 protected:
  enum class Back { kBlack, kNone };

  // `source` may be null: nothing but the back is shown.
  FrameItem(Control& control, FrameSource* source, Back back, QQuickItem& parent, Scene& scene);

  // The part in which the picture is laid out, in the item's own measures.
  virtual QRectF Part() const { return {0, 0, width(), height()}; }

  // See FrameSource.
  void SetKey(const std::optional<Colour>& key);

  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void PlacePicture();
  bool IsSeen() const;
  void AskForFrame();
  void TakeFrame();
  void Show(const QImage& frame);
  QSGImageNode* PictureNode(QSGImageNode* old);

  Scene& scene_;
  QPointer<FrameSource> frames_;
  Back back_;
  QTimer placeIsDue_;  // once for all changes of a handler
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

#pragma once

#include "platform/qt/scene/ControlItem.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/toolkit/Panes.h"

// A pane: its colour, its picture over it, and over that what it holds, all cut off at its edge.
class PaneItem : public ControlItem {
 public:
  PaneItem(PictureBox& pane, QQuickItem& parent, Scene& scene);

  void Detach() override;
  bool IsSeeThrough() const { return colour_.alpha() == 0; }

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;

 private:
  void LoadPicture();

  PictureBox* pane_;  // null when the control is gone
  Scene& scene_;
  QColor colour_;
  SharedPicture picture_;
  bool pictureIsNew_ = false;
  int load_ = 0;   // the load that is asked for
  int shown_ = 0;  // the load of the picture that is shown
};

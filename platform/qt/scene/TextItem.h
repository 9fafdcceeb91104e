#pragma once

#include "platform/qt/scene/ControlItem.h"
#include "platform/toolkit/Panes.h"

// A line of text, as high as its rectangle allows, from its left edge.
class TextItem : public ControlItem {
 public:
  TextItem(PaneText& text, QQuickItem& parent, Scene& scene);

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  QString text_;
  QColor colour_;
};

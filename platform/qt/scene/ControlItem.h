#pragma once

#include <QPointer>
#include <QQuickItem>
#include <vector>

#include "platform/qt/scene/Scene.h"
#include "platform/toolkit/Control.h"

// One control of an on-air form in the scene: it stands where the control stands and is seen when the control is.
class ControlItem : public QQuickItem {
 public:
  ControlItem(Control& control, QQuickItem& parent);

  // The control is about to go: the item follows it no more. It may itself live a little longer.
  virtual void Detach();
  // Whether panes in front hide it wholly. It passes the word on to what it holds.
  virtual void SetCovered(bool covered);

 protected:
  void mousePressEvent(QMouseEvent* event) override;

  // Calls `handler` whenever the property changes, until Detach.
  template <class P>
  void Follow(P& property, std::function<void()> handler) {
    following_.push_back(property.Changed.Subscribe(std::move(handler)));
  }

 private:
  void Place();

  Control* control_;
  std::vector<Subscription> following_;
};

#pragma once

#include <QObject>
#include <QTimer>
#include <vector>

#include "platform/qt/desktop/BareDesktop.h"
#include "platform/qt/desktop/Compositor.h"

class Sheet;

// The on-air windows as they stand in front of each other. While no compositing manager draws them, it has the opaque
// ones paint what of the see-through ones stands in front of them, and cuts the see-through ones to what stays solid.
// While any of them is shown the desktop is not laid bare.
class OnAirStack : public QObject {
 public:
  OnAirStack();

  // Those that came forward last stand in front, those on top in front of all others.
  void Add(Sheet& sheet);
  void Remove(Sheet& sheet);
  void ComeForward(Sheet& sheet);
  // Once for all changes of a handler.
  void ArrangeSoon() { arrangeIsDue_.start(0); }
  void Arrange();
  // True of the window that everything else stands over: the largest of those that are opaque.
  bool IsLargest(const Sheet& sheet) const;

 private:
  std::vector<Sheet*> Shown() const;
  void StayOnTheScreen();

  Compositor compositor_;
  BareDesktop bareDesktop_;
  std::vector<Sheet*> sheets_;  // front to back, whether on top or not
  QTimer arrangeIsDue_;
};

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRegion>
#include <QTimer>
#include <list>
#include <vector>

#include "platform/qt/scene/AlphaShape.h"
#include "platform/toolkit/Event.h"

class ControlItem;
class FrameItem;
class GlassItem;
class OnAirStack;

// One on-air window among the others: what of it is on the screen while nobody but the X server puts the windows
// together, and what of those in front it paints for them.
class Sheet : public QObject {
 public:
  // What stands round a see-through window, in pixels of the screen.
  struct Surroundings {
    QRegion opaqueBehind;  // opaque windows, which paint its picture there
    QRegion glassInFront;  // other see-through windows
    bool operator==(const Surroundings&) const = default;
  };

  // Of a window with these items, hidden and opaque.
  Sheet(QQuickWindow& window, const std::vector<ControlItem*>& items, OnAirStack& stack);
  ~Sheet() override;

  // Before the window itself is shown or hidden, so that it never comes up whole for a moment.
  void SetShown(bool shown);
  void SetOnTop(bool onTop);
  void SetSeeThrough(bool seeThrough);
  void ComeForward();
  // The window's mouse events: those on what it paints for another window, until the button is let go, are that one's.
  // True when it was handed on.
  bool PassOn(const QEvent& event);

  // The stack's side.
  bool IsShown() const { return isShown_; }
  bool IsOnTop() const { return isOnTop_; }
  bool IsSeeThrough() const { return isSeeThrough_; }
  QRect Place() const { return window_.geometry(); }
  // The window's own alpha says what is seen of it.
  void BeWhole();
  // The window takes the shape of what is to be seen of it, at once and whenever its picture changes.
  void BeCut(const Surroundings& around);
  // The window stays in front of that one; null: it stands for itself.
  void BelongTo(Sheet* base);
  // Paints those windows' pictures, front to back, over all that is its own.
  void PaintGlass(const std::vector<Sheet*>& sheets);

 private:
  struct Surface {
    FrameItem* item = nullptr;
    LastingShape lasting;
    std::vector<Subscription> following;
  };

  void PictureCame(Surface& surface);
  void Restart(Surface& surface);
  void Settle();
  void ApplyShape();
  QRegion Shape();
  GlassItem* GlassOf(const FrameItem& surface) const;

  QQuickWindow& window_;
  OnAirStack& stack_;
  std::list<Surface> surfaces_;
  std::vector<ControlItem*> panes_;  // opaque throughout
  std::vector<GlassItem*> glass_;    // what is painted for others, front to back
  QPointer<QQuickWindow> passedTo_;  // has the pointer until the button is let go
  bool isShown_ = false;
  bool isOnTop_ = false;
  bool isSeeThrough_ = false;
  bool isCut_ = false;
  Surroundings around_;
  QPointer<QQuickWindow> base_;
  QTimer shapeIsDue_;
  QElapsedTimer sinceShape_;
  QTimer settled_;
};

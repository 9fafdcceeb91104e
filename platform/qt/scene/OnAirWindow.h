#pragma once

#include <QMargins>
#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Windows.h"
#include "platform/qt/scene/Scene.h"
#include "platform/toolkit/Event.h"

class ControlItem;
class MapWatch;
class QQuickItem;
class QQuickWindow;
class Sheet;

// The real window behind an on-air form: borderless, one scene that mirrors the form's panes. It never takes the
// keyboard by being shown. That of a preview has the desktop's own frame around it: what the form calls its place is
// the place of the frame, of which kPreviewFrame of the height belong to the frame, however high that really is.
class OnAirWindow : public QObject, public FormWindow {
 public:
  // `scene` must outlive it, and so must the form.
  OnAirWindow(Form& form, Scene& scene);
  ~OnAirWindow() override;

  void Focus(const Control&) override {}
  void DragWindow(std::function<void()> done) override;
  void DragPane(Control& pane, std::function<void()> done) override;
  void FollowPointer(std::function<void(Twips right, Twips down)> moved) override;
  void PutPointer(Twips right, Twips down) override;
  void PopUp(const MenuItem&) override {}  // no menu stands on the air

  // For those that look at pixels.
  QQuickWindow* Window() const { return window_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  // A drag that the pointer carries out: what it moves, from where, and what follows.
  struct Drag {
    QPoint pressedAt;
    std::function<void(QPoint moved)> move;
    std::function<void()> done;
  };

  void Mirror(const std::vector<Control*>& controls, QQuickItem& parent);
  void FollowScreen();  // ticks come at the rate of the display that the window is on
  void FindCovered();
  bool IsOutput() const;
  bool HasFrame() const;
  void ApplyVisible();
  bool IsSeeThrough() const;
  void ApplyStyle();
  void KeepAlpha();
  void ComeForward();
  QRect WantedPlace();
  void ApplyPlace();
  void AdoptPlace();
  void EndDrag();

  Form& form_;
  Scene& scene_;
  QQuickWindow* window_;  // outlives this object until the event that it may be handling is over
  std::vector<ControlItem*> items_;
  std::vector<ControlItem*> panes_;  // those directly on the form, front to back
  std::unique_ptr<Sheet> sheet_;     // its place among the on-air windows; none with HasFrame
  const bool hasAlpha_;              // of the native window
  std::unique_ptr<MapWatch> watch_;  // no key of the desktop takes the channel off the air, nor a lost request
  std::vector<Subscription> following_;
  QTimer placeIsDue_;  // applies the form's place once for all changes of a handler
  QTimer coverIsDue_;  // finds out, likewise once, which panes are hidden by others
  QMargins frame_;     // the desktop's, as it was taken into account last; none without HasFrame
  QTimer settled_;     // takes the window's place over into the form when it has come to rest
  QPoint pressedAt_;   // where on the screen a button went down last
  Drag drag_;
};

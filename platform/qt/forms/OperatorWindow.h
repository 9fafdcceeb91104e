#pragma once

#include <functional>
#include <memory>

#include "platform/Windows.h"
#include "platform/qt/forms/Binder.h"
#include "platform/qt/forms/Joint.h"

class Form;
class MapWatch;

// A form before the operator: the widgets of its layout file in a window of the desktop. The window follows the form's
// caption, place, size and visibility, and tells the form where the operator moves it. A form without a layout file is
// an empty window.
//
// Properties of the layout's own window: `frameless` (no title bar), `noMinimize` (no minimise box).
class OperatorWindow : public FormWindow {
 public:
  OperatorWindow(Form& form, const Surfaces& surfaces);
  ~OperatorWindow() override;

  void Focus(const Control& control) override;
  void DragWindow(std::function<void()> done) override;
  // The layout places what is in an operator's window: nothing moves.
  void DragPane(Control& pane, std::function<void()> done) override;
  void FollowPointer(std::function<void(Twips right, Twips down)> moved) override;
  void PutPointer(Twips right, Twips down) override;
  void PopUp(const MenuItem& menu) override;

  QWidget& Widget() const { return joint_.Window(); }
  const Binder& Joined() const { return binder_; }

 private:
  void TakeLayoutsMeasures();
  void FollowForm();
  void ShowSoon();
  void ApplyState();
  void Place();
  void ApplyOnTop();
  void ShowAsTheFormSays();
  void BringIntoReach();
  bool Seen(QEvent& event);
  void NotePlace();

  Form& form_;
  std::unique_ptr<MapWatch> watch_;  // of the native window
  Joint joint_;
  Binder binder_;
  bool noting_ = false;
  bool notePending_ = false;
  bool showPending_ = false;
};

#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/toolkit/Measures.h"

class Control;
class Form;
class MenuItem;

// The real window behind a form. It follows the form's and the controls' properties by observing them, and tells the
// form what the operator does. A window that comes on the screen, is shown again, or is told to be on top stands in
// front of all others of its kind; those on top stand in front of the rest. When it goes, the window is off the screen.
class FormWindow {
 public:
  virtual ~FormWindow() = default;

  // Gives a control the keyboard, inside its own window; the window itself is not brought forward.
  virtual void Focus(const Control& control) = 0;
  // Hands the window to the pointer, as if by a title bar, until the button is released; then calls `done`.
  virtual void DragWindow(std::function<void()> done) = 0;
  // The same for one pane inside the window.
  virtual void DragPane(Control& pane, std::function<void()> done) = 0;
  // Follows the pointer, until the button is released: `moved` is told how far it is from where the button went down.
  virtual void FollowPointer(std::function<void(Twips right, Twips down)> moved) = 0;
  // Puts the pointer at a place on the form, counted from its left top corner; what FollowPointer tells from now on is
  // counted from there.
  virtual void PutPointer(Twips right, Twips down) = 0;
  // Opens a menu of the form at the pointer, and returns at once.
  virtual void PopUp(const MenuItem& menu) = 0;
};

// The window system.
class Windows {
 public:
  virtual ~Windows() = default;

  // Makes the window of a form, hidden unless the form is visible. The form outlives it.
  virtual std::unique_ptr<FormWindow> Create(Form& form) = 0;
  // The primary display.
  virtual PixelSize ScreenSize() const = 0;
};

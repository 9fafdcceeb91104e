#pragma once

#include <cstdint>

#include "platform/toolkit/Control.h"

// A control of the station's own that is made of others. Its parts are known inside it alone, so that two of a kind may
// stand on one form, and a layout file of its own says how they stand; parts that the layout does not place stand where
// their own measures say. Width and Height are what the form's layout gives it, in twips.
//
// The bare surface of the control is where no enabled part of it stands. `Button` is one of the buttons, in a move the
// sum of those that are down; `Shift` the sum of what is held; X and Y are twips from the left top corner.
class UserControl : public Control {
 public:
  // A button of the mouse, and what may be held with it or with a key.
  enum : std::int16_t { kLeft = 1, kRight = 2, kMiddle = 4 };
  enum : std::int16_t { kShift = 1, kCtrl = 2, kAlt = 4 };

  UserControl(Form& form, std::string name);
  UserControl(Control& container, std::string name);
  std::string_view Kind() const final { return "UserControl"; }
  // The name of its layout file: that of its class.
  virtual std::string_view Layout() const = 0;

  // Draws its own surface anew; its parts are left alone.
  void Refresh() { Redraw.Raise(); }

  // What the window tells: where the layout has put it, and what the operator does on the bare surface. `KeyAscii` is
  // the letter that a key writes, 0 where it writes none.
  void TakeSize(Twips width, Twips height);
  void PressAt(std::int16_t Button, std::int16_t Shift, float X, float Y);
  void MoveTo(std::int16_t Button, std::int16_t Shift, float X, float Y);
  // A left button that is let go on the surface is a click.
  void ReleaseAt(std::int16_t Button, std::int16_t Shift, float X, float Y);
  void PressTwice();
  void PressKey(std::int16_t KeyCode, std::int16_t Shift, std::int16_t KeyAscii);
  void ReleaseKey(std::int16_t KeyCode, std::int16_t Shift);

  Event<> Click;
  Event<> DblClick;
  Event<std::int16_t, std::int16_t> KeyDown;  // KeyCode, Shift
  Event<std::int16_t> KeyPress;               // KeyAscii
  Event<std::int16_t, std::int16_t> KeyUp;    // KeyCode, Shift
  // Button, Shift, X, Y. They take the place of those that every control has.
  Event<std::int16_t, std::int16_t, float, float> MouseDown;
  Event<std::int16_t, std::int16_t, float, float> MouseMove;
  Event<std::int16_t, std::int16_t, float, float> MouseUp;

  Event<> Resize;  // its width or height has changed
  Event<> Redraw;

 private:
  void Connect();

  bool clicks_ = false;  // the left button went down on the surface, and not as the second half of a double click
};

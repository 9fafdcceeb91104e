#include "platform/toolkit/UserControl.h"

#include <utility>

UserControl::UserControl(Form& form, std::string name) : Control(form, std::move(name)) { Connect(); }

UserControl::UserControl(Control& container, std::string name) : Control(container, std::move(name)) { Connect(); }

void UserControl::Connect() {
  const auto tell = [this] { Handle("Resize", [this] { Resize.Raise(); }); };
  Width.Changed.Connect(tell);
  Height.Changed.Connect(tell);
}

// Where two events follow from one act, the first may end the form: the handler around both keeps it until they are
// told.
void UserControl::TakeSize(Twips width, Twips height) {
  Handle("Resize", [this, width, height] {
    Width = width;
    Height = height;
  });
}

void UserControl::PressAt(std::int16_t Button, std::int16_t Shift, float X, float Y) {
  clicks_ = Button == kLeft;
  Handle("MouseDown", [=, this] { MouseDown.Raise(Button, Shift, X, Y); });
}

void UserControl::MoveTo(std::int16_t Button, std::int16_t Shift, float X, float Y) {
  Handle("MouseMove", [=, this] { MouseMove.Raise(Button, Shift, X, Y); });
}

void UserControl::ReleaseAt(std::int16_t Button, std::int16_t Shift, float X, float Y) {
  const bool isOnIt = X >= 0 && Y >= 0 && X < Width && Y < Height;
  const bool isClick = Button == kLeft && std::exchange(clicks_, false) && isOnIt;
  Handle("MouseUp", [=, this] {
    Handle("MouseUp", [=, this] { MouseUp.Raise(Button, Shift, X, Y); });
    if (isClick) Handle("Click", [this] { Click.Raise(); });
  });
}

void UserControl::PressTwice() {
  clicks_ = false;
  Handle("DblClick", [this] { DblClick.Raise(); });
}

void UserControl::PressKey(std::int16_t KeyCode, std::int16_t Shift, std::int16_t KeyAscii) {
  Handle("KeyDown", [=, this] {
    Handle("KeyDown", [=, this] { KeyDown.Raise(KeyCode, Shift); });
    if (KeyAscii != 0) Handle("KeyPress", [=, this] { KeyPress.Raise(KeyAscii); });
  });
}

void UserControl::ReleaseKey(std::int16_t KeyCode, std::int16_t Shift) {
  Handle("KeyUp", [=, this] { KeyUp.Raise(KeyCode, Shift); });
}

#pragma once

#include <string>
#include <vector>

#include "platform/toolkit/Control.h"
#include "platform/toolkit/Settable.h"

// The plain controls of operator forms. What an operator does to one is an operation here (`Press`, `Toggle`, `Type`),
// called by the window and by tests alike.

class Label : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "Label"; }

  Property<std::string> Caption;
};

// A titled group of other controls.
class Frame : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "Frame"; }

  Property<std::string> Caption;
};

class CommandButton : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "CommandButton"; }

  void Press();

  Property<std::string> Caption;
  // The name of a picture ("imgPlay"); empty: the one that the look has for the button, if any.
  Property<std::string> Picture;
  Event<> Click;
};

class CheckBox : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "CheckBox"; }

  // Turns the box over, as the operator's click does.
  void Toggle();
  bool Ticked() const { return Value == 1; }

  Property<int> Value{0};  // 0 or 1
  Event<> Click;
};

class TextBox : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "TextBox"; }

  // What the operator types; takes the place of all the text.
  void Type(const std::string& text);

  Property<std::string> Text;
  Event<> Change;  // by the operator
};

// A list behind a text; the text may be typed.
class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name);
  ComboBox(Control& container, std::string name);
  std::string_view Kind() const override { return "ComboBox"; }

  void AddItem(const std::string& item);
  // Empties the list, and the text with it.
  void Clear();
  int ListCount() const { return static_cast<int>(items_.size()); }
  // From 0. Fails outside the list.
  const std::string& List(int index) const;
  // The operator picks or types.
  void Pick(int index);
  void Type(const std::string& text);

  Property<std::string> Text;
  // The item that the text was taken from, from 0; -1 for a text of another origin. Setting it takes the item's text
  // and raises no click; -1 empties the text. Fails outside the list.
  Settable<int> ListIndex;
  Event<> ItemsChanged;
  Event<> Click;

 private:
  void Take(int index);
  void Follow();

  std::vector<std::string> items_;
};

// A thumb on a scale. Without a LargeChange it goes where it is pressed, and every act of the operator is one and the
// same event; with one a press beside the thumb moves it by so much, and moving and letting go are told apart.
class Slider : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "Slider"; }

  // The operator presses, drags or lets go, with any button; the value goes there first.
  void Work(int value);
  // The operator moves the thumb: by dragging it, by a press beside it, by a key.
  void Move(int value);
  // The operator lets go of the thumb, or of the key, where the thumb stands.
  void LetGo(int value);

  Property<int> Min{0};
  Property<int> Max{10};
  // Setting it from code clamps nothing: only the thumb stops at the end.
  Property<int> Value{0};
  Property<int> LargeChange{0};
  Event<> Worked;
  Event<> Scroll;
  Event<> Click;

 private:
  void Take(int value, const char* name, Event<>& told);
};

// A small panel that is one colour.
class ColourPanel : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "ColourPanel"; }

  Property<Colour> BackColor{kWhite};
};

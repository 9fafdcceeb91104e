#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/World.h"
#include "platform/toolkit/Control.h"
#include "platform/toolkit/Forms.h"
#include "platform/toolkit/Settable.h"

class FormWindow;
class MenuItem;

// As much of a preview's height is its frame, whatever the desktop's own frames measure.
inline constexpr Twips kPreviewFrame = 490;

// A bit of a window's extended style: the window is see-through.
inline constexpr std::int32_t kLayered = 0x80000;

// What the operator's pointer looks like over the bare form.
enum class MousePointer { kDefault = 0, kSizeNESW = 6, kSizeNS = 7, kSizeNWSE = 8, kSizeWE = 9, kMove = 15 };

// Where the pointer is on a form, from its left top corner, and which buttons are down: the sum of their MouseButton.
struct MousePlace {
  Twips x = 0;
  Twips y = 0;
  int buttons = 0;

  bool Down(MouseButton button) const { return (buttons & static_cast<int>(button)) != 0; }
};

// One window of the system with its controls: an observable object that draws nothing itself. There is at most one
// instance of each form; see Forms.
class Form {
 public:
  enum class Kind {
    kOperator,  // drawn from the layout file of its name
    kOnAir,     // borderless, drawn from the controls' own measures
    kPreview,   // drawn like kOnAir, before the operator, in a frame with a title bar whose box closes it
  };

  Form(Forms& forms, std::string name, Kind kind);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  Kind Type() const { return kind_; }
  const std::vector<Component*>& Components() const { return components_; }
  // The controls directly on the form, front to back.
  const std::vector<Control*>& Controls() const { return controls_; }
  World& Outside() const { return forms_.Outside(); }

  // Shows the form, and brings the window forward where it was on the screen already.
  void Show() {
    Visible = true;
    ShowAsked.Raise();
  }
  void Hide() { Visible = false; }
  void Focus(const Control& control);
  // The operator asks to close the window.
  void Close();
  void PressMouse(const MousePlace& place);
  void MoveMouse(const MousePlace& place);
  // Opens a menu of the form at the pointer.
  void PopUp(const MenuItem& menu);

  // Stands before the operator until answered; timers tick on meanwhile. Without a title of its own it has the standard
  // one.
  Answer MsgBox(const std::string& text, Buttons buttons = Buttons::kOk);
  Answer MsgBox(const std::string& text, Buttons buttons, const std::string& title);
  // See Forms::Warn.
  void Warn(const std::string& text, const std::string& title) { forms_.Warn(text, title); }
  std::string InputBox(const std::string& prompt, const std::string& title);
  std::string BrowseFolder(const std::string& title, const std::string& start);
  std::string OpenFile(const std::string& title, const std::string& filter);
  CopyResult CopyFile(const std::string& from, const std::string& to);

  // Runs a handler as every tick and operator's event is run: a failure that nothing skipped ends the handler and
  // shows one message box; what nobody foresaw (memory that is out, a fault of ours) ends it too, and is said on
  // standard error under the handler's name. The station goes on. Nothing happens once the form is unloaded.
  void Handle(const HandlerName& name, const std::function<void()>& handler);

  // The window; there is none while the form is constructed and after it is unloaded.
  FormWindow* Window() const { return window_.get(); }

  Property<std::string> Caption;
  Property<bool> Visible{false};
  // Whether the window stands above all that are not on top. Acts at each assignment: told again, the window comes in
  // front of the others that are.
  Settable<bool> OnTop{false, [this](bool onTop) { OnTop.Store(onTop); }};
  Property<bool> Maximised{false};
  Property<Twips> Left;
  Property<Twips> Top;
  Property<Twips> Width;
  Property<Twips> Height;

  // Of an on-air form: what stands behind its controls.
  Property<Colour> BackColor{kBlack};
  // Bits, as the window system counts them. With kLayered what lies behind an on-air form without panes is seen where
  // its controls leave it bare or their pictures are see-through, and through every pixel of a still picture that has
  // KeyColour.
  Property<std::int32_t> ExtendedStyle{0};
  Property<std::optional<Colour>> KeyColour;
  // KeyColour as far as it is in force; nothing where the form is opaque.
  std::optional<Colour> KeyInForce() const { return (ExtendedStyle & kLayered) != 0 ? KeyColour.Get() : std::nullopt; }

  Property<MousePointer> Pointer{MousePointer::kDefault};

  Event<const MousePlace&> MouseDown;
  Event<const MousePlace&> MouseMove;
  Event<> ShowAsked;  // also of a form that is visible
  Event<> Resize;     // the form comes on the screen, or its width or height has changed, by whomever

 protected:
  // Brings the form up, hidden.
  virtual void Load() {}
  // An unload is asked for, by the operator's close or by the program. False refuses it; a form that refuses hides
  // itself.
  virtual bool MayUnload() { return true; }

 private:
  friend class Forms;
  friend class Component;
  friend class Control;

  void Add(Component& component) { components_.push_back(&component); }
  void AddControl(Control& control) { controls_.push_back(&control); }
  void Retire();

  Forms& forms_;
  std::string name_;
  Kind kind_;
  std::vector<Component*> components_;
  std::vector<Control*> controls_;
  std::unique_ptr<FormWindow> window_;
  int handlersRunning_ = 0;
  bool retired_ = false;
};

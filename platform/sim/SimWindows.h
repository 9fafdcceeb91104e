#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Windows.h"
#include "platform/sim/SimShell.h"
#include "platform/sim/SimTime.h"
#include "platform/sim/SimTrace.h"

class SimWindow;

// Windows that nobody sees: they tell when they are shown, hidden and gone, stand in front of each other, and decode
// pictures as soon as the handler that loads them has returned.
class SimWindows : public Windows {
 public:
  SimWindows(SimTrace& trace, SimTime& time, const SimPictures& pictures)
      : trace_(trace), time_(time), pictures_(pictures) {}

  std::unique_ptr<FormWindow> Create(Form& form) override;
  PixelSize ScreenSize() const override { return screenSize; }

  // The windows on the screen by the names of their forms, from front to back.
  std::vector<std::string> Stack() const;

  // Moves the pointer of the drag that is under way, so far from where the button went down.
  void MovePointer(Twips right, Twips down);
  // Lets go of the button of the drag that is under way.
  void EndDrag();

  // Where on the screen the pointer was put last.
  std::optional<std::pair<Twips, Twips>> pointerPut;
  PixelSize screenSize{1920, 1080};
  // The control that was given the keyboard last, as "form.control".
  std::string focus;
  // The menu that was opened last, as "form.menu".
  std::string popUp;

 private:
  friend class SimWindow;

  SimTrace& trace_;
  SimTime& time_;
  const SimPictures& pictures_;
  std::vector<const SimWindow*> shown_;  // front to back, whether on top or not
  std::function<void(Twips, Twips)> dragMoved_;
  std::function<void()> dragDone_;
};

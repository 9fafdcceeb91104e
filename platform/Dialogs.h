#pragma once

#include <string>

enum class Buttons { kOk, kYesNo };
enum class Answer { kOk, kYes, kNo };

// What stands before the operator until answered. Timers tick on and other handlers run while a dialog stands; several
// may stand at once. A box that is closed without a button is answered kOk or kNo.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  virtual Answer MsgBox(const std::string& text, const std::string& title, Buttons buttons) = 0;
  // The text typed; the empty text when cancelled.
  virtual std::string InputBox(const std::string& prompt, const std::string& title) = 0;
  // A folder's path without a separator at its end; the empty text when cancelled. Opens at `start` if that exists.
  virtual std::string BrowseFolder(const std::string& title, const std::string& start) = 0;
};

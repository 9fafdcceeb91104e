#pragma once

#include <string>

enum class Buttons {
  kOk,
  kOkWarning,  // with an exclamation mark
  kYesNo,
};
enum class Answer { kOk, kYes, kNo };
enum class CopyResult {
  kCopied,
  kFailed,     // what stood at the target stands there still
  kCancelled,  // by the operator; likewise
};

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
  // The path of a regular file that is there; the empty text when cancelled. `filter` is pairs of a text and of
  // patterns that are tried without regard to case, all divided by "|": "JPG file only|*.jpg;*.jpeg". A pair without
  // patterns shows all files. Opens at the folder where the last file was chosen.
  virtual std::string OpenFile(const std::string& title, const std::string& filter) = 0;
  // Copies a regular file, content alone, and waits for it as for a box. After half a second a box stands, with the
  // button Cancel. The folder of the target must be there. The copy takes its place in one step, when it is whole; a
  // file that is its own source is left alone and counts as copied.
  virtual CopyResult CopyFile(const std::string& from, const std::string& to) = 0;
};

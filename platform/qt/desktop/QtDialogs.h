#pragma once

#include "platform/Dialogs.h"

// Boxes before the operator. They stand over his window, or in the middle of a screen that shows nothing on air where
// there is one, and belong to no window: one that goes does not take its box along.
class QtDialogs : public Dialogs {
 public:
  // No is the default of a question: what is asked deletes or ends something.
  Answer MsgBox(const std::string& text, const std::string& title, Buttons buttons) override;
  std::string InputBox(const std::string& prompt, const std::string& title) override;
  std::string BrowseFolder(const std::string& title, const std::string& start) override;
  std::string OpenFile(const std::string& title, const std::string& filter) override;
  CopyResult CopyFile(const std::string& from, const std::string& to) override;

 private:
  std::string lastFolder_;  // where a file was chosen last
};

#pragma once

#include <string>
#include <vector>

#include "platform/toolkit/Control.h"
#include "platform/toolkit/Settable.h"

// The files of one folder that fit a pattern, by name, but for hidden ones (a leading dot).
class FileListBox : public Control {
 public:
  FileListBox(Form& form, std::string name);
  std::string_view Kind() const override { return "FileListBox"; }

  // Reads the folder again; nothing is selected after it.
  void Refresh();
  int ListCount() const { return static_cast<int>(files_.size()); }
  // The name at an index from 0. Fails outside the list.
  const std::string& List(int index) const;
  // The selected name; empty when none is selected.
  std::string FileName() const;
  // The selected file with its folder; the bare folder and a separator when none is selected.
  std::string FilePath() const;
  // The operator clicks a row.
  void Pick(int index);

  // The folder, without a separator at its end. Setting one that does not exist fails and changes nothing.
  Settable<std::string> Path;
  // "*.avi;*.mp4", case ignored; the empty pattern shows all files.
  Settable<std::string> Pattern;
  // From 0; -1 while none is selected. Setting it raises the click, from code too. Fails outside the list.
  Settable<int> ListIndex;

  Event<> ItemsChanged;
  Event<> Click;

 private:
  void Fill();

  std::vector<std::string> files_;
};

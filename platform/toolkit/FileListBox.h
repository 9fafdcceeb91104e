#pragma once

#include <string>
#include <vector>

#include "platform/toolkit/Control.h"
#include "platform/toolkit/Settable.h"

// The files of one folder that fit a pattern, by name, case ignored, but for hidden ones (a leading dot).
class FileListBox : public Control {
 public:
  FileListBox(Form& form, std::string name);
  std::string_view Kind() const override { return "FileListBox"; }

  // Reads the folder again; nothing is selected after it.
  void Refresh();
  int ListCount() const { return static_cast<int>(files_.size()); }
  // The name at an index from 0. Fails outside the list.
  const std::string& List(int index) const;
  // The selected name; empty when none is selected, or the list has no such row any more.
  std::string FileName() const;
  // The selected file with its folder; the bare folder and a separator when there is no selected name.
  std::string FilePath() const;
  // The operator clicks a row, the selected one too.
  void Pick(int index);

  // The folder, without a separator at its end. Setting it reads it, and keeps the number of the selected row, even
  // where the new list is shorter. Setting one that does not exist fails and changes nothing.
  Settable<std::string> Path;
  // "*.avi;*.mp4", case ignored; the empty pattern shows all files.
  Settable<std::string> Pattern;
  // From 0; -1 while none is selected. Setting it raises the click, from code too, unless that row of that folder is
  // selected already. Fails outside the list.
  Settable<int> ListIndex;

  Event<> ItemsChanged;
  Event<> Click;

 private:
  void Fill();
  void Take(int index);

  std::vector<std::string> files_;
  bool indexIsOld_ = false;  // the number was taken in another folder
};

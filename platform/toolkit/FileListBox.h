#pragma once

#include <string>

#include "platform/toolkit/NameList.h"
#include "platform/toolkit/Settable.h"

// The files of one folder that fit a pattern, by name, case ignored, but for hidden ones (a leading dot).
class FileListBox : public NameList {
 public:
  FileListBox(Form& form, std::string name);
  std::string_view Kind() const override { return "FileListBox"; }

  // Reads the folder again; nothing is selected after it.
  void Refresh();
  // The selected name; empty when none is selected, or the list has no such row any more.
  std::string FileName() const { return Selected(); }
  // The selected file with its folder; the bare folder and a separator when there is no selected name.
  std::string FilePath() const;

  // The folder, without a separator at its end. Setting it reads it, and keeps the number of the selected row, even
  // where the new list is shorter. Setting one that does not exist fails and changes nothing.
  Settable<std::string> Path;
  // "*.avi;*.mp4", case ignored; the empty pattern shows all files.
  Settable<std::string> Pattern;

 private:
  void Fill();
};

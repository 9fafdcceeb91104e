#pragma once

#include <string>

#include "controls/McListBox.h"
#include "controls/TimePicker.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"
#include "webfeed/Pre.h"

// Shows the station's own controls at work, several of each kind. Closing it ends the program.
class frmGallery : public Form {
 public:
  explicit frmGallery(Station& station);

  TimePicker StartTime{*this, "StartTime"};
  TimePicker EndTime{*this, "EndTime"};
  CommandButton btnTimes{*this, "btnTimes"};
  Label lblTimes{*this, "lblTimes"};

 private:
  std::string folder_;

 public:
  McListBox FolderList{*this, "FolderList", folder_};  // folders; a click opens one
  McListBox FileList{*this, "FileList", folder_};      // the files of the folder that is open
  McListBox WordList{*this, "WordList", folder_};      // what is added, in order
  Label lblFolder{*this, "lblFolder"};
  CommandButton btnUp{*this, "btnUp"};
  TextBox txtWord{*this, "txtWord"};
  CommandButton btnAdd{*this, "btnAdd"};
  CommandButton btnRemove{*this, "btnRemove"};

  TextBox txtAddress{*this, "txtAddress"};
  CommandButton btnShow{*this, "btnShow"};
  CheckBox chkHands{*this, "chkHands"};
  Pre Large{*this, "Large"};
  Pre Small{*this, "Small"};
  Label lblEvent{*this, "lblEvent"};  // what has happened last on the surface of a page

 protected:
  void Load() override;
  bool MayUnload() override;

 private:
  void ConnectLists();
  void ConnectPages();
  void Open(const std::string& folder);
};

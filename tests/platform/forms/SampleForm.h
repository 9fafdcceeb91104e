#pragma once

#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/FileListBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListBox.h"
#include "platform/toolkit/ListView.h"
#include "platform/toolkit/PlayerControl.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// A form with one control of each kind, on the layout of the playlist manager.
class SampleForm : public Form {
 public:
  explicit SampleForm(Station& station) : Form(station.forms, "frmPlaylist", Kind::kOperator) {}

  Frame frame{*this, "frmPlaylist"};
  CommandButton button{*this, "btnUp"};
  CheckBox box{*this, "chkTime"};
  ColourPanel panel{*this, "PicTimeOn"};
  TextBox text{*this, "txtFilename"};
  ComboBox combo{*this, "cmbPlaylist"};
  DatePicker time{*this, "TP"};
  Slider slider{*this, "SldPlayer"};
  Label label{*this, "lblTime"};
  ListView rows{*this, "ListPlay"};
  FileListBox files{*this, "FileList"};
  ListBox names{*this, "FilePlaylist"};
};

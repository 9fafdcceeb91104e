#pragma once

#include "controls/McListBox.h"
#include "platform/toolkit/Form.h"
#include "settings/Station.h"

// A form of the tests alone, with a list.
class frmLists : public Form {
 public:
  explicit frmLists(Station& station)
      : Form(station.forms, "frmLists", Kind::kOperator), folder_(station.dataFolder.Folder()) {}

 private:
  std::string folder_;

 public:
  McListBox List{*this, "List", folder_};
};

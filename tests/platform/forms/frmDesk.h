#pragma once

#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/MenuItem.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/StatusBar.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// A form of the tests alone, with a menu, a status bar and places for pictures.
class frmDesk : public Form {
 public:
  explicit frmDesk(Station& station) : Form(station.forms, "frmDesk", Kind::kOperator) {}

  FlashBox Flash{*this, "Flash"};
  PictureBox pic{*this, "pic"};
  Slider SldSpeed{*this, "SldSpeed"};
  ComboBox CmbBreak{*this, "CmbBreak"};
  ComboBox CmbFixed{*this, "CmbFixed"};
  CommandButton btnPlay{*this, "btnPlay"};
  StatusBar Panel{*this, "Panel", 3};
  MenuItem mnuTools{*this, "mnuTools"};
  MenuItem mnuSWF[2]{{*this, "mnuSWF_0"}, {*this, "mnuSWF_1"}};
  MenuItem mnuTray{*this, "mnuTray"};
  MenuItem mnuShow{*this, "mnuShow"};
  MenuSeparator mnuSpace{*this, "mnuSpace"};
  MenuItem mnuTrayExit{*this, "mnuTrayExit"};
};

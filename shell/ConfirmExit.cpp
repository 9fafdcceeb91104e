#include "shell/ConfirmExit.h"

#include "platform/Desktop.h"
#include "platform/toolkit/Form.h"

void ConfirmExit(Form& asking) {
  // "wnat": meant so.
  if (asking.MsgBox("Are You Sure you wnat to EXIT from Corvanta 6.0?", Buttons::kYesNo, "Exit") != Answer::kYes)
    return;
  asking.Outside().desktop.SetTaskbarVisible(true);
  asking.Outside().desktop.EndProcess();
}

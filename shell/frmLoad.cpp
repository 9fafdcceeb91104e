#include "shell/frmLoad.h"

#include "platform/Desktop.h"
#include "platform/toolkit/Failures.h"
#include "settings/FormHelpers.h"
#include "shell/frmMid.h"

frmLoad::frmLoad(Station& station) : Form(station.forms, "frmLoad", Kind::kOperator), station_(station) {
  Caption = kStandardTitle;
  Width = ToTwips(480);
  Height = ToTwips(300);
  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  Command1.Click.Connect([this] { Outside().desktop.EndProcess(); });
}

void frmLoad::Load() { CentreForm(*this); }

void frmLoad::Timer1_Tick() {
  SkippingFailures([this] { station_.forms.Get<frmMid>(); }, [this] { station_.forms.Unload<frmLoad>(); });
}

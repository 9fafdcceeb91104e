#include "shell/frmAbout.h"

#include "settings/FormHelpers.h"

frmAbout::frmAbout(Station& station) : Form(station.forms, "frmAbout", Kind::kOperator) {
  Width = ToTwips(460);
  Height = ToTwips(360);
  btnLoadScorl.Click.Connect([this, &station] { station.forms.Unload(*this); });
}

void frmAbout::Load() { CentreForm(*this); }

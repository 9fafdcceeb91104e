#include "overlay/frmClockSett.h"

frmClockSett::frmClockSett(Station& station) : LibraryForm(station, Library::kClock) {
  btnSetAsClock.Click.Connect([this] {
    SelectedPath = SelectedFile();  // with no file selected the folder. Meant so.
    ShowOnOverlay();
    WritePath();
  });
  btnCreateList.Enabled = false;
  chkShowLogo.Click.Connect([this] { WriteSetting("ShowLogo", std::to_string(chkShowLogo.Value)); });
}

void frmClockSett::LoadSett() {
  LibraryForm::LoadSett();
  const std::string stored = Setting("ShowLogo");
  if (stored == "0" || stored == "1") chkShowLogo.Value = stored == "1";
}

// The store's desk: looking at an ad, choosing the video of a new one, making it, deleting one.
#include "ads/AdFolders.h"
#include "ads/frmVideoAdSett.h"
#include "platform/toolkit/Failures.h"
#include "settings/Helpers.h"

namespace {

constexpr char kTitle[] = "Video Ad";

}  // namespace

void frmVideoAdSett::ListAd_Click() {
  if (ListAd.SelectedItem() == 0) return;
  const std::string& name = ListAd.Selected().text;
  station_.stores.VideoAdInfoFile(name);
  AdView.URL = VideoOf(name);
}

// The title is that of the crawler's dialog. Meant so.
void frmVideoAdSett::vkCommand1_Click() {
  const std::string patterns = station_.stores.SettingsIni.ReadValue("Settings", "Ext", "");
  const std::string file = OpenFile("Load Ad's header file", "Video Ad file|" + patterns);
  if (file.empty()) return;
  const std::string name = FileNameOfPath(file);
  SkippingFailures([&] { AdFile = file; }, [&] { txtAdName.Text = StripExtension(name); },
                   [&] { txtFileName.Text = name; }, [&] { AdView.URL = file; });
}

void frmVideoAdSett::vkCommand2_Click() {
  const std::string name = txtAdName.Text;
  const std::string file = txtFileName.Text;
  if (name.empty()) {
    MsgBox("Please enter a Ad name", Buttons::kOk, kTitle);
    txtAdName.SetFocus();
    return;
  }
  if (file.empty()) {
    MsgBox("Please select a video ad file", Buttons::kOk, kTitle);
    vkCommand1_Click();
    return;
  }
  if (CreateVideoAdFolder(station_, name)) {
    MsgBox("The Ad's name Already exists. Please enter a different name", Buttons::kOk, kTitle);
    txtAdName.SetFocus();
    return;
  }
  if (IsPlainName(name)) {
    // A file's name that leads elsewhere is copied nowhere.
    if (IsPlainName(file) &&
        CopyFile(AdFile, AdPath(station_, AdStore::kVideo, name, "\\" + file)) == CopyResult::kCancelled) {
      DeleteAdFolder(station_, AdStore::kVideo, name);
      return;
    }
    WriteAdInfo();
  }
  MsgBox("Video Ad hasbeen loaded successfully", Buttons::kOk, kTitle);
  LoadSett();
}

void frmVideoAdSett::WriteAdInfo() {
  station_.stores.VideoAdInfoFile(txtAdName.Text.Get());
  IniFile& info = station_.stores.VideoAdInfoIni;
  info.WriteValue("AdInfo", "FileName", txtFileName.Text.Get());
  info.WriteValue("AdInfo", "Company", txtCompany.Text.Get());
  info.WriteValue("AdInfo", "Address", txtAddress.Text.Get());
}

// A break may begin while the question stands and select its ads: what was selected when it opened is what it is about.
// An ad that is on the air plays on.
void frmVideoAdSett::btnDelete_Click() {
  const std::string name = ListAd.SelectedItem() > 0 ? ListAd.Selected().text : "";
  if (MsgBox("Are You Sure you wnat to Delete this Video Ad?", Buttons::kYesNo, "DELETE") != Answer::kYes) return;
  AdView.controls.stop();
  DeleteAdFolder(station_, AdStore::kVideo, name);
  LoadSett();
}

// The store's desk: choosing the files of a new ad, making it, switching one on and off, deleting one.
#include <algorithm>
#include <optional>
#include <vector>

#include "ads/AdFolders.h"
#include "ads/frmAdSett.h"
#include "platform/toolkit/Failures.h"
#include "settings/Helpers.h"
#include "settings/TimeTexts.h"

namespace {

constexpr char kJpgOrFlash[] = "JPG or Flash file|*.jpg;*.swf;";
constexpr char kLeftTitle[] = "Load Ad's left content";
constexpr char kNewSpeed[] = "30";

// The file's name inside the ad's folder: "left." alone where none is chosen.
std::string NameInFolder(const std::string& name, const std::string& source) {
  const std::string file = FileNameOfPath(source);
  return name + "." + (file.size() > 3 ? file.substr(file.size() - 3) : file);
}

}  // namespace

void frmAdSett::ConnectStore() {
  // The machine's sound goes on the air.
  for (FlashBox* preview : {&FlashHeader, &FlashLeft, &FlashRight}) preview->Silent = true;
  btnHeader.Click.Connect([this] { btnHeader_Click(); });
  btnLoadScorl.Click.Connect([this] { btnLoadScorl_Click(); });
  btnLoadLeft.Click.Connect([this] { btnLoadLeft_Click(); });
  btnLoadRight.Click.Connect([this] { btnLoadRight_Click(); });
  LoadAd.Click.Connect([this] { LoadAd_Click(); });
  chkAdActive.Click.Connect([this] { chkAdActive_Click(); });
  cmdRemove.Click.Connect([this] { cmdRemove_Click(); });
}

// What is chosen goes into the record that the rotation fills too: the next ad that comes on the air takes its place.
void frmAdSett::ChooseMovie(const char* title, FlashBox& preview, std::string& field) {
  const std::string file = OpenFile(title, kJpgOrFlash);
  if (file.empty()) return;
  SkippingFailures([&] { preview.Movie = file; }, [&] { field = file; });
}

void frmAdSett::btnHeader_Click() { ChooseMovie("Load Ad's header file", FlashHeader, currentAd_.Header); }

void frmAdSett::btnLoadScorl_Click() {
  const std::string file = OpenFile("Load Ad's scorl file", "JPG file only|*.jpg;");
  if (file.empty()) return;
  SkippingFailures([&] { picScorl.LoadPicture(file); }, [&] { currentAd_.Scorl = file; });
}

void frmAdSett::btnLoadLeft_Click() { ChooseMovie(kLeftTitle, FlashLeft, currentAd_.Left); }

// The left side's title on the right side's dialog. Meant so.
void frmAdSett::btnLoadRight_Click() { ChooseMovie(kLeftTitle, FlashRight, currentAd_.Right); }

// Tells what is missing, and asks for it at once; the operator then presses again.
bool frmAdSett::HasHeaderAndScorl() {
  if (currentAd_.Header.empty()) {
    MsgBox("Please select a Ad's header");
    btnHeader_Click();
    return false;
  }
  if (currentAd_.Scorl.empty()) {
    MsgBox("Please select a Ad's scorl");
    btnLoadScorl_Click();
    return false;
  }
  return true;
}

void frmAdSett::LoadAd_Click() {
  if (!HasHeaderAndScorl()) return;
  if (txtAdName.Text.Get().empty()) {
    MsgBox("Please enter a Ad's name");
    txtAdName.SetFocus();
    return;
  }
  const std::string name = txtAdName.Text;
  if (CreateAdFolder(station_, name)) {
    MsgBox("The Ad's name Already exists. Please enter a different name");
    txtAdName.SetFocus();
    return;
  }
  if (IsPlainName(name)) {
    WriteAdInfo();
    // An ad that was not wanted to its end is none.
    if (!CopyAD()) DeleteAdFolder(station_, AdStore::kCrawler, name);
  }
  ReloadList();
}

void frmAdSett::WriteAdInfo() {
  station_.stores.AdInfoFile(txtAdName.Text.Get());
  const std::pair<const char*, std::string> info[] = {{"CompanyName", txtCompany.Text},
                                                      {"Address", txtAddress.Text},
                                                      {"StartDate", DateText(dpStartDate.Value)},
                                                      {"EndDate", DateText(dpEndDate.Value)},
                                                      {"Active", std::to_string(chkAdActive.Value)},
                                                      {"Header", NameInFolder("header", currentAd_.Header)},
                                                      {"Left", NameInFolder("left", currentAd_.Left)},
                                                      {"Right", NameInFolder("right", currentAd_.Right)}};
  const std::pair<const char*, std::string> settings[] = {{"Speed", kNewSpeed},
                                                          {"HeaderHeight", std::to_string(sldHeight.Value)},
                                                          {"SideWidth", std::to_string(sldSide.Value)},
                                                          {"AdTop", std::to_string(SldAdTop.Value)}};
  for (const auto& [key, value] : info) station_.stores.AdInfoIni.WriteValue("Info", key, value);
  for (const auto& [key, value] : settings) station_.stores.AdInfoIni.WriteValue("Settings", key, value);
}

// Ticks run while a file is copied, and may bring the next ad into the record: all paths are taken before the first.
bool frmAdSett::CopyAD() {
  struct Copy {
    std::string from;
    std::string to;
  };
  const auto inFolder = [name = txtAdName.Text.Get(), this](const std::string& file) {
    return AdPath(station_, AdStore::kCrawler, name, "\\" + file);
  };
  std::vector<Copy> copies = {{currentAd_.Header, inFolder(NameInFolder("header", currentAd_.Header))},
                              {currentAd_.Scorl, inFolder("scorl.jpg")}};
  for (const auto& [name, file] : {std::pair("left", &currentAd_.Left), std::pair("right", &currentAd_.Right)}) {
    if (!file->empty()) copies.push_back({*file, inFolder(NameInFolder(name, *file))});
  }
  return std::ranges::none_of(
      copies, [this](const Copy& copy) { return CopyFile(copy.from, copy.to) == CopyResult::kCancelled; });
}

// The box is the state of a new ad too; with no ad selected it is that alone.
void frmAdSett::chkAdActive_Click() {
  if (ListAd.SelectedItem() > 0) {
    station_.stores.AdInfoFile(SelectedAd());
    station_.stores.AdInfoIni.WriteValue("Info", "Active", std::to_string(chkAdActive.Value));
  }
  ReloadList();
}

// The rotation goes on while the question stands: what was selected when it opened is what it is about.
void frmAdSett::cmdRemove_Click() {
  const std::optional<ListRow> ad = ListAd.SelectedNow();
  // "wnat": meant so.
  if (MsgBox("Are You Sure you wnat to Delete this AD?", Buttons::kYesNo, "DELETE AD") != Answer::kYes) return;
  if (ad) DeleteAdFolder(station_, AdStore::kCrawler, ad->text);
  ReloadList();
}

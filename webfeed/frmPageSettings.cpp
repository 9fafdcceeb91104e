#include "webfeed/frmPageSettings.h"

#include <algorithm>
#include <limits>

#include "platform/Desktop.h"
#include "platform/Windows.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"
#include "webfeed/FrmWeb.h"
#include "webfeed/PageStore.h"
#include "webfeed/mdlPageTransparent.h"

namespace {

constexpr Twips kStep = 100;
constexpr int kLongestRefresh = 120;  // minutes
constexpr int kLargestText = BrowserControl::kTextSizes - 1;

// No hand-written number of minutes is beyond what the counter holds.
std::int16_t SecondsOf(const std::string& minutes) {
  constexpr double kMost = std::numeric_limits<std::int16_t>::max();
  return SixteenBits(RoundHalfEven(std::clamp(Val(minutes) * 60, -kMost, kMost)));
}

}  // namespace

frmPageSettings::frmPageSettings(Station& station)
    : Form(station.forms, "frmPageSettings", Kind::kOperator), station_(station) {
  Caption = "Web feed settings";
  Width = ToTwips(900);
  Height = ToTwips(640);
  WebPre.Sound = false;
  scrlTrans.Min = 10;
  scrlTrans.Max = 275;
  scrlTrans.Value = 150;
  ConnectPages();
  ConnectOptions();
  ConnectPlace();
}

void frmPageSettings::ConnectPages() {
  listPage.Click.Connect([this] { listPage_Click(); });
  listPage.DblClick.Connect([this] { Preview(); });
  vkCommand4.Click.Connect([this] { Preview(); });
  btnAdd.Click.Connect([this] { btnAdd_Click(); });
  btnDelete.Click.Connect([this] { btnDelete_Click(); });
  btnStartUPpage.Click.Connect([this] { btnStartUPpage_Click(); });
  btnGo.Click.Connect([this] { btnGo_Click(); });
  WebPre.StatusTextChange.Connect([this](const std::string& text) { lblUrlPre.Caption = text; });
}

void frmPageSettings::ConnectOptions() {
  chkOntop.Click.Connect([this] { chkOntop_Click(); });
  // The box is clear at first while the page takes clicks: they agree from the first click on. Meant so.
  chkEnable.Click.Connect([this] { Feed().picWeb.Enabled = chkEnable.Ticked(); });
  chkRefresh.Click.Connect([this] { chkRefresh_Click(); });
  cmbMin.Click.Connect([this] { cmbMin_Click(); });
  scrlTrans.Worked.Connect([this] { scrlTrans_Change(); });
  Command2.Click.Connect([this] { scrlTrans.Work(200); });
  vkCommand1.Click.Connect([this] { vkCommand1_Click(); });
  vkCommand2.Click.Connect([this] { vkCommand2_Click(); });
  Timer5.Tick.Connect([this] { Timer5_Tick(); });
  vkCommand5.Click.Connect([this] { station_.forms.Unload(*this); });
  vkCommand3.Click.Connect([this] { vkCommand3_Click(); });
}

// One step when the button goes down, one at each tick until it comes up, and one for the click: the shortest press is
// two steps. Meant so.
void frmPageSettings::ConnectPlace() {
  const struct {
    CommandButton& button;
    Timer& repeat;
    Property<Twips> Control::*measure;
    Twips by;
  } directions[] = {
      {btnLocation_0, Timer1, &Control::Left, -kStep},
      {btnLocation_1, Timer2, &Control::Left, kStep},
      {btnLocation_2, Timer3, &Control::Top, -kStep},
      {btnLocation_3, Timer4, &Control::Top, kStep},
  };
  for (const auto& row : directions) {
    const auto step = [this, measure = row.measure, by = row.by] {
      Property<Twips>& place = Feed().Web.*measure;
      place = place.Get() + by;
    };
    Timer& repeat = row.repeat;
    row.button.MouseDown.Connect([step, &repeat](MouseButton) {
      step();
      repeat.Enabled = true;
    });
    row.button.MouseUp.Connect([&repeat](MouseButton) { repeat.Enabled = false; });
    row.button.Click.Connect(step);
    repeat.Tick.Connect(step);
  }
  btnSave.Click.Connect([this] { btnSave_Click(); });
}

FrmWeb& frmPageSettings::Feed() { return station_.forms.Get<FrmWeb>(); }

std::string frmPageSettings::PageSetting(const char* section, const char* key) {
  return station_.stores.DataIni.ReadValue(section, key, "");
}

void frmPageSettings::Load() {
  station_.stores.DataFile(kPageFile);
  LoadPageLisy();
  station_.stores.DataFile(kPageSettingsFile);
  lblStartPage.Caption = "Start up page: " + PageSetting("StartUpPage", "PageName");
  LoadSettings();
  win.RecordWindowPosTo = station_.dataFolder.Path("\\win.ini");
  for (int minutes = 1; minutes <= kLongestRefresh; ++minutes) cmbMin.AddItem(std::to_string(minutes) + " Min");
}

void frmPageSettings::LoadPageLisy() {
  listPage.Clear();
  const IniSections pages = station_.stores.DataIni.Sections();
  for (std::size_t i = 1; i <= pages.Count(); ++i) listPage.AddItem(pages.Item(i).Name());
}

void frmPageSettings::LoadSettings() {
  station_.stores.DataFile(kPageSettingsFile);
  chkOntop.Value = Val(PageSetting("Display", "OnTop")) == 1 ? 1 : 0;
  const double trans =
      std::clamp<double>(Val(PageSetting("Display", "Trans")), scrlTrans.Min.Get(), scrlTrans.Max.Get());
  scrlTrans.Value = RoundHalfEven(trans);
  chkRefresh.Value = Val(PageSetting("Settings", "Refresh")) == 1 ? 1 : 0;
  cmbMin.Text = PageSetting("Settings", "Min");
  RefreshSeconds = SecondsOf(cmbMin.Text);
  txtTrans.Text = std::to_string(scrlTrans.Value.Get());
  ApplyRefresh();
}

void frmPageSettings::ApplyRefresh() {
  Timer5.Enabled = chkRefresh.Ticked();
  cmbMin.Enabled = chkRefresh.Ticked();
}

void frmPageSettings::listPage_Click() {
  station_.stores.DataFile(kPageFile);
  SelectedPage = listPage.Text();
  txtURL.Text = station_.stores.DataIni.ReadValue(SelectedPage, "URL", "");
}

// From the file that is meant just now: another one has no such page. Meant so.
void frmPageSettings::Preview() {
  WebPre.Navigate(station_.stores.DataIni.ReadValue(listPage.Text(), "URL", ""));
  WebPre.Silent = true;
}

// Both answers are taken as they are; a cancelled box is an empty one, and the page is added all the same. Meant so.
void frmPageSettings::btnAdd_Click() {
  SelectedPage = InputBox("Enter a page name", "Add new page");
  const std::string url = InputBox("Enter a page URL", "Add new page");
  const PixelSize screen = Outside().windows.ScreenSize();
  const FrmWeb& feed = Feed();  // brought to life where it is not there; it points the shared file elsewhere
  AddPage(station_.stores, SelectedPage,
          {url, {0, 0, ToTwips(screen.height), ToTwips(screen.width), feed.Top, feed.Left}});
  LoadPageLisy();
}

void frmPageSettings::btnDelete_Click() {
  station_.stores.DataFile(kPageFile);
  station_.stores.DataIni.Sections().Remove(listPage.Text());
  LoadPageLisy();
}

// The label goes on telling the former one. Meant so.
void frmPageSettings::btnStartUPpage_Click() {
  station_.stores.DataFile(kPageSettingsFile);
  station_.stores.DataIni.WriteValue("StartUpPage", "PageName", listPage.Text());
}

void frmPageSettings::btnGo_Click() {
  Feed().LoadPage(SelectedPage);
  btnStartUPpage.Enabled = true;
  lblStartPage.Caption = "Loaded page: " + listPage.Text();
}

void frmPageSettings::btnSave_Click() {
  SkippingFailures(
      [&] {
        const PagePlace place = Feed().Place();
        SavePagePlace(station_.stores, station_.Shared<CurrentPage>().CurrentPageName, place);
      },
      [&] { LoadPageLisy(); });
}

void frmPageSettings::chkOntop_Click() {
  Feed().win.OnTop = chkOntop.Ticked();
  station_.stores.DataFile(kPageSettingsFile);
  station_.stores.DataIni.WriteValue("Display", "OnTop", std::to_string(chkOntop.Value.Get()));
}

void frmPageSettings::chkRefresh_Click() {
  station_.stores.DataFile(kPageSettingsFile);
  ApplyRefresh();
  station_.stores.DataIni.WriteValue("Settings", "Refresh", std::to_string(chkRefresh.Value.Get()));
}

// Into the file that is meant just now: after a click in the list that is Page.ini, where it looks like a page called
// Settings. Meant so. The seconds that have passed go on counting.
void frmPageSettings::cmbMin_Click() {
  station_.stores.DataIni.WriteValue("Settings", "Min", cmbMin.Text.Get());
  RefreshSeconds = SecondsOf(cmbMin.Text);
}

// The value is stored, and the window looks as before; one that is closed comes to life, hidden. Meant so.
void frmPageSettings::scrlTrans_Change() {
  txtTrans.Text = std::to_string(scrlTrans.Value.Get());
  SetPageAlpha(Feed(), static_cast<std::int16_t>(scrlTrans.Value.Get()));
  station_.stores.DataFile(kPageSettingsFile);
  station_.stores.DataIni.WriteValue("Display", "Trans", txtTrans.Text.Get());
}

void frmPageSettings::vkCommand1_Click() {
  MsgBox("The current font size is " + std::to_string(Feed().Web.TextSize.Get()));
}

void frmPageSettings::vkCommand2_Click() {
  Property<int>& size = Feed().Web.TextSize;
  size = std::min(size.Get() + 1, kLargestText);
}

void frmPageSettings::vkCommand3_Click() {
  btnSave_Click();
  Outside().desktop.EndProcess();
}

void frmPageSettings::Timer5_Tick() {
  if (++RefreshCounter < RefreshSeconds) return;
  RefreshCounter = 0;
  Feed().Web.Refresh();
}

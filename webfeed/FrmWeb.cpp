#include "webfeed/FrmWeb.h"

#include "platform/Windows.h"
#include "settings/Numbers.h"
#include "webfeed/frmPageSettings.h"

namespace {

constexpr Twips kTextWidth = 2400;
constexpr Twips kTextHeight = 600;
constexpr char kLoading[] = "Loading..";

void LayOut(Control& control, Twips top, Twips width, Twips height) {
  control.Top = top;
  control.Width = width;
  control.Height = height;
}

}  // namespace

FrmWeb::FrmWeb(Station& station) : Form(station.forms, "FrmWeb", Kind::kOnAir), station_(station) {
  win.OnTop = true;
  picWeb.SeeThrough = true;
  picTxt.Enabled = false;  // the window is pulled by it too
  LayOut(picTxt, 0, kTextWidth, kTextHeight);
  LayOut(lblNet, 0, kTextWidth, kTextHeight / 2);
  LayOut(lblInfo, kTextHeight / 2, kTextWidth, kTextHeight / 2);
  lblNet.Text = kLoading;
  lblInfo.Text = kLoading;

  Resize.Connect([this] { CentreText(); });
  Web.StatusTextChange.Connect([this](const std::string& text) { lblInfo.Text = text; });
  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  Timer2.Tick.Connect([this] { Timer2_Tick(); });
}

void FrmWeb::Load() {
  const PixelSize screen = Outside().windows.ScreenSize();
  picWeb.Height = ToTwips(screen.height);
  picWeb.Width = ToTwips(screen.width);
  station_.stores.DataFile(kPageSettingsFile);
  LoadPage(station_.stores.DataIni.ReadValue("StartUpPage", "PageName", ""));
  CentreText();
  station_.stores.SettingsFile();
  LoadSett();
}

void FrmWeb::LoadSett() { station_.stores.DataFile(kPageSettingsFile); }

void FrmWeb::LoadPage(const std::string& PageName) {
  const StoredPage page = ReadPage(station_.stores, PageName);
  station_.Shared<CurrentPage>().CurrentPageName = PageName;
  Web.Top = page.place.pageTop;
  Web.Left = page.place.pageLeft;
  Web.Navigate(page.url);
  const PixelSize screen = Outside().windows.ScreenSize();
  Web.Height = ToTwips(screen.height);
  Web.Width = ToTwips(screen.width);
  Web.Silent = true;
  Height = page.place.height;
  Width = page.place.width;
  Top = page.place.top;
  Left = page.place.left;
}

PagePlace FrmWeb::Place() const { return {Web.Top, Web.Left, Height, Width, Top, Left}; }

// While it is still the one that a reference gives: the desk reads it.
bool FrmWeb::MayUnload() {
  station_.forms.Get<frmPageSettings>().btnSave_Click();
  station_.forms.Unload<frmPageSettings>();
  return true;
}

void FrmWeb::CentreText() {
  picTxt.Top = (Height - picTxt.Height) / 2;
  picTxt.Left = (Width - picTxt.Width) / 2;
}

void FrmWeb::Timer1_Tick() {
  station_.stores.SettingsFile();
  Left = Val(station_.stores.SettingsIni.ReadValue("WebFeed", "Left", ""));
  Timer1.Enabled = false;
}

// The file is Settings.ini, in which nobody writes this key: half a second after its opening the window is no more on
// top. The shared file stays on it. Meant so.
void FrmWeb::Timer2_Tick() {
  station_.stores.DataFile("settings.ini");
  win.OnTop = Val(station_.stores.DataIni.ReadValue("Display", "OnTop", "")) == 1;
  Timer2.Enabled = false;
}

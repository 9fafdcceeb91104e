#include "overlay/frmBreakingNews.h"

#include "overlay/NewsMovie.h"
#include "platform/Windows.h"
#include "settings/Numbers.h"

namespace {

constexpr char kSection[] = "BreakingNews";
// The seventh sign is the letter O. Movies of running stations are made for this very name: keep it.
constexpr char kLine[] = "_levelO.text1";
constexpr char kFirstText[] = "Hello Orlin";
constexpr int kFramesBeforeTheEnd = 3;

}  // namespace

frmBreakingNews::frmBreakingNews(Station& station)
    : Form(station.forms, "frmBreakingNews", Kind::kOnAir),
      station_(station),
      news_(station.world.files, station.dataFolder),
      feed_(station, *this) {
  Top = 9000;
  Width = 15450;
  Height = 900;
  Flash.WMode = "Window";
  Flash.KeepProportions = true;
  win.OnTop = true;
  Resize.Connect([this] {
    Fill(Flash);
    Fill(Pic);
  });
  // Every frame is told once each time it is come to; a tick that looks at the present one would miss some.
  Flash.FrameShow.Connect([this](int frame) {
    if (frame == Flash.TotalFrames() - kFramesBeforeTheEnd) newsIsDue_ = true;
  });
  Timer1.Tick.Connect([this] {
    TakeStoredLeft();
    Timer1.Enabled = false;
  });
  Timer2.Tick.Connect([this] { Timer2_Tick(); });
  TimerFeed.Tick.Connect([this] { feed_.Look(); });
  MouseDown.Connect([this](const MousePlace&) { Window()->DragWindow([] {}); });
  MouseMove.Connect([this](const MousePlace&) {
    station_.stores.SettingsIni.WriteValue(kSection, "Left", SingleText(static_cast<float>(Left)));
  });
}

void frmBreakingNews::Load() {
  station_.stores.SettingsFile();
  win.RecordWindowPosTo = station_.dataFolder.Path("\\Window.ini");
  Fill(Flash);
  LoadNews(kFirstText);
  Fill(Pic);
  TakeStoredLeft();
}

void frmBreakingNews::Fill(Control& control) {
  control.Top = 0;
  control.Left = 0;
  control.Height = Height;
  control.Width = Width;
}

// Without the key the strip stands at the left edge, whatever place is remembered for its window. Meant so.
void frmBreakingNews::TakeStoredLeft() { Left = Val(station_.stores.SettingsIni.ReadValue(kSection, "Left", "")); }

void frmBreakingNews::LoadNews(const std::string& text) {
  newsIsDue_ = false;
  Flash.Movie = station_.dataFolder.Path(kNewsMovie);
  Flash.SetVariable(kLine, text);
}

void frmBreakingNews::Timer2_Tick() {
  if (!newsIsDue_) return;
  newsIsDue_ = false;
  if (const auto text = news_.NextRSS(feed_.Titles())) LoadNews(*text);
}

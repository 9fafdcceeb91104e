#include "ads/MovieRotation.h"

#include "controls/DeskLists.h"
#include "overlay/SizeSliders.h"
#include "platform/Files.h"
#include "platform/Windows.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

namespace {

// A movie is over so many frames before its last one.
constexpr int kFramesBeforeTheEnd = 3;

// Twips; the range of a slider until its first move.
constexpr int kSmallest = 2000;
constexpr int kLargest = 40400;

}  // namespace

MovieRotation::MovieRotation(Station& station, const RotationKind& kind)
    : Form(station.forms, kind.form, Kind::kOperator),
      station_(station),
      library_(*this, FolderList, station.dataFolder.Path(kind.folder)),
      kind_(kind) {
  Caption = kind.caption;
  Width = ToTwips(960);
  Height = ToTwips(600);
  FolderList.Mode = McListBox::kFolders;
  LookLikeTheDesk(FolderList);
  File.Pattern = "*.swf";
  // The machine's sound goes on the air.
  FlashPreview.Silent = true;
  lblFlashFrm.Caption = "Preview";
  TimerFlash.Tick.Connect([this] { TimerFlash_Tick(); });
  File.Click.Connect([this] { File_Click(); });
  FolderList.Click.Connect([this] { FolderList_Click(); });
  btnLoad.Click.Connect([this] {
    if (library_.AddFile("Load flash Ad file", kind_.filter)) File.Refresh();
  });
  btnDelete.Click.Connect([this] { btnDelete_Click(); });
  vkCommand3.Click.Connect([this] { library_.AddCategory(); });
  // Nothing starts the rotation again but its switch in the menu. Meant so.
  vkCommand2.Click.Connect([this] {
    if (library_.DeleteCategoryIfAsked()) TimerFlash.Enabled = false;
  });
  chkShowLogo.Click.Connect([this] { WriteSetting("ShowLogo", std::to_string(chkShowLogo.Value)); });
  chkTransparent.Click.Connect([this] { SetTransparent(chkTransparent.Ticked()); });
  ConnectSlider(SlidWidth, "Width", &PixelSize::width);
}

void MovieRotation::Load() {
  station_.stores.SettingsFile();
  const bool on = IsSwitchedOn();
  if (on || kind_.loadsSettings == RotationKind::LoadsSettings::kAlways) LoadSett();
  FolderList.Path = station_.dataFolder.Path(kind_.listedAtLoad);
  TimerFlash.Enabled = on;
}

bool MovieRotation::MayUnload() {
  Hide();
  return false;
}

std::string MovieRotation::Setting(const char* key) const {
  return station_.stores.SettingsIni.ReadValue(kind_.section, key, "");
}

void MovieRotation::WriteSetting(const char* key, const std::string& value) {
  station_.stores.SettingsIni.WriteValue(kind_.section, key, value);
}

void MovieRotation::LoadSett() {
  LoadSize();
  SkippingFailures(
      [this] {
        const std::int32_t tick = RoundHalfEven(StrictNumber(Setting("ShowLogo")));
        if (tick == 0 || tick == 1) chkShowLogo.Value = tick;
      },
      [this] { File.Path = Setting("LastPath"); });
}

void MovieRotation::LoadSlider(Slider& slider, const char* key) {
  SkippingFailures([&] { slider.Value = RoundHalfEven(StrictNumber(Setting(key))); });
}

void MovieRotation::ConnectSlider(Slider& slider, const char* key, int PixelSize::*screen) {
  BeginSizeSlider(slider, kSmallest, kLargest);
  slider.Scroll.Connect([this, &slider, key, screen] { TurnSlider(slider, key, screen); });
}

void MovieRotation::TurnSlider(Slider& slider, const char* key, int PixelSize::*screen) {
  EndAtScreen(slider, Outside().windows.ScreenSize().*screen);
  WriteSetting(key, std::to_string(slider.Value));
  Resize();
}

// Nothing is bound at first, so that the first tick begins with the first movie: 0 lies not before 0 - 3.
void MovieRotation::TimerFlash_Tick() {
  const FlashBox& movie = Watched();
  lblFlashFrm.Caption = std::to_string(movie.CurrentFrame()) + " Of " + std::to_string(movie.TotalFrames());
  if (movie.CurrentFrame() >= movie.TotalFrames() - kFramesBeforeTheEnd && File.ListCount() > 0) {
    const int next = File.ListIndex + 1;
    File.ListIndex = next < File.ListCount() ? next : 0;
  }
  if (IsSwitchedOn()) KeepOnAir();
}

void MovieRotation::File_Click() {
  SelectedPath = File.FilePath();
  PutOnAir(SelectedPath);
}

void MovieRotation::FolderList_Click() {
  SkippingFailures([this] { File.Path = library_.Place(); }, [this] { WriteSetting("LastPath", library_.Place()); });
}

// The rotation goes on while the question stands: what was selected when it opened is what it is about. The list goes
// to a folder that need not be there, and stays where it is then. The words are those of a logo. Meant so.
void MovieRotation::btnDelete_Click() {
  const std::string movie = File.FileName().empty() ? "" : File.FilePath();
  if (MsgBox("Are You Sure you wnat to Delete this Ad?", Buttons::kYesNo, "Delete logo") != Answer::kYes) return;
  if (kind_.deletedMovie == RotationKind::DeletedMovie::kStopsRotation) TimerFlash.Enabled = false;
  if (!movie.empty()) Outside().files.Remove(movie);
  File.Refresh();
  SkippingFailures([this] { File.Path = station_.dataFolder.Path("\\media\\" + FolderList.Text()); });
}

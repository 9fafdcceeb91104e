#include "overlay/LibraryForm.h"

#include "controls/DeskLists.h"
#include "overlay/FrmLogoShow.h"
#include "overlay/SizeSliders.h"
#include "overlay/frmClockShow.h"
#include "overlay/frmStikerShow.h"
#include "overlay/mdlFlash.h"
#include "platform/Files.h"
#include "platform/Windows.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

namespace {

constexpr int kSmallest = 1000;  // twips
constexpr int kLargest = 28800;  // until the slider is moved for the first time

int WholeNumber(const std::string& text) { return RoundHalfEven(StrictNumber(text)); }

template <class F>
OverlayForm& Get(StationForms& forms) {
  return forms.Get<F>();
}

}  // namespace

// What the libraries differ in. The oddities are meant so: a box of the logo's words on the clock's form, and that
// after a delete two of them look one folder too high, so that their list of files is empty until a category is
// clicked.
struct LibraryForm::Difference {
  const char* name;
  const char* caption;
  const char* folder;        // of the library, below the station's
  const char* folderAtLoad;  // the same, as the load puts it into the lists
  const char* section;       // of the key `Path`
  const char* sizeSection;   // of the keys `Height` and `Width`
  const char* filter;        // of the file dialog
  const char* deleteText;
  const char* deleteTitle;
  const char* folderAfterDelete;  // with the category's name behind it
  OverlayForm& (*overlay)(StationForms& forms);
};

const LibraryForm::Difference& LibraryForm::Of(Library library) {
  static constexpr Difference kDifferences[] = {
      {"frmLogoSett", "Logo settings", "\\Media\\Logo", "\\Media\\Logo", "Logo", "logo", "Logofile|*.swf;*.jpg",
       "Are You Sure you wnat to Delete this Logo?", "Delete logo", "\\media\\", Get<FrmLogoShow>},
      {"frmClockSett", "Clock settings", "\\Media\\Clock", "\\Media\\Clock", "Clock", "Clock", "Clock file|*.swf;",
       "Are You Sure you wnat to Delete this Logo?", "Delete logo", "\\media\\", Get<frmClockShow>},
      {"frmStikerSett", "Stiker setttings", "\\Media\\Stiker", "\\Media\\Stiker\\", "Stiker", "stiker",
       "stikerfile|*.swf;*.jpg", "Are You Sure you wnat to Delete this stiker?", "Delete stiker", "\\media\\Stiker\\",
       Get<frmStikerShow>},
  };
  return kDifferences[static_cast<std::size_t>(library)];
}

LibraryForm::LibraryForm(Station& station, Library library)
    : Form(station.forms, Of(library).name, Kind::kOperator),
      station_(station),
      folder_(station.dataFolder.Folder()),
      difference_(Of(library)),
      library_(*this, FolderList, station.dataFolder.Path(difference_.folder)) {
  Caption = difference_.caption;
  for (McListBox* list : {&FolderList, &FileList}) LookLikeTheDesk(*list);
  FolderList.Mode = McListBox::kFolders;
  FileList.Mode = McListBox::kFiles;
  for (Slider* slider : {&SlidWidth, &sldHeight}) BeginSizeSlider(*slider, kSmallest, kLargest);
  // Every overlay that shows something starts see-through.
  chkTransparent.Value = 1;
  // The machine's sound goes on the air.
  FlashPreview.Silent = true;
  FolderList.Click.Connect([this] { FolderList_Click(); });
  FileList.Click.Connect([this] { FileList_Click(); });
  btnLoad.Click.Connect([this] { btnLoad_Click(); });
  btnDelete.Click.Connect([this] { btnDelete_Click(); });
  vkCommand3.Click.Connect([this] { library_.AddCategory(); });
  // The files that are shown stay on show. Meant so.
  vkCommand2.Click.Connect([this] { library_.DeleteCategoryIfAsked(); });
  const auto screen = [this] { return Outside().windows.ScreenSize(); };
  sldHeight.Scroll.Connect([this, screen] { Slider_Scroll(sldHeight, "Height", screen().height); });
  SlidWidth.Scroll.Connect([this, screen] { Slider_Scroll(SlidWidth, "Width", screen().width); });
  chkTransparent.Click.Connect([this] { SetFormTransparent(Overlay(), chkTransparent.Value != 0); });
}

OverlayForm& LibraryForm::Overlay() { return difference_.overlay(station_.forms); }

void LibraryForm::Load() {
  station_.stores.SettingsFile();
  LoadSett();
  const std::string root = station_.dataFolder.Path(difference_.folderAtLoad);
  FolderList.Path = root;
  FileList.Path = root;
}

std::string LibraryForm::Setting(const char* key) const {
  return station_.stores.SettingsIni.ReadValue(difference_.sizeSection, key, "");
}

void LibraryForm::WriteSetting(const char* key, const std::string& value) {
  station_.stores.SettingsIni.WriteValue(difference_.sizeSection, key, value);
}

void LibraryForm::LoadSett() {
  SkippingFailures([this] { sldHeight.Value = WholeNumber(Setting("Height")); },
                   [this] { SlidWidth.Value = WholeNumber(Setting("Width")); });
}

void LibraryForm::FolderList_Click() { FileList.Path = library_.Place(); }

void LibraryForm::FileList_Click() {
  SelectedPath = SelectedFile();
  FlashPreview.Movie = SelectedPath;
}

// With no category picked the file goes into the library's root, where no category shows it. Meant so.
void LibraryForm::btnLoad_Click() {
  if (library_.AddFile("Load Ad's header file", difference_.filter)) FileList.Path = library_.Place();
}

// The overlay's setting stays, and may name a file that is gone. Meant so.
void LibraryForm::btnDelete_Click() {
  const std::string file = SelectedFile();
  if (MsgBox(difference_.deleteText, Buttons::kYesNo, difference_.deleteTitle) != Answer::kYes) return;
  Outside().files.Remove(file);
  FileList.Refresh();
  FileList.Path = station_.dataFolder.Path(difference_.folderAfterDelete + FolderList.Text());
}

void LibraryForm::WritePath() { station_.stores.SettingsIni.WriteValue(difference_.section, "Path", SelectedPath); }

void LibraryForm::ShowOnOverlay() { Overlay().Flash.Movie = SelectedPath; }

void LibraryForm::Slider_Scroll(Slider& slider, const char* key, int screenPixels) {
  EndAtScreen(slider, screenPixels);
  WriteSetting(key, std::to_string(slider.Value));
  SizeOverlay(Overlay(), sldHeight, SlidWidth);
}

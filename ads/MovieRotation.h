#pragma once

#include <chrono>
#include <string>

#include "controls/McListBox.h"
#include "overlay/MediaLibrary.h"
#include "platform/toolkit/FileListBox.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Timer.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// What tells one rotation of movies from the other, as far as it is no behaviour of its own.
struct RotationKind {
  enum class LoadsSettings { kAlways, kWhenOn };
  enum class DeletedMovie { kStopsRotation, kLeavesRotation };

  const char* form;
  const char* caption;
  const char* section;  // of Settings.ini
  const char* folder;
  const char* listedAtLoad;  // the folder whose folders are listed until a category is made or deleted
  const char* filter;        // of the dialog that adds a movie
  LoadsSettings loadsSettings;
  DeletedMovie deletedMovie;
};

// The movies of one category follow each other on the air, round and round, each to three frames before its end: their
// library's desk, and the timer that changes them. The row that is selected in File is the movie on the air. Closing
// the form only hides it: the rotation goes on.
class MovieRotation : public Form {
 protected:
  Station& station_;

 public:
  McListBox FolderList{*this, "FolderList", station_.dataFolder.Folder()};  // the categories
  FileListBox File{*this, "File"};
  CommandButton btnLoad{*this, "btnLoad"};
  CommandButton btnDelete{*this, "btnDelete"};
  CommandButton vkCommand3{*this, "vkCommand3"};  // adds a category
  CommandButton vkCommand2{*this, "vkCommand2"};  // deletes a category
  FlashBox FlashPreview{*this, "FlashPreview"};
  Label lblFlashFrm{*this, "lblFlashFrm"};  // how far the movie is
  Slider SlidWidth{*this, "SlidWidth"};
  CheckBox chkShowLogo{*this, "chkShowLogo"};  // stored, and nothing else
  CheckBox chkTransparent{*this, "chkTransparent"};

  Timer TimerFlash{*this, "TimerFlash", std::chrono::milliseconds(1), Timer::kDisabled};

  std::string SelectedPath;  // of the movie selected last

  // Takes what Settings.ini holds: the size, the box, and the category chosen last.
  void LoadSett();

 protected:
  MovieRotation(Station& station, const RotationKind& kind);

  void Load() override;
  bool MayUnload() override;

  // The movie whose end the rotation waits for.
  virtual FlashBox& Watched() = 0;
  virtual void PutOnAir(const std::string& movie) = 0;
  // Each tick while the ad is switched on.
  virtual void KeepOnAir() {}
  virtual void LoadSize() = 0;
  // The sliders have been moved.
  virtual void Resize() = 0;
  virtual void SetTransparent(bool transparent) = 0;

  std::string Setting(const char* key) const;
  // The key's value into the slider; what is no number leaves it where it is.
  void LoadSlider(Slider& slider, const char* key);
  void ConnectSlider(Slider& slider, const char* key, int PixelSize::*screen);

  MediaLibrary library_;

 private:
  bool IsSwitchedOn() const { return Setting("Show") == "True"; }
  void WriteSetting(const char* key, const std::string& value);
  void TimerFlash_Tick();
  void File_Click();
  void FolderList_Click();
  void btnDelete_Click();
  void TurnSlider(Slider& slider, const char* key, int PixelSize::*screen);

  const RotationKind& kind_;
};

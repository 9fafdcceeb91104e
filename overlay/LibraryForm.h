#pragma once

#include <string>

#include "controls/McListBox.h"
#include "overlay/MediaLibrary.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

class OverlayForm;

// The library of one overlay's files, and the overlay's size: logo, clock or sticker. Each sub folder of the library's
// root is a category, and the files in it are what the overlay may show; there is no other index.
class LibraryForm : public Form {
 private:
  Station& station_;
  std::string folder_;  // the station's

 public:
  McListBox FolderList{*this, "FolderList", folder_};  // the categories
  McListBox FileList{*this, "FileList", folder_};      // the files of the category that was clicked last
  CommandButton vkCommand3{*this, "vkCommand3"};       // makes a category
  CommandButton vkCommand2{*this, "vkCommand2"};       // deletes the category with its files
  CommandButton btnLoad{*this, "btnLoad"};             // copies a file into the category
  CommandButton btnDelete{*this, "btnDelete"};         // deletes the file
  FlashBox FlashPreview{*this, "FlashPreview"};        // the file that was clicked last; silent
  Slider SlidWidth{*this, "SlidWidth"};                // twips, of the overlay
  Slider sldHeight{*this, "sldHeight"};
  CheckBox chkTransparent{*this, "chkTransparent"};
  CheckBox chkShowLogo{*this, "chkShowLogo"};

  std::string SelectedPath;  // the full path of the file that was clicked last; empty before the first click

  // Reads the sizes into the sliders. What is no number leaves its slider as it was.
  virtual void LoadSett();

 protected:
  enum class Library { kLogo, kClock, kSticker };

  LibraryForm(Station& station, Library library);

  void Load() override;

  // The file that is selected now, or else its folder.
  std::string SelectedFile() const { return FileList.Path.Get() + FileList.Text(); }
  // The two steps of putting the file clicked last on the overlay: the setting, and the window, which is loaded where
  // it is not open.
  void WritePath();
  void ShowOnOverlay();
  // Settings of the overlay.
  std::string Setting(const char* key) const;
  void WriteSetting(const char* key, const std::string& value);

 private:
  struct Difference;
  static const Difference& Of(Library library);

  OverlayForm& Overlay();
  void FolderList_Click();
  void FileList_Click();
  void btnLoad_Click();
  void btnDelete_Click();
  void Slider_Scroll(Slider& slider, const char* key, int screenPixels);

  const Difference& difference_;
  MediaLibrary library_;
};

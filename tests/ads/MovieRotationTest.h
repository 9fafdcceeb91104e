#pragma once

#include <string>

#include "ads/frmFlashAdSett.h"
#include "ads/frmLeftSideAdSett.h"
#include "overlay/frmFlashAdShow.h"
#include "tests/StationTest.h"

// What the tests of both rotations need to know of the one they are about.
struct ColumnSide {
  using Desk = frmLeftSideAdSett;
  static constexpr char kSection[] = "LeftSideAd";
  static constexpr char kLibrary[] = "/station/Media/LeftSideAd";
  static constexpr char kOnAir[] = "frmPlayer.FlashSideAd";
  static constexpr char kFilter[] = "LeftSideAd file|*.swf;";
  static FlashBox& Watched(Station& station) { return station.forms.Get<frmLeftSideAdSett>().FlashPreview; }
};

struct OverlaySide {
  using Desk = frmFlashAdSett;
  static constexpr char kSection[] = "FlashAd";
  static constexpr char kLibrary[] = "/station/Media/FlashAd";
  static constexpr char kOnAir[] = "frmFlashAdShow.Flash";
  static constexpr char kFilter[] = "FlashAd file|*.swf;";
  static FlashBox& Watched(Station& station) { return station.forms.Get<frmFlashAdShow>().Flash; }
};

// A station with categories of movies, 25 frames a second each.
template <class Side>
class MovieRotationTest : public StationTest {
 protected:
  FlashBox& Watched() { return Side::Watched(station); }
  typename Side::Desk& Desk() { return station.forms.template Get<typename Side::Desk>(); }

  static std::string Category(const std::string& name) { return std::string(Side::kLibrary) + "/" + name; }
  // Stores a movie and gives its path.
  std::string Movie(const std::string& category, const std::string& name, int frames = 100) {
    const std::string path = Category(category) + "/" + name;
    sim.files.Put(path, "movie");
    sim.flash.SetMovie(path, frames);
    return path;
  }
  std::string Stored(const char* key) { return Setting(Side::kSection, key); }
  void Store(const char* key, const std::string& value) { Set(Side::kSection, key, value); }

  // The rotation comes up switched on, with that category.
  typename Side::Desk& RunWith(const std::string& category) {
    Store("Show", "True");
    Store("LastPath", Category(category));
    Output().Timer1.Enabled = false;  // the crawler's, for the sake of speed
    typename Side::Desk& form = Desk();
    sim.trace.Take();
    return form;
  }
  // The movies that were put on the air since the last call.
  Names Aired() { return PutOn(Side::kOnAir); }
  Names PutOn(const std::string& surface) {
    Names names;
    const std::string start = surface + " movie ";
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with(start)) names.push_back(line.substr(line.rfind('/') + 1));
    }
    return names;
  }
  // The operator clicks a category that is listed.
  void PickCategory(const std::string& name) {
    for (int row = 0; row < Desk().FolderList.ListCount(); ++row) {
      if (Desk().FolderList.List(row) == name) Desk().FolderList.PressRow(row);
    }
    ASSERT_EQ(Desk().FolderList.Text(), name);
    Desk().FolderList.ClickRows();
  }
  // Lists the categories of the library, whatever the form lists after its load.
  void ListLibrary() { Desk().FolderList.Path = Side::kLibrary; }
  Names Listed() {
    Names names;
    for (int index = 0; index < Desk().File.ListCount(); ++index) names.push_back(Desk().File.List(index));
    return names;
  }
  Names Categories() {
    Names names;
    for (int row = 0; row < Desk().FolderList.ListCount(); ++row) names.push_back(Desk().FolderList.List(row));
    return names;
  }
  // What has stood before the operator since the last call, and what was copied.
  Names Asked() {
    Names lines;
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with("box") || line.starts_with("input") || line.starts_with("open") ||
          line.starts_with("copy")) {
        lines.push_back(line);
      }
    }
    return lines;
  }
  void Answers(Answer answer) { sim.dialogs.answers = {answer}; }
};

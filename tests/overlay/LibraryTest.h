#pragma once

#include <string>

#include "overlay/FrmLogoShow.h"
#include "overlay/frmClockSett.h"
#include "overlay/frmClockShow.h"
#include "overlay/frmLogoSett.h"
#include "overlay/frmStikerSett.h"
#include "overlay/frmStikerShow.h"
#include "tests/StationTest.h"

// What the tests need to know of each library.
struct LogoLibrary {
  using Form = frmLogoSett;
  using Window = FrmLogoShow;
  static constexpr char kFolder[] = "/station/Media/Logo", kSection[] = "Logo", kCaption[] = "Logo settings";
  static constexpr char kFilter[] = "Logofile|*.swf;*.jpg";
  static constexpr char kDelete[] = "box \"Are You Sure you wnat to Delete this Logo?\" \"Delete logo\"";
  static CommandButton& Set(Form& form) { return form.BtnSetLogo; }
  static MenuItem& Entry(frmMid& mid) { return mid.mnuFlashLogo; }
};
struct ClockLibrary {
  using Form = frmClockSett;
  using Window = frmClockShow;
  static constexpr char kFolder[] = "/station/Media/Clock", kSection[] = "Clock", kCaption[] = "Clock settings";
  static constexpr char kFilter[] = "Clock file|*.swf;";
  static constexpr char kDelete[] = "box \"Are You Sure you wnat to Delete this Logo?\" \"Delete logo\"";
  static CommandButton& Set(Form& form) { return form.btnSetAsClock; }
  static MenuItem& Entry(frmMid& mid) { return mid.mnuClockSettings; }
};
struct StickerLibrary {
  using Form = frmStikerSett;
  using Window = frmStikerShow;
  static constexpr char kFolder[] = "/station/Media/Stiker", kSection[] = "Stiker", kCaption[] = "Stiker setttings";
  static constexpr char kFilter[] = "stikerfile|*.swf;*.jpg";
  static constexpr char kDelete[] = "box \"Are You Sure you wnat to Delete this stiker?\" \"Delete stiker\"";
  static CommandButton& Set(Form& form) { return form.BtnSetLogo; }
  static MenuItem& Entry(frmMid& mid) { return mid.MnuStikerSettings; }
};

// A station with two categories in a library, "news" with two movies and "sport" with none, and its operator.
template <class L>
class LibraryTest : public StationTest {
 protected:
  LibraryTest() {
    sim.files.CreateFolder(At("sport"));
    for (const char* file : {"news/a.swf", "news/b.swf"}) sim.files.Put(At(file), "movie");
    sim.files.Put("/stick/new.swf", "from the stick");
  }

  static std::string At(const std::string& name) { return std::string(L::kFolder) + "/" + name; }

  typename L::Form& Desk() { return station.forms.Get<typename L::Form>(); }
  typename L::Window& Overlay() { return station.forms.Get<typename L::Window>(); }
  bool OverlayLoaded() { return station.forms.Loaded<typename L::Window>(); }

  static Names Shown(const McListBox& list) {
    Names texts;
    for (int index = 0; index < list.ListCount(); ++index) texts.push_back(list.List(index));
    return texts;
  }
  Names Categories() { return Shown(Desk().FolderList); }
  Names Files() { return Shown(Desk().FileList); }

  static void Click(McListBox& list, const std::string& text) {
    const Names texts = Shown(list);
    const auto row = std::ranges::find(texts, text);
    ASSERT_NE(row, texts.end()) << text;
    list.PressRow(static_cast<int>(row - texts.begin()));
    list.ClickRows();
  }
  void PickCategory(const std::string& name) { Click(Desk().FolderList, name); }
  void PickFile(const std::string& category, const std::string& name) {
    PickCategory(category);
    Click(Desk().FileList, name);
  }
  void LoadFile(const std::string& file) {
    sim.dialogs.files = {file};
    Desk().btnLoad.Press();
  }
  void AddCategory(const std::string& name) {
    sim.dialogs.inputs = {name};
    Desk().vkCommand3.Press();
  }
  void Answered(Answer answer, CommandButton& button) {
    sim.dialogs.answers = {answer};
    button.Press();
  }
  // What has stood before the operator since the last call, and what was copied.
  Names Asked() {
    Names lines;
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with("box") || line.starts_with("open") || line.starts_with("copy")) lines.push_back(line);
    }
    return lines;
  }
};

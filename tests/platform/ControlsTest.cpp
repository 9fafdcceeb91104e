#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/FileListBox.h"
#include "platform/toolkit/ListBox.h"
#include "platform/toolkit/MenuItem.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/PlayerControl.h"
#include "platform/toolkit/TrayIcon.h"
#include "platform/toolkit/Widgets.h"
#include "platform/toolkit/Wildcards.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

namespace {

class frmControls : public Form {
 public:
  explicit frmControls(Station& station) : Form(station.forms, "frmControls", Kind::kOperator) {}

  CommandButton Button{*this, "Button"};
  CheckBox Box{*this, "Box"};
  TextBox Text{*this, "Text"};
  ComboBox Combo{*this, "Combo"};
  ::Slider Slider{*this, "Slider"};
  DatePicker Date{*this, "Date"};
  FileListBox Files{*this, "Files"};
  ListBox List{*this, "List"};
  MenuItem Entry{*this, "Entry"};
  TrayIcon Tray{*this, "Tray"};
  PictureBox Pane{*this, "Pane"};
  PictureBox Sized{*this, "Sized", PictureBox::Sizing::kByPicture};
  FlashBox Flash{Pane, "Flash"};
  PlayerControl Player{*this, "Player"};
};

}  // namespace

class ControlsTest : public StationTest {
 protected:
  // Counts how often an event is raised.
  template <class... Args>
  const int& Count(Event<Args...>& event) {
    counts.push_back(std::make_unique<int>(0));
    event.Connect([count = counts.back().get()](Args...) { ++*count; });
    return *counts.back();
  }
  Names Files() const {
    Names names;
    for (int index = 0; index < form.Files.ListCount(); ++index) names.push_back(form.Files.List(index));
    return names;
  }

  std::vector<std::unique_ptr<int>> counts;
  frmControls& form = station.forms.Get<frmControls>();
};

TEST_F(ControlsTest, ACheckBoxTurnsOverAtEachClickUnlessItIsDisabled) {
  const int& clicks = Count(form.Box.Click);
  EXPECT_FALSE(form.Box.Ticked());
  form.Box.Toggle();
  EXPECT_EQ(form.Box.Value, 1);
  EXPECT_TRUE(form.Box.Ticked());
  form.Box.Toggle();
  EXPECT_EQ(form.Box.Value, 0);
  EXPECT_EQ(clicks, 2);
  form.Box.Enabled = false;
  form.Box.Toggle();
  form.Box.Value = 1;
  EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, AButtonAMenuEntryAndTheTrayIconTellWhatTheOperatorDoes) {
  const int& presses = Count(form.Button.Click);
  const int& choices = Count(form.Entry.Click);
  const int& doubles = Count(form.Tray.DblClick);
  const int& mouse = Count(form.Tray.MouseDown);
  form.Button.Press();
  form.Entry.Choose();
  form.Tray.DoubleClick();
  EXPECT_EQ((std::vector<int>{presses, choices, doubles, mouse}), (std::vector<int>{1, 1, 1, 0}));
  form.Tray.PressMouse(MouseButton::kRight);
  form.Button.Enabled = false;
  form.Entry.Enabled = false;
  form.Button.Press();
  form.Entry.Choose();
  EXPECT_EQ((std::vector<int>{presses, choices, doubles, mouse}), (std::vector<int>{1, 1, 1, 1}));
}

TEST_F(ControlsTest, ATextBoxTellsWhatIsTypedAndNotWhatCodeSets) {
  const int& changes = Count(form.Text.Change);
  form.Text.Text = "by code";
  EXPECT_EQ(changes, 0);
  form.Text.Type("typed");
  EXPECT_EQ(form.Text.Text.Get(), "typed");
  EXPECT_EQ(changes, 1);
}

TEST_F(ControlsTest, AComboTakesAPickWithAClickAndATypedTextWithoutOne) {
  const int& clicks = Count(form.Combo.Click);
  const int& items = Count(form.Combo.ItemsChanged);
  form.Combo.AddItem("one");
  form.Combo.AddItem("two");
  EXPECT_EQ(items, 2);
  EXPECT_EQ(form.Combo.ListCount(), 2);
  form.Combo.Pick(1);
  EXPECT_EQ(form.Combo.Text.Get(), "two");
  EXPECT_EQ(clicks, 1);
  form.Combo.Type("three");
  EXPECT_EQ(form.Combo.Text.Get(), "three");
  EXPECT_EQ(clicks, 1);
  for (const int none : {-1, 2}) {
    EXPECT_THROW(form.Combo.List(none), Failure) << none;
    form.Combo.Pick(none);
    EXPECT_EQ(sim.trace.Take().back(), "box \"There is no such item in Combo.\" \"Corvanta 6.0\"");
  }
  EXPECT_EQ(form.Combo.Text.Get(), "three");
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, ASliderStaysBetweenItsEnds) {
  const int& worked = Count(form.Slider.Worked);
  form.Slider.Min = 2;
  form.Slider.Max = 5;
  for (const auto& [to, at] : {std::pair(1, 2), std::pair(2, 2), std::pair(4, 4), std::pair(5, 5), std::pair(6, 5)}) {
    form.Slider.Work(to);
    EXPECT_EQ(form.Slider.Value, at) << to;
  }
  EXPECT_EQ(worked, 5);
  form.Slider.Max = 1;  // below the other end: as if there were no room
  form.Slider.Work(4);
  EXPECT_EQ(form.Slider.Value, 2);
  form.Slider.Enabled = false;
  form.Slider.Max = 10;
  form.Slider.Work(7);
  form.Slider.Value = 3;
  EXPECT_EQ(worked, 6);
}

TEST_F(ControlsTest, ADateThatIsSetTellsItFromCodeTooButNotTheSameOne) {
  const int& changes = Count(form.Date.Change);
  form.Date.Value = {.hour = 7};
  EXPECT_EQ(form.Date.Value.Get(), DateTime{.hour = 7});
  EXPECT_EQ(changes, 1);
  form.Date.Value = {.hour = 7};
  EXPECT_EQ(changes, 1);
}

TEST_F(ControlsTest, AFileListShowsTheFilesOfItsFolderThatFitItsPattern) {
  for (const char* name : {"b.mp4", "a.AVI", "c.txt"}) Clip(name);
  sim.files.CreateFolder("/clips/deep.avi");
  form.Files.Path = "/clips/";
  EXPECT_EQ(form.Files.Path.Get(), "/clips");
  EXPECT_EQ(Files(), (Names{"a.AVI", "b.mp4", "c.txt"}));
  form.Files.Pattern = "*.avi;*.mp4";
  EXPECT_EQ(Files(), (Names{"a.AVI", "b.mp4"}));
  form.Files.Pattern = "";
  EXPECT_EQ(Files().size(), 3u);
  EXPECT_THROW(form.Files.Path = "/nowhere", Failure);
  EXPECT_THROW(form.Files.Path = "/clips/b.mp4", Failure);
  EXPECT_EQ(form.Files.Path.Get(), "/clips");
  EXPECT_EQ(Files().size(), 3u);
  for (const int none : {-1, 3}) EXPECT_THROW(form.Files.List(none), Failure) << none;
}

TEST_F(ControlsTest, ASelectedFileIsNamedWithAndWithoutItsFolderAndARefreshSelectsNone) {
  Clip("a.mp4");
  Clip("b.mp4");
  sim.files.Put("/root.mp4", "media");
  form.Files.Path = "/clips";
  EXPECT_EQ(form.Files.FileName(), "");
  EXPECT_EQ(form.Files.FilePath(), "/clips/");
  const int& clicks = Count(form.Files.Click);
  const int& items = Count(form.Files.ItemsChanged);
  form.Files.Pick(1);
  EXPECT_EQ(form.Files.FileName(), "b.mp4");
  EXPECT_EQ(form.Files.FilePath(), "/clips/b.mp4");
  EXPECT_EQ(clicks, 1);
  form.Files.ListIndex = -1;
  EXPECT_EQ(clicks, 1);
  form.Files.ListIndex = 0;
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(items, 0);
  form.Files.Refresh();
  EXPECT_EQ(items, 1);
  EXPECT_EQ(form.Files.ListIndex.Get(), -1);
  EXPECT_EQ(clicks, 2);
  form.Files.Pick(7);
  EXPECT_EQ(sim.trace.Take().back(), "box \"There is no such row in Files.\" \"Corvanta 6.0\"");
  form.Files.Path = "/";
  form.Files.Pick(0);
  EXPECT_EQ(form.Files.FilePath(), "/root.mp4");
}

TEST_F(ControlsTest, SettingTheIndexThatIsSelectedRaisesNoClickButTheOperatorsClickOnItCounts) {
  Clip("a.mp4");
  Clip("b.mp4");
  form.Files.Path = "/clips";
  form.Files.ListIndex = 1;
  const int& clicks = Count(form.Files.Click);
  form.Files.ListIndex = 1;
  EXPECT_EQ(clicks, 0);
  form.Files.Pick(1);
  EXPECT_EQ(clicks, 1);
  form.Files.Path = "/clips";  // the folder that it shows
  form.Files.ListIndex = 1;
  EXPECT_EQ(clicks, 1);
  form.Files.Refresh();
  form.Files.ListIndex = 1;
  EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, AChangeOfFolderKeepsTheNumberOfTheRowAndTheNextSettingOfTheIndexRaisesTheClick) {
  for (const char* name : {"a.mp4", "b.mp4", "c.mp4"}) Clip(name);
  sim.files.Put("/other/B.mp4", "media");
  sim.files.Put("/other/a.mp4", "media");
  form.Files.Path = "/clips";
  form.Files.ListIndex = 1;
  const int& clicks = Count(form.Files.Click);
  form.Files.Path = "/other";
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(form.Files.ListIndex.Get(), 1);
  EXPECT_EQ(form.Files.FilePath(), "/other/B.mp4");
  form.Files.ListIndex = 1;
  EXPECT_EQ(clicks, 1);
  form.Files.ListIndex = 1;
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, ARowBeyondTheNewFoldersListKeepsItsNumberAndNamesNoFile) {
  for (const char* name : {"a.mp4", "b.mp4", "c.mp4"}) Clip(name);
  sim.files.Put("/other/a.mp4", "media");
  form.Files.Path = "/clips";
  form.Files.ListIndex = 2;
  const int& clicks = Count(form.Files.Click);
  form.Files.Path = "/other";
  EXPECT_EQ(form.Files.ListIndex.Get(), 2);
  EXPECT_EQ(form.Files.FileName(), "");
  EXPECT_EQ(form.Files.FilePath(), "/other/");
  EXPECT_THROW(form.Files.ListIndex = 2, Failure);
  form.Files.Path = "/clips";
  EXPECT_EQ(form.Files.FileName(), "c.mp4");
  form.Files.ListIndex = 2;
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, APatternIsAListThatMayBeEmptyOrHoldBlanks) {
  for (const char* patterns : {"", ";", " ; ", "*.*", "*.avi;*.*", "*", "news*", "*.mp4", " *.mp4 ", "*.avi; *.mp4"}) {
    EXPECT_TRUE(FitsPattern("news.mp4", patterns)) << patterns;
  }
  for (const char* patterns : {"*.avi", "*.mp", "mp4", "*.avi;", ";*.avi", "*.av?;?.mp4"}) {
    EXPECT_FALSE(FitsPattern("news.mp4", patterns)) << patterns;
  }
  EXPECT_TRUE(FitsPattern("no extension", "*.*"));
}

TEST_F(ControlsTest, APictureGivesItsSizeToAPaneThatIsSizedByItAndToNoOther) {
  sim.pictures.sizes = {{"/a.jpg", {40, 30}}};
  sim.files.Put("/a.jpg", "jpeg");
  form.Pane.Width = 77;
  form.Pane.Height = 66;
  form.Pane.LoadPicture("/a.jpg");
  form.Sized.LoadPicture("/a.jpg");
  EXPECT_EQ(form.Pane.Width, 77);
  EXPECT_EQ(form.Pane.Height, 66);
  EXPECT_EQ(form.Sized.Width, 600);
  EXPECT_EQ(form.Sized.Height, 450);
  const LoadedPicture first = form.Pane.Picture;
  EXPECT_EQ(first.path, "/a.jpg");
  EXPECT_THROW(form.Sized.LoadPicture("/none.jpg"), Failure);
  EXPECT_EQ(form.Sized.Width, 600);
  form.Pane.LoadPicture("/a.jpg");
  EXPECT_FALSE(form.Pane.Picture.Get() == first);  // written anew, perhaps
  form.Sized.LoadPicture("");
  EXPECT_EQ(form.Sized.Width, 0);
  EXPECT_EQ(form.Sized.Height, 0);
  EXPECT_EQ(form.Sized.Picture.Get().path, "");
}

TEST_F(ControlsTest, AListBoxHoldsWhatIsAddedInItsOrderTwinsToo) {
  const int& items = Count(form.List.ItemsChanged);
  for (const char* item : {"b", "a", "b"}) form.List.AddItem(item);
  EXPECT_EQ(items, 3);
  EXPECT_EQ(form.List.ListCount(), 3);
  EXPECT_EQ(form.List.List(1), "a");
  EXPECT_EQ(form.List.Text(), "");
  EXPECT_THROW(form.List.ListIndex = 3, Failure);
  EXPECT_EQ(form.List.ListIndex.Get(), -1);
}

TEST_F(ControlsTest, ARowOfAListBoxThatIsPickedIsItsTextAndADoubleClickComesBehindTheClick) {
  const int& clicks = Count(form.List.Click);
  const int& doubles = Count(form.List.DblClick);
  for (const char* item : {"a", "b"}) form.List.AddItem(item);
  form.List.Pick(1);
  EXPECT_EQ(form.List.Text(), "b");
  EXPECT_EQ(clicks, 1);
  form.List.DoubleClick();
  EXPECT_EQ(doubles, 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, AListBoxThatIsClearedHasNothingSelectedAndRaisesNoClick) {
  form.List.AddItem("a");
  form.List.Pick(0);
  const int& clicks = Count(form.List.Click);
  form.List.Clear();
  EXPECT_EQ(form.List.ListCount(), 0);
  EXPECT_EQ(form.List.ListIndex.Get(), -1);
  EXPECT_EQ(form.List.Text(), "");
  EXPECT_EQ(clicks, 0);
}

TEST_F(ControlsTest, APlayerIsToldWhatItsControlIsToldAndTellsItsState) {
  const int& states = Count(form.Player.PlayStateChange);
  const int& media = Count(form.Player.CurrentMediaChange);
  EXPECT_THROW(form.Player.currentMedia.duration(), Failure);
  EXPECT_EQ(form.Player.playState(), 0);
  form.Player.URL = Clip("a.mp4", 30);
  EXPECT_EQ(form.Player.currentMedia.duration(), 0);
  EXPECT_FALSE(form.Player.isOnline());
  Advance(1s);
  EXPECT_EQ(form.Player.playState(), 3);
  EXPECT_TRUE(form.Player.isOnline());
  EXPECT_EQ(form.Player.currentMedia.duration(), 30);
  EXPECT_EQ(media, 1);
  EXPECT_EQ(states, 2);
  form.Player.controls.pause();
  EXPECT_EQ(form.Player.playState(), 2);
  form.Player.controls.play();
  EXPECT_EQ(form.Player.playState(), 3);
  form.Player.controls.SetCurrentPosition(12);
  EXPECT_EQ(form.Player.controls.currentPosition(), 12);
  form.Player.controls.stop();
  EXPECT_EQ(form.Player.playState(), 1);
  const SimPlayer& player = *sim.media.Find("frmControls.Player");
  form.Player.settings.mute = true;
  form.Player.settings.volume = 7;
  form.Player.stretchToFit = true;
  EXPECT_TRUE(player.Mute());
  EXPECT_EQ(player.Volume(), 7);
  EXPECT_TRUE(player.StretchToFit());
}

TEST_F(ControlsTest, AControlOfAnUnloadedFormDoesNothingAnyMore) {
  const int& presses = Count(form.Button.Click);
  form.Player.URL = Clip("a.mp4");
  Advance(1s);
  form.Button.Click.Connect([this] {
    station.forms.Unload<frmControls>();
    form.Button.Press();
    EXPECT_EQ(form.Player.playState(), 0);
    EXPECT_EQ(form.Player.status(), "");
    EXPECT_FALSE(form.Player.isOnline());
    EXPECT_THROW(form.Player.currentMedia.duration(), Failure);
    form.Player.controls.play();
    form.Player.controls.pause();
    form.Player.controls.stop();
    form.Player.controls.SetCurrentPosition(1);
    EXPECT_EQ(form.Player.controls.currentPosition(), 0);
    form.Player.settings.mute = true;
    form.Player.settings.volume = 1;
    form.Player.stretchToFit = true;
    form.Player.URL = "/clips/a.mp4";
    EXPECT_EQ(form.Window(), nullptr);
    form.Button.SetFocus();
  });
  form.Button.Press();
  EXPECT_EQ(presses, 1);
  EXPECT_FALSE(station.forms.Loaded<frmControls>());
}

TEST_F(ControlsTest, TheKeyboardAndTheMouseReachTheControlThatIsMeant) {
  form.Text.SetFocus();
  EXPECT_EQ(sim.windows.focus, "frmControls.Text");
  std::vector<MouseButton> pressed;
  form.Flash.MouseDown.Connect([&](MouseButton button) { pressed.push_back(button); });
  form.Pane.PressMouse(MouseButton::kLeft);
  form.Flash.PressMouse(MouseButton::kMiddle);
  EXPECT_EQ(pressed, std::vector<MouseButton>{MouseButton::kMiddle});
  EXPECT_EQ(form.Flash.Container(), &form.Pane);
  EXPECT_EQ(form.Pane.Container(), nullptr);
  EXPECT_EQ(form.Pane.Children(), std::vector<Control*>{&form.Flash});
}

TEST(EventTest, HandlersAreCalledInTheOrderInWhichTheyConnectedAndWatchersAfterThem) {
  Event<int> event;
  Names called;
  const auto note = [&called](std::string who) {
    return [&called, who = std::move(who)](int value) { called.push_back(who + std::to_string(value)); };
  };
  auto watcher = event.Subscribe(note("w"));
  event.Connect(note("a"));
  event.Connect(note("b"));
  event.Raise(1);
  watcher.reset();
  event.Raise(2);
  EXPECT_EQ(called, (Names{"a1", "b1", "w1", "a2", "b2"}));
}

TEST(EventTest, WhoConnectsOrLeavesWhileItIsToldIsNotCalledThisTime) {
  Event<> event;
  Names called;
  Subscription late, leaving;
  event.Connect([&] {
    called.push_back("first");
    leaving.reset();
    if (!late) late = event.Subscribe([&] { called.push_back("late"); });
  });
  leaving = event.Subscribe([&] { called.push_back("leaving"); });
  event.Raise();
  EXPECT_EQ(called, Names{"first"});
  event.Raise();
  EXPECT_EQ(called, (Names{"first", "first", "late"}));
}

TEST(PropertyTest, OnlyAnotherValueIsToldOf) {
  Property<int> one{3}, other{4};
  int told = 0;
  one.Changed.Connect([&told] { ++told; });
  one = 3;
  EXPECT_EQ(told, 0);
  one = other;
  EXPECT_EQ(one.Get(), 4);
  EXPECT_EQ(told, 1);
}

// The settings of the station itself.
#include "shell/frmSettings.h"
#include "tests/StationTest.h"

namespace {

constexpr char kQuestion[] = "input \"Please enter the current password\" \"Password\"";
constexpr char kChanged[] = "box \"Pass word has been changed\" \"Password\"";
constexpr char kWrong[] = "box \"Wrong password\" \"Error\"";

class SystemSettingsTest : public StationTest {
 protected:
  frmSettings& Desk() { return station.forms.Get<frmSettings>(); }
  // What the world was asked since the last call.
  Names Does(const std::function<void()>& act) {
    Desk();
    sim.trace.Take();
    act();
    return sim.trace.Take();
  }
  Names SavePassword(const std::string& answer) {
    sim.dialogs.inputs = {answer, "unread"};
    return Does([this] { Desk().btnPassSave.Press(); });
  }
  // What the next start would read.
  std::string OnDisk(const char* key) {
    IniFile file(sim.files);
    file.SetPath("/station/Settings.ini");
    return file.ReadValue("Settings", key, "(none)");
  }
};

TEST_F(SystemSettingsTest, ItsMenuEntryOpensIt) {
  ControlWindow().mnuSettings.Choose();
  ASSERT_TRUE(station.forms.Loaded<frmSettings>());
  EXPECT_TRUE(Desk().Visible);
  EXPECT_EQ(Desk().Caption.Get(), "System settings");
}

TEST_F(SystemSettingsTest, TheBoxesAndTextsShowWhatIsStored) {
  for (const char* key : {"StartUp", "ShowTaskbar"}) Set("Settings", key, "1");
  for (const char* key : {"NeedPass", "ShowMouse"}) Set("Settings", key, "0");
  Set("Settings", "Ext", "*.mp4;*.avi");
  Set("Settings", "Password", "readable");
  EXPECT_TRUE(Desk().chkStartUp.Ticked());
  EXPECT_FALSE(Desk().chkPass.Ticked());
  EXPECT_FALSE(Desk().chkMouse.Ticked());
  EXPECT_TRUE(Desk().ChkTaskBar.Ticked());
  EXPECT_EQ(Desk().txtExt.Text.Get(), "*.mp4;*.avi");
  EXPECT_EQ(Desk().txtPass.Text.Get(), "readable");
}

TEST_F(SystemSettingsTest, AValueThatIsEmptyOrNoNumberIsZero) {
  for (const char* key : {"StartUp", "NeedPass", "ShowMouse", "ShowTaskbar"}) Set("Settings", key, "True");
  Set("Settings", "StartUp", "");
  for (const CheckBox* box : {&Desk().chkStartUp, &Desk().chkPass, &Desk().chkMouse, &Desk().ChkTaskBar}) {
    EXPECT_EQ(box->Value.Get(), 0) << box->Name();
  }
  EXPECT_EQ(Desk().CurrentPassword, "0");
}

TEST_F(SystemSettingsTest, ABoxOfAnotherNumberThanOneIsNotTicked) {
  for (const char* key : {"StartUp", "NeedPass", "ShowMouse", "ShowTaskbar"}) Set("Settings", key, "2");
  for (const CheckBox* box : {&Desk().chkStartUp, &Desk().chkPass, &Desk().chkMouse, &Desk().ChkTaskBar}) {
    EXPECT_FALSE(box->Ticked()) << box->Name();
  }
}

TEST_F(SystemSettingsTest, LoadingSwitchesAndWritesNothing) {
  Set("Settings", "ShowMouse", "1");
  Set("Settings", "ShowTaskbar", "0");
  const auto before = sim.files.Read("/station/Settings.ini");
  sim.trace.Take();
  Desk();
  EXPECT_EQ(sim.trace.Take(), Names{"frmSettings loaded"});
  EXPECT_EQ(sim.files.Read("/station/Settings.ini"), before);
}

TEST_F(SystemSettingsTest, EachBoxIsWrittenAsAWholeNumberAtOnce) {
  const struct {
    CheckBox frmSettings::*box;
    const char* key;
  } boxes[] = {{&frmSettings::chkMouse, "ShowMouse"},
               {&frmSettings::ChkTaskBar, "ShowTaskbar"},
               {&frmSettings::chkStartUp, "StartUp"},
               {&frmSettings::chkPass, "NeedPass"}};
  for (const auto& row : boxes) {
    for (const char* value : {"1", "0"}) {
      (Desk().*row.box).Toggle();
      EXPECT_EQ(OnDisk(row.key), value) << row.key;
    }
  }
}

TEST_F(SystemSettingsTest, TheTaskbarComesAndGoesWithItsBox) {
  EXPECT_EQ(Does([this] { Desk().ChkTaskBar.Toggle(); }), Names{"taskbar shown"});
  EXPECT_EQ(Does([this] { Desk().ChkTaskBar.Toggle(); }), Names{"taskbar hidden"});
}

TEST_F(SystemSettingsTest, TheBoxesOfTheControlWindowAndThePasswordOnlyWrite) {
  EXPECT_EQ(Does([this] { Desk().chkStartUp.Toggle(); }), Names{});
  EXPECT_EQ(Does([this] { Desk().chkPass.Toggle(); }), Names{});
}

TEST_F(SystemSettingsTest, TickingTheCursorTwiceInARowAsksOnceForEachAndTheCursorReturns) {
  Set("Settings", "ShowMouse", "1");
  EXPECT_EQ(Does([this] {
              Desk().chkMouse.Toggle();
              Desk().chkMouse.Toggle();
            }),
            (Names{"cursor down", "cursor up"}));
  EXPECT_EQ(sim.desktop.cursorCount, 0);
}

TEST_F(SystemSettingsTest, ACursorThatWasHiddenAtTheStartComesBackWithItsBox) {
  ControlWindow();
  ASSERT_EQ(sim.desktop.cursorCount, -1);
  Desk().chkMouse.Toggle();
  EXPECT_EQ(sim.desktop.cursorCount, 0);
}

TEST_F(SystemSettingsTest, WhatIsAskedForIsTheNumberInNeedPassAndNotThePassword) {
  Set("Settings", "Password", "secret");
  Set("Settings", "NeedPass", "1");
  Desk().txtPass.Type("new");
  EXPECT_EQ(SavePassword("secret"), (Names{kQuestion, kWrong, kQuestion}));
  EXPECT_EQ(OnDisk("Password"), "secret");
  EXPECT_EQ(SavePassword("1"), (Names{kQuestion, kChanged}));
  EXPECT_EQ(OnDisk("Password"), "new");
}

TEST_F(SystemSettingsTest, AStoredPasswordThatIsThatDigitIsTaken) {
  Set("Settings", "Password", "1");
  Set("Settings", "NeedPass", "1");
  Desk().txtPass.Type("new");
  EXPECT_EQ(SavePassword("1"), (Names{kQuestion, kChanged}));
}

TEST_F(SystemSettingsTest, WithNeedPassAtZeroOrAbsentTheAnswerZeroPasses) {
  for (const char* stored : {"0", ""}) {
    Set("Settings", "NeedPass", stored);
    station.forms.Unload<frmSettings>();
    Desk().txtPass.Type(std::string("after ") + stored);
    EXPECT_EQ(SavePassword("0"), (Names{kQuestion, kChanged}));
    EXPECT_EQ(OnDisk("Password"), std::string("after ") + stored);
  }
}

TEST_F(SystemSettingsTest, WhateverNumberStandsInNeedPassIsAskedFor) {
  Set("Settings", "NeedPass", "42.50 or so");
  EXPECT_EQ(Desk().CurrentPassword, "42.5");
  EXPECT_EQ(SavePassword("42.5"), (Names{kQuestion, kChanged}));
}

TEST_F(SystemSettingsTest, AnEmptyAnswerIsComparedLikeAnyOtherAndIsWrong) {
  EXPECT_EQ(SavePassword(""), (Names{kQuestion, kWrong, kQuestion}));
  EXPECT_EQ(OnDisk("Password"), "(none)");
}

TEST_F(SystemSettingsTest, TheAnswerToTheSecondQuestionIsThrownAway) {
  sim.dialogs.inputs = {"wrong", "0"};
  Desk().txtPass.Type("new");
  Desk().btnPassSave.Press();
  EXPECT_EQ(OnDisk("Password"), "(none)");
}

TEST_F(SystemSettingsTest, AnAnswerWithABlankOrAnotherSpellingOfTheNumberIsWrong) {
  for (const char* answer : {" 0", "0 ", "00", "0.0", "-0"}) {
    EXPECT_EQ(SavePassword(answer), (Names{kQuestion, kWrong, kQuestion})) << answer;
  }
}

TEST_F(SystemSettingsTest, TickingTheBoxChangesWhatIsAskedForOnlyWithTheNextLoadOfTheForm) {
  Desk().chkPass.Toggle();
  EXPECT_EQ(Desk().CurrentPassword, "0");
  station.forms.Unload<frmSettings>();
  EXPECT_EQ(Desk().CurrentPassword, "1");
}

TEST_F(SystemSettingsTest, AfterAChangeWithAnEmptyFieldThePasswordIsEmpty) {
  Set("Settings", "Password", "secret");
  Desk().txtPass.Type("");
  SavePassword("0");
  EXPECT_EQ(OnDisk("Password"), "");
}

TEST_F(SystemSettingsTest, PasswordsOfAnyLengthAndAlphabetComeBackAsTheyWere) {
  const std::string blanks = "  blanks at both ends  ";
  for (const std::string& password :
       {std::string("a"), blanks, std::string(100'000, 'x'), std::string("[Settings] = ; \"quoted\" 100% \\n"),
        std::string("Größe"), std::string("বাংলা"), std::string("كلمة"), std::string("暗号\U0001F511")}) {
    Desk().txtPass.Type(password);
    SavePassword("0");
    EXPECT_EQ(Desk().txtPass.Text.Get(), password);
    station.forms.Unload<frmSettings>();
    EXPECT_EQ(Desk().txtPass.Text.Get(), password);
    EXPECT_EQ(Desk().CurrentPassword, "0");
  }
}

TEST_F(SystemSettingsTest, APasswordWithLineEndsStaysOneLine) {
  Desk().txtPass.Type("one\r\n[Settings]\nNeedPass=7");
  SavePassword("0");
  EXPECT_EQ(Desk().txtPass.Text.Get(), "one  [Settings] NeedPass=7");
  EXPECT_EQ(OnDisk("NeedPass"), "(none)");
}

TEST_F(SystemSettingsTest, TheExtensionsAreWrittenToldAndLoadedAnew) {
  Desk().txtPass.Type("not saved");
  Desk().txtExt.Type("*.mp4;*.MKV");
  EXPECT_EQ(Does([this] { Desk().btnSaveExt.Press(); }), Names{"box \"Settings has been saved\" \"Settings\""});
  EXPECT_EQ(OnDisk("Ext"), "*.mp4;*.MKV");
  EXPECT_EQ(Desk().txtPass.Text.Get(), "") << "what was typed beside it is shown as it is stored";
}

TEST_F(SystemSettingsTest, TheExtensionsAreStoredWithTheirBlanks) {
  Desk().txtExt.Type(" *.mp4 ");
  Desk().btnSaveExt.Press();
  EXPECT_EQ(OnDisk("Ext"), " *.mp4 ");
}

TEST_F(SystemSettingsTest, ANewPasswordIsLoadedBeforeItIsToldAndTheExtensionsAfterIt) {
  Desk();
  Set("Settings", "NeedPass", "1");
  std::string current;
  sim.dialogs.whileStanding = [this, &current] { current = Desk().CurrentPassword; };
  Desk().btnSaveExt.Press();
  EXPECT_EQ(current, "0");
  EXPECT_EQ(Desk().CurrentPassword, "1");
  Set("Settings", "NeedPass", "2");
  SavePassword("1");
  EXPECT_EQ(current, "2");
}

TEST_F(SystemSettingsTest, WithAFullDiskTheTextsShowWhatIsStored) {
  Set("Settings", "Ext", "*.avi");
  Desk().txtExt.Type("*.mp4");
  sim.files.SetDiskFull(true);
  Desk().btnSaveExt.Press();
  EXPECT_EQ(Desk().txtExt.Text.Get(), "*.avi");
}

TEST_F(SystemSettingsTest, TheTwoPanelsAreTheDesktopsAndOneThatIsMissingSaysNothing) {
  EXPECT_EQ(Does([this] { Desk().btnAudio.Press(); }), Names{"volume panel"});
  EXPECT_EQ(Does([this] { Desk().ThemedButton1.Press(); }), Names{"date panel"});
  sim.desktop.hasPanels = false;
  EXPECT_EQ(Does([this] { Desk().btnAudio.Press(); }), Names{});
  EXPECT_EQ(Does([this] { Desk().ThemedButton1.Press(); }), Names{});
}

// The password setting does not guard the exit. Meant so.
TEST_F(SystemSettingsTest, TheExitAsksForNoPassword) {
  Set("Settings", "NeedPass", "1");
  Set("Settings", "Password", "secret");
  ControlWindow();
  sim.trace.Take();
  sim.dialogs.answers = {Answer::kYes};
  ControlWindow().mnuExit.Choose();
  for (const std::string& line : sim.trace.Take()) EXPECT_FALSE(line.starts_with("input")) << line;
  EXPECT_TRUE(sim.desktop.ended);
}

}  // namespace

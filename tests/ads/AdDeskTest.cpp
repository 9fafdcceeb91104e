#include "tests/ads/CrawlerTest.h"

using namespace std::chrono_literals;

namespace {

// The operator at the desk, with four files to make ads of.
class AdDeskTest : public CrawlerTest {
 protected:
  AdDeskTest() {
    for (const char* file : {"/art/Top.JPG", "/art/text.jpg", "/art/l.jpg", "/art/r.swf"}) Picture(file, {300, 90});
  }

  void Choose(CommandButton& button, const std::string& file) {
    sim.dialogs.files.push_back(file);
    button.Press();
  }
  void ChooseHeaderAndScorl() {
    Choose(Desk().btnHeader, "/art/Top.JPG");
    Choose(Desk().btnLoadScorl, "/art/text.jpg");
  }
  void Save(const std::string& name) {
    ChooseHeaderAndScorl();
    Desk().txtAdName.Type(name);
    Desk().LoadAd.Press();
  }
  // What has stood before the operator since the last call, and what was copied.
  Names Asked() {
    Names lines;
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with("box") || line.starts_with("open") || line.starts_with("copy")) lines.push_back(line);
    }
    return lines;
  }
  std::string Status(int row) { return Desk().ListAd.Row(row).SubItem(5); }
  Names Shown() {
    Names names;
    for (const ListRow& row : Desk().ListAd.Rows()) names.push_back(row.text);
    return names;
  }
};

TEST_F(AdDeskTest, ClosingOnlyHidesIt) {
  Desk().Show();
  Desk().Close();
  EXPECT_TRUE(station.forms.Loaded<frmAdSett>());
  EXPECT_FALSE(Desk().Visible);
}

TEST_F(AdDeskTest, TheDialogsHaveTheirTitlesAndTheRightSideHasTheLeftOnesOnPurpose) {
  Desk();
  sim.trace.Take();
  for (CommandButton* button : {&Desk().btnHeader, &Desk().btnLoadScorl, &Desk().btnLoadLeft, &Desk().btnLoadRight}) {
    button->Press();
  }
  EXPECT_EQ(Asked(), (Names{"open \"Load Ad's header file\" \"JPG or Flash file|*.jpg;*.swf;\"",
                            "open \"Load Ad's scorl file\" \"JPG file only|*.jpg;\"",
                            "open \"Load Ad's left content\" \"JPG or Flash file|*.jpg;*.swf;\"",
                            "open \"Load Ad's left content\" \"JPG or Flash file|*.jpg;*.swf;\""}));
}

TEST_F(AdDeskTest, AChosenFileGoesToItsPreviewAndIntoTheRecord) {
  ChooseHeaderAndScorl();
  Choose(Desk().btnLoadLeft, "/art/l.jpg");
  Choose(Desk().btnLoadRight, "/art/r.swf");
  EXPECT_EQ(Desk().FlashHeader.Movie.Get(), "/art/Top.JPG");
  EXPECT_EQ(Desk().picScorl.Picture.Get().path, "/art/text.jpg");
  EXPECT_EQ(Desk().FlashLeft.Movie.Get(), "/art/l.jpg");
  EXPECT_EQ(Desk().FlashRight.Movie.Get(), "/art/r.swf");
  EXPECT_EQ(ad.Header + ad.Scorl + ad.Left + ad.Right, "/art/Top.JPG/art/text.jpg/art/l.jpg/art/r.swf");
}

TEST_F(AdDeskTest, ACancelledDialogChangesNothing) {
  ChooseHeaderAndScorl();
  Desk().btnHeader.Press();
  Desk().btnLoadScorl.Press();
  EXPECT_EQ(ad.Header, "/art/Top.JPG");
  EXPECT_EQ(ad.Scorl, "/art/text.jpg");
  EXPECT_EQ(Desk().FlashHeader.Movie.Get(), "/art/Top.JPG");
}

TEST_F(AdDeskTest, AChoiceForANewAdDoesNotTouchTheAdOnTheAir) {
  Ad("shoes");
  Desk();
  ChooseHeaderAndScorl();
  EXPECT_EQ(OnBand(), "shoes");
  EXPECT_EQ(Output().Flash.Movie.Get(), In("shoes", "header.jpg"));
}

TEST_F(AdDeskTest, TheNextAdOfTheRotationReplacesTheChoice) {
  Ads({"shoes", "zoo"});
  Desk();
  ChooseHeaderAndScorl();
  Desk().NextAd();
  EXPECT_EQ(ad.Header, In("zoo", "header.jpg"));
}

TEST_F(AdDeskTest, WithoutAHeaderTheHeaderIsAskedForAndNothingIsMade) {
  Desk().txtAdName.Type("new");
  sim.trace.Take();
  Desk().LoadAd.Press();
  EXPECT_EQ(Asked(), (Names{"box \"Please select a Ad's header\" \"Corvanta 6.0\"",
                            "open \"Load Ad's header file\" \"JPG or Flash file|*.jpg;*.swf;\""}));
  EXPECT_TRUE(Shown().empty());
}

TEST_F(AdDeskTest, WithAHeaderButNoScrollPictureThatIsAskedForAndNothingIsMade) {
  Choose(Desk().btnHeader, "/art/Top.JPG");
  Desk().txtAdName.Type("new");
  sim.trace.Take();
  Desk().LoadAd.Press();
  EXPECT_EQ(Asked(), (Names{"box \"Please select a Ad's scorl\" \"Corvanta 6.0\"",
                            "open \"Load Ad's scorl file\" \"JPG file only|*.jpg;\""}));
  EXPECT_EQ(sim.files.Kind("/station/Ads/new"), FileKind::kAbsent);
}

TEST_F(AdDeskTest, WithoutANameTheNameIsAskedForAndGetsTheKeyboard) {
  ChooseHeaderAndScorl();
  sim.trace.Take();
  Desk().LoadAd.Press();
  EXPECT_EQ(Asked(), (Names{"box \"Please enter a Ad's name\" \"Corvanta 6.0\""}));
  EXPECT_EQ(sim.windows.focus, "frmAdSett.txtAdName");
}

TEST_F(AdDeskTest, AnAdWhoseNameExistsIsLeftUntouched) {
  Ad("shoes");
  const auto before = sim.files.Read(In("shoes", "adinfo.ini"));
  Desk();
  sim.trace.Take();
  Save("shoes");
  EXPECT_EQ(Asked().back(), "box \"The Ad's name Already exists. Please enter a different name\" \"Corvanta 6.0\"");
  EXPECT_EQ(sim.windows.focus, "frmAdSett.txtAdName");
  EXPECT_EQ(sim.files.Read(In("shoes", "adinfo.ini")), before);
}

TEST_F(AdDeskTest, ANewAdHasItsTextsItsFilesAndItsPlaceInTheList) {
  Desk().txtCompany.Type("Shoes & Co");
  Desk().txtAddress.Type("High Street 1");
  Desk().dpEndDate.Value = {.year = 2020, .month = 3, .day = 9};
  Choose(Desk().btnLoadLeft, "/art/l.jpg");
  Save("new");
  EXPECT_EQ(sim.files.Read(In("new", "adinfo.ini")),
            "[Info]\r\nCompanyName=Shoes & Co\r\nAddress=High Street 1\r\nStartDate=11/15/2026\r\nEndDate=3/9/2020\r\n"
            "Active=1\r\nHeader=header.JPG\r\nLeft=left.jpg\r\nRight=right.\r\n\r\n[Settings]\r\nSpeed=30\r\n"
            "HeaderHeight=600\r\nSideWidth=1500\r\nAdTop=0\r\n");
  for (const char* file : {"header.JPG", "scorl.jpg", "left.jpg"}) {
    EXPECT_EQ(sim.files.Kind(In("new", file)), FileKind::kRegular) << file;
  }
  EXPECT_EQ(Desk().ListAd.Row(1).subItems, (Names{"Shoes & Co", "High Street 1", "11/15/2026", "3/9/2020", "Active"}));
}

TEST_F(AdDeskTest, WithoutSideFilesTheKeysAreLeftAndRightWithABareDotAndBothPanelsAreHidden) {
  Save("new");
  EXPECT_EQ(Key("new", "Info", "Left"), "left.");
  EXPECT_EQ(Key("new", "Info", "Right"), "right.");
  Desk().ListAd.ClickRow(1);
  EXPECT_EQ(ad.Left + ad.Right, "");
  EXPECT_FALSE(Output().FlashLeft.Visible);
  EXPECT_FALSE(Output().FlashRight.Visible);
}

TEST_F(AdDeskTest, ANewAdTakesThePositionsOfTheSlidersAndAlwaysTheSpeedThirty) {
  Desk().SldSpeed.Move(111);
  Desk().sldHeight.Move(700);
  Desk().sldSide.LetGo(800);
  Desk().SldAdTop.LetGo(900);
  Save("new");
  EXPECT_EQ(Key("new", "Settings", "Speed"), "30");
  EXPECT_EQ(Key("new", "Settings", "HeaderHeight"), "700");
  EXPECT_EQ(Key("new", "Settings", "SideWidth"), "800");
  EXPECT_EQ(Key("new", "Settings", "AdTop"), "900");
}

TEST_F(AdDeskTest, ANewAdWithTheBoxUntickedIsInactive) {
  Desk().chkAdActive.Toggle();
  Save("new");
  EXPECT_EQ(Status(1), "Inactive");
}

TEST_F(AdDeskTest, APastEndDateHasNoEffectOnStatusOrRotation) {
  Desk().dpEndDate.Value = {.year = 2020, .month = 1, .day = 1};
  Save("old");
  EXPECT_EQ(Status(1), "Active");
  Desk().NextAd();
  EXPECT_EQ(ad.Scorl, In("old", "scorl.jpg"));
}

TEST_F(AdDeskTest, TheDatesOfASelectedAdAreNotLoadedBack) {
  Ad("shoes");
  Desk().dpStartDate.Value = {.year = 2001, .month = 2, .day = 3};
  Desk().ListAd.ClickRow(1);
  EXPECT_EQ(Desk().dpStartDate.Value.Get().year, 2001);
}

TEST_F(AdDeskTest, AFileThatCannotBeCopiedIsLeftOutAndTheKeysStay) {
  ChooseHeaderAndScorl();
  sim.files.Remove("/art/text.jpg");
  Desk().txtAdName.Type("new");
  Desk().LoadAd.Press();
  EXPECT_EQ(sim.files.Kind(In("new", "header.JPG")), FileKind::kRegular);
  EXPECT_EQ(sim.files.Kind(In("new", "scorl.jpg")), FileKind::kAbsent);
  EXPECT_EQ(Key("new", "Info", "Header"), "header.JPG");
  EXPECT_EQ(Shown(), Names{"new"});
}

TEST_F(AdDeskTest, ACancelledCopyEndsThePressAndTakesTheNewFolderAway) {
  ChooseHeaderAndScorl();
  sim.dialogs.copyTakes = 10s;
  sim.dialogs.cancelsCopyAfter = 1s;
  Desk().txtAdName.Type("new");
  sim.trace.Take();
  Desk().LoadAd.Press();
  EXPECT_EQ(Asked(), (Names{"copy /art/Top.JPG to " + In("new", "header.JPG"), "copy box"}));
  EXPECT_EQ(sim.files.Kind("/station/Ads/new"), FileKind::kAbsent);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(AdDeskTest, AnAdThatComesOnTheAirDuringTheCopyDoesNotGetIntoTheNewOne) {
  Ads({"shoes", "zoo"});
  Desk();
  SettleOutput();
  ChooseHeaderAndScorl();
  Choose(Desk().btnLoadLeft, "/art/l.jpg");
  sim.dialogs.copyTakes = 20s;
  Desk().txtAdName.Type("new");
  sim.trace.Take();
  Desk().LoadAd.Press();
  const Names asked = Asked();
  EXPECT_EQ(std::ranges::count(asked, "copy /art/text.jpg to " + In("new", "scorl.jpg")), 1);
  EXPECT_EQ(std::ranges::count(asked, "copy /art/l.jpg to " + In("new", "left.jpg")), 1);
  EXPECT_NE(ad.Header, "/art/Top.JPG");  // the rotation has gone on
  EXPECT_EQ(Key("new", "Info", "Header"), "header.JPG");
}

TEST_F(AdDeskTest, ANameThatHoldsASeparatorMakesNothingAnywhere) {
  for (const char* name : {"a/b", "a\\b", "../up", "..\\up"}) {
    sim.trace.Take();
    Save(name);
    EXPECT_EQ(Asked().size(), 2u) << name;  // the two choices: no copy
  }
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(sim.files.Kind("/station/up"), FileKind::kAbsent);
}

TEST_F(AdDeskTest, ANameOfDotsAloneIsToldToExist) {
  sim.trace.Take();
  Save("..");
  EXPECT_EQ(Asked().back(), "box \"The Ad's name Already exists. Please enter a different name\" \"Corvanta 6.0\"");
  EXPECT_EQ(sim.files.Kind("/station/adinfo.ini"), FileKind::kAbsent);
  EXPECT_EQ(sim.files.Kind("/station/scorl.jpg"), FileKind::kAbsent);
}

TEST_F(AdDeskTest, NamesOfTwoHundredAndFiftyFiveSignsAndWithLeadingBlanksAreAds) {
  const std::string longest(255, 'n');
  Save(longest);
  Save("  blanks");
  EXPECT_EQ(Shown(), (Names{"  blanks", longest}));
  Desk().ListAd.ClickRow(1);
  EXPECT_EQ(ad.Scorl, In("  blanks", "scorl.jpg"));
}

TEST_F(AdDeskTest, OnAFullDiskThereIsNoNewAdAndNoMessage) {
  Desk();
  sim.files.SetDiskFull(true);
  sim.trace.Take();
  Save("new");
  EXPECT_EQ(std::ranges::count_if(Asked(), [](const auto& line) { return line.starts_with("box"); }), 0);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(AdDeskTest, UntickingTheBoxMakesTheSelectedAdInactiveAtOnceWhileTheBandKeepsShowingIt) {
  Ads({"shoes", "zoo"});
  Desk().ListAd.ClickRow(2);
  Desk().chkAdActive.Toggle();
  EXPECT_EQ(Status(2), "Inactive");
  EXPECT_EQ(Key("zoo", "Info", "Active"), "0");
  EXPECT_EQ(Status(1), "Active");
  EXPECT_EQ(OnBand(), "zoo");
  EXPECT_EQ(Desk().ListAd.Selected().text, "zoo");
  Desk().chkAdActive.Toggle();
  EXPECT_EQ(Status(2), "Active");
}

TEST_F(AdDeskTest, WithNoAdSelectedTheBoxIsOnlyTheStateOfTheNewAd) {
  Ads({"shoes", "zoo"});
  Desk().ListAd.SelectRows({}, 0);
  Desk().chkAdActive.Toggle();
  EXPECT_EQ(Status(1) + Status(2), "ActiveActive");
}

TEST_F(AdDeskTest, ADeleteAsksAndTakesTheAdWithAllItsFiles) {
  Ads({"shoes", "zoo"});
  Desk().ListAd.ClickRow(2);
  sim.trace.Take();
  sim.dialogs.answers = {Answer::kYes};
  Desk().cmdRemove.Press();
  EXPECT_EQ(Asked(), Names{"box \"Are You Sure you wnat to Delete this AD?\" \"DELETE AD\""});
  EXPECT_EQ(Shown(), Names{"shoes"});
  EXPECT_EQ(sim.files.Kind("/station/Ads/zoo"), FileKind::kAbsent);
  EXPECT_EQ(OnBand(), "zoo");  // its files stay loaded until the next change
}

TEST_F(AdDeskTest, ADeleteAnsweredNoDeletesNothing) {
  Ads({"shoes"});
  Desk().ListAd.ClickRow(1);
  sim.dialogs.answers = {Answer::kNo};
  Desk().cmdRemove.Press();
  EXPECT_EQ(Shown(), Names{"shoes"});
}

TEST_F(AdDeskTest, ADeleteWithNoRowSelectedDeletesNothingAndNeverTheStore) {
  Ads({"shoes", "zoo"});
  Desk().ListAd.SelectRows({}, 0);
  sim.dialogs.answers = {Answer::kYes};
  Desk().cmdRemove.Press();
  EXPECT_EQ(Shown(), (Names{"shoes", "zoo"}));
}

TEST_F(AdDeskTest, ADeleteTakesWhatWasSelectedWhenItsQuestionOpened) {
  Ads({"apple", "shoes", "zoo"});
  Desk().ListAd.ClickRow(1);
  sim.dialogs.answers = {Answer::kYes};
  sim.dialogs.whileStanding = [this] { Desk().NextAd(); };
  Desk().cmdRemove.Press();
  EXPECT_EQ(Shown(), (Names{"shoes", "zoo"}));
}

TEST_F(AdDeskTest, ThePreviewButtonAsksForWhatIsMissing) {
  Desk();
  sim.trace.Take();
  Desk().btnView.Press();
  EXPECT_EQ(Asked().front(), "box \"Please select a Ad's header\" \"Corvanta 6.0\"");
  Choose(Desk().btnHeader, "/art/Top.JPG");
  sim.trace.Take();
  Desk().btnView.Press();
  EXPECT_EQ(Asked().front(), "box \"Please select a Ad's scorl\" \"Corvanta 6.0\"");
  EXPECT_FALSE(station.forms.Loaded<frmAdView>() && Preview().Visible);
}

TEST_F(AdDeskTest, ThePreviewButtonShowsANewAdBeforeItIsSaved) {
  Ad("shoes");
  Desk();
  ChooseHeaderAndScorl();
  Desk().btnView.Press();
  EXPECT_TRUE(Preview().Visible);
  EXPECT_EQ(Preview().pic.Picture.Get().path, "/art/text.jpg");
  EXPECT_EQ(OnBand(), "shoes");
}

TEST_F(AdDeskTest, TheTwoBoxesAreKeptAndComeBack) {
  Desk().chkView.Toggle();
  Desk().chkShowAd.Toggle();
  EXPECT_EQ(Setting("AdSettings", "AutoView"), "1");
  EXPECT_EQ(Setting("AdSettings", "ShowAd"), "1");
  Desk().chkView.Toggle();
  Desk().LoadSett();
  EXPECT_FALSE(Desk().chkView.Ticked());
  EXPECT_TRUE(Desk().chkShowAd.Ticked());
}

TEST_F(AdDeskTest, TheBoxesReadTheirKeysLenientlyAndKeepWhatIsNoState) {
  Set("AdSettings", "AutoView", "1 or so");
  Set("AdSettings", "ShowAd", "7");
  EXPECT_TRUE(Desk().chkView.Ticked());
  EXPECT_FALSE(Desk().chkShowAd.Ticked());
}

}  // namespace

#include "tests/ads/VideoAdTest.h"

using namespace std::chrono_literals;

namespace {

// The operator at the desk, with a video to make ads of.
class VideoAdDeskTest : public VideoAdTest {
 protected:
  VideoAdDeskTest() {
    Set("Settings", "Ext", "*.mp4;*.mkv");
    sim.files.Put("/art/Summer sale.final.mp4", "media");
  }

  void Choose(const std::string& file = "/art/Summer sale.final.mp4") {
    sim.dialogs.files.push_back(file);
    Desk().vkCommand1.Press();
  }
  void Save(const std::string& name) {
    Choose();
    Desk().txtAdName.Type(name);
    Desk().vkCommand2.Press();
  }
  void Delete(Answer answer) {
    sim.dialogs.answers = {answer};
    Desk().btnDelete.Press();
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

TEST_F(VideoAdDeskTest, ClosingOnlyHidesIt) {
  Desk().Show();
  Desk().Close();
  EXPECT_TRUE(station.forms.Loaded<frmVideoAdSett>());
  EXPECT_FALSE(Desk().Visible);
}

TEST_F(VideoAdDeskTest, TheMenuOpensIt) {
  ControlWindow().mnuVideoAdSettings.Choose();
  EXPECT_TRUE(Desk().Visible);
}

TEST_F(VideoAdDeskTest, TheDialogHasTheCrawlersTitleOnPurposeAndTheStationsPatterns) {
  Desk();
  sim.trace.Take();
  Desk().vkCommand1.Press();
  EXPECT_EQ(Asked(), Names{"open \"Load Ad's header file\" \"Video Ad file|*.mp4;*.mkv\""});
}

TEST_F(VideoAdDeskTest, AChosenVideoFillsTheFieldsAndPlaysInThePreview) {
  Choose();
  EXPECT_EQ(Desk().AdFile, "/art/Summer sale.final.mp4");
  EXPECT_EQ(Desk().txtAdName.Text.Get(), "Summer sale.final");
  EXPECT_EQ(Desk().txtFileName.Text.Get(), "Summer sale.final.mp4");
  Advance(1s);
  EXPECT_EQ(Desk().AdView.playState(), 3);
}

TEST_F(VideoAdDeskTest, ThePreviewIsSilent) {
  Choose();
  EXPECT_TRUE(sim.media.Find("frmVideoAdSett.AdView")->Mute());
}

TEST_F(VideoAdDeskTest, ACancelledDialogChangesNothing) {
  Choose();
  Desk().txtAdName.Type("mine");
  Desk().vkCommand1.Press();
  EXPECT_EQ(Desk().txtAdName.Text.Get(), "mine");
  EXPECT_EQ(Desk().AdFile, "/art/Summer sale.final.mp4");
}

TEST_F(VideoAdDeskTest, AClickOnAnAdPlaysItInThePreview) {
  Ads({"a", "b"});
  Desk().ListAd.ClickRow(2);
  EXPECT_EQ(Desk().AdView.URL.Get(), In("b", "b.mp4"));
  Advance(1s);
  EXPECT_EQ(Desk().AdView.playState(), 3);
}

TEST_F(VideoAdDeskTest, WithoutANameTheNameIsAskedForAndGetsTheKeyboard) {
  Desk();
  sim.trace.Take();
  Desk().vkCommand2.Press();
  EXPECT_EQ(Asked(), Names{"box \"Please enter a Ad name\" \"Video Ad\""});
  EXPECT_EQ(sim.windows.focus, "frmVideoAdSett.txtAdName");
}

TEST_F(VideoAdDeskTest, WithoutAVideoTheVideoIsAskedForAndNothingIsMade) {
  Desk().txtAdName.Type("new");
  sim.trace.Take();
  Desk().vkCommand2.Press();
  EXPECT_EQ(Asked(), (Names{"box \"Please select a video ad file\" \"Video Ad\"",
                            "open \"Load Ad's header file\" \"Video Ad file|*.mp4;*.mkv\""}));
  EXPECT_EQ(sim.files.Kind("/station/VideoAd/new"), FileKind::kAbsent);
}

TEST_F(VideoAdDeskTest, AnAdWhoseNameExistsIsLeftUntouched) {
  Ad("shoes");
  Desk();
  sim.trace.Take();
  Save("Shoes");
  EXPECT_EQ(Asked().back(), "box \"The Ad's name Already exists. Please enter a different name\" \"Video Ad\"");
  EXPECT_EQ(sim.windows.focus, "frmVideoAdSett.txtAdName");
  EXPECT_EQ(sim.files.List("/station/VideoAd/shoes", FileKind::kRegular), (Names{"adinfo.ini", "shoes.mp4"}));
}

TEST_F(VideoAdDeskTest, ANewAdHasItsVideoItsTextsAndItsPlaceInTheList) {
  Ad("z");
  Desk().txtCompany.Type("Shoes & Co");
  Desk().txtAddress.Type("High Street 1");
  sim.trace.Take();
  Save("new");
  EXPECT_EQ(Asked(), (Names{"open \"Load Ad's header file\" \"Video Ad file|*.mp4;*.mkv\"",
                            "copy /art/Summer sale.final.mp4 to " + In("new", "Summer sale.final.mp4"),
                            "box \"Video Ad hasbeen loaded successfully\" \"Video Ad\""}));
  EXPECT_EQ(sim.files.Read(In("new", "adinfo.ini")),
            "[AdInfo]\r\nFileName=Summer sale.final.mp4\r\nCompany=Shoes & Co\r\nAddress=High Street 1\r\n");
  EXPECT_EQ(sim.files.Read(In("new", "Summer sale.final.mp4")), "media");
  EXPECT_EQ(Shown(), (Names{"new", "z"}));
  EXPECT_EQ(Desk().ListAd.Row(1).subItems, (Names{"Shoes & Co", "High Street 1"}));
  EXPECT_EQ(Desk().CmbAdplay.ListCount(), 2);
}

TEST_F(VideoAdDeskTest, AVideoThatCannotBeCopiedLeavesNoFileAndThePressGoesOn) {
  Choose();
  sim.files.Remove("/art/Summer sale.final.mp4");
  Desk().txtAdName.Type("new");
  sim.trace.Take();
  Desk().vkCommand2.Press();
  EXPECT_EQ(Asked().back(), "box \"Video Ad hasbeen loaded successfully\" \"Video Ad\"");
  EXPECT_EQ(sim.files.List("/station/VideoAd/new", FileKind::kRegular), Names{"adinfo.ini"});
  EXPECT_EQ(Key("new", "FileName"), "Summer sale.final.mp4");
  EXPECT_EQ(Shown(), Names{"new"});
}

TEST_F(VideoAdDeskTest, ACancelledCopyEndsThePressAndTakesTheNewFolderAway) {
  Choose();
  sim.dialogs.copyTakes = 10s;
  sim.dialogs.cancelsCopyAfter = 1s;
  Desk().txtAdName.Type("new");
  sim.trace.Take();
  Desk().vkCommand2.Press();
  EXPECT_EQ(Asked(), (Names{"copy /art/Summer sale.final.mp4 to " + In("new", "Summer sale.final.mp4"), "copy box"}));
  EXPECT_EQ(sim.files.Kind("/station/VideoAd/new"), FileKind::kAbsent);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(VideoAdDeskTest, ABreakComesAndGoesWhileAVideoIsCopied) {
  Ad("z");
  StartWithBreaks("1", "1");
  Programme();
  Choose();
  sim.dialogs.copyTakes = 90s;
  bool paused = false;
  sim.dialogs.whileStanding = [&] {
    sim.dialogs.whileStanding = nullptr;
    Advance(61s);
    paused = MainPlayer().State() == PlayState::kPaused;
  };
  Desk().txtAdName.Type("new");
  Desk().vkCommand2.Press();
  EXPECT_TRUE(paused);
  EXPECT_FALSE(InBreak());
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
  EXPECT_EQ(Shown(), (Names{"new", "z"}));
}

TEST_F(VideoAdDeskTest, ANameThatHoldsASeparatorMakesNothingAnywhere) {
  for (const char* name : {"a/b", "a\\b", "../up", "..\\up"}) {
    sim.trace.Take();
    Save(name);
    for (const std::string& line : Asked()) EXPECT_FALSE(line.starts_with("copy")) << line;
  }
  EXPECT_TRUE(Shown().empty());
  for (const char* path : {"/station/up", "/station/VideoAd/a"}) EXPECT_EQ(sim.files.Kind(path), FileKind::kAbsent);
}

TEST_F(VideoAdDeskTest, ANameOfDotsAloneIsToldToExist) {
  sim.trace.Take();
  Save("..");
  EXPECT_EQ(Asked().back(), "box \"The Ad's name Already exists. Please enter a different name\" \"Video Ad\"");
  EXPECT_EQ(sim.files.Kind("/station/adinfo.ini"), FileKind::kAbsent);
}

TEST_F(VideoAdDeskTest, AFileNameThatLeadsElsewhereIsCopiedNowhere) {
  Ad("shoes");
  Choose();
  Desk().txtAdName.Type("new");
  Desk().txtFileName.Type("../shoes/shoes.mp4");
  sim.trace.Take();
  Desk().vkCommand2.Press();
  EXPECT_EQ(Asked(), Names{"box \"Video Ad hasbeen loaded successfully\" \"Video Ad\""});
}

TEST_F(VideoAdDeskTest, NamesOfTwoHundredAndFiftyFiveSignsAndWithLeadingBlanksAreAds) {
  const std::string longest(255, 'n');
  Save(longest);
  Save("  blanks");
  EXPECT_EQ(Shown(), (Names{"  blanks", longest}));
}

TEST_F(VideoAdDeskTest, OnAFullDiskThereIsNoNewAdThoughTheBoxSaysSo) {
  Desk();
  sim.files.SetDiskFull(true);
  sim.trace.Take();
  Save("new");
  EXPECT_EQ(Asked().back(), "box \"Video Ad hasbeen loaded successfully\" \"Video Ad\"");
  EXPECT_TRUE(Shown().empty());
}

TEST_F(VideoAdDeskTest, ADeleteAsksAndTakesTheAdWithItsVideo) {
  Ads({"shoes", "zoo"});
  Desk().ListAd.ClickRow(2);
  sim.trace.Take();
  Delete(Answer::kYes);
  EXPECT_EQ(Asked(), Names{"box \"Are You Sure you wnat to Delete this Video Ad?\" \"DELETE\""});
  EXPECT_EQ(Shown(), Names{"shoes"});
  EXPECT_EQ(sim.files.Kind("/station/VideoAd/zoo"), FileKind::kAbsent);
  EXPECT_EQ(Desk().CmbAdplay.ListCount(), 1);
}

TEST_F(VideoAdDeskTest, ADeleteAnsweredNoDeletesNothingAndStopsNothing) {
  Ads({"shoes"});
  Desk().ListAd.ClickRow(1);
  Advance(1s);
  Delete(Answer::kNo);
  EXPECT_EQ(Shown(), Names{"shoes"});
  EXPECT_EQ(Desk().AdView.playState(), 3);
}

TEST_F(VideoAdDeskTest, ADeleteWithNoRowSelectedDeletesNothingAndNeverTheStore) {
  Ads({"shoes", "zoo"});
  Desk();
  Delete(Answer::kYes);
  EXPECT_EQ(Shown(), (Names{"shoes", "zoo"}));
}

TEST_F(VideoAdDeskTest, ADeleteTakesWhatWasSelectedWhenItsQuestionOpened) {
  Ads({"apple", "shoes", "zoo"});
  StartWithBreaks("1", "1");
  Desk().ListAd.ClickRow(3);
  sim.dialogs.whileStanding = [this] { Advance(60s); };
  Delete(Answer::kYes);
  EXPECT_EQ(Desk().ListAd.Selected().text, "apple");  // the break selects what it plays
  EXPECT_EQ(Shown(), (Names{"apple", "shoes"}));
}

TEST_F(VideoAdDeskTest, WhatACutLeftOfAnAdThatWasBeingMadeIsNoAd) {
  Ads({"shoes"});
  sim.files.Put(In("cut", "adinfo.ini"), "");
  sim.files.Put(In("with a video", "adinfo.ini"), "");
  sim.files.Put(In("with a video", "v.mp4"), "media");
  sim.files.CreateFolder("/station/VideoAd/bare");
  sim.files.Put(In("described", "adinfo.ini"), "[AdInfo]\r\nFileName=x.mp4\r\n");
  EXPECT_EQ(Shown(), (Names{"bare", "described", "shoes", "with a video"}));
  EXPECT_EQ(sim.files.Kind("/station/VideoAd/cut"), FileKind::kAbsent);
}

TEST_F(VideoAdDeskTest, AVideoWhoseDescriptionWasCutOffIsFoundAgain) {
  sim.files.Put(In("cut", "adinfo.ini"), "");
  sim.files.Put(In("cut", "v.mp4"), "media");
  sim.files.Put(In("two videos", "adinfo.ini"), "");
  sim.files.Put(In("two videos", "v.mp4"), "media");
  sim.files.Put(In("two videos", "w.mp4"), "media");
  EXPECT_EQ(Shown(), (Names{"cut", "two videos"}));
  EXPECT_EQ(sim.files.Read(In("cut", "adinfo.ini")), "[AdInfo]\r\nFileName=v.mp4\r\n");
  EXPECT_EQ(sim.files.Read(In("two videos", "adinfo.ini")), "");  // nobody knows which
}

}  // namespace

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "platform/qt/forms/Texts.h"
#include "shell/frmMid.h"
#include "tests/platform/forms/FormTest.h"

namespace {

using Lines = std::vector<std::string>;

// The entries of a menu, each with its name and its caption, those below it indented.
void Outline(const QWidget& menu, int depth, Lines& lines) {
  for (const QAction* action : menu.actions()) {
    const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
    if (action->isSeparator()) {
      lines.push_back(indent + Stored(action->objectName()) + " ----");
      continue;
    }
    const QString name = action->menu() != nullptr ? action->menu()->objectName() : action->objectName();
    lines.push_back(indent + Stored(name) + " \"" + Stored(action->text()) + "\"");
    if (action->menu() != nullptr) Outline(*action->menu(), depth + 1, lines);
  }
}

class MenuTreeTest : public FormTest {
 protected:
  QWidget& Window() { return WindowOf(Get<frmMid>()).Widget(); }
  template <class W>
  Lines OutlineOf(const char* name) {
    Lines lines;
    Outline(*Window().findChild<W*>(name), 0, lines);
    return lines;
  }
};

// The misspellings and the double blanks are the station's own.
TEST_F(MenuTreeTest, TheMenuBarHasItsEntriesInTheirOrderLetterForLetter) {
  EXPECT_EQ(OutlineOf<QMenuBar>("layMenuBar"), (Lines{
                                                   "mnuFile \"&File\"",
                                                   "  mnuTurnOffMonitor \"Turn off monitor\"",
                                                   "  mnuHideMe \"Hide me\"",
                                                   "  mnuExit \"Exit\"",
                                                   "mnuPlayer \"&Broadcast\"",
                                                   "  mnuPlayList \"Playlist manager\"",
                                                   "mnuAd \"&Advertisment\"",
                                                   "  mnuShowHideAd \"Show Ads\"",
                                                   "    mnuShowCrawlersAd \"Show crawlers Ad\"",
                                                   "    mnuShowVideoAd \"Show video Ad\"",
                                                   "    mnuShowFlashAd \"Show flash Ad\"",
                                                   "    mnuLeftsideAd \"Show left side Ad\"",
                                                   "  mnuAdSettings \"Ad Settings\"",
                                                   "    mnuScorlAsSettings \"Crawlers  Ad settings\"",
                                                   "    mnuVideoAdSettings \"Video Ad settings\"",
                                                   "    mnuFlashAd \"Flash Ad settings\"",
                                                   "    mnuLeftsideAdsettings \"Left side Ad settings\"",
                                                   "mnuLogo \"&Logo\"",
                                                   "  mnuShowLogo \"Show logo\"",
                                                   "  mnuFlashLogo \"Logo settings\"",
                                                   "MnuStiker \"Stiker\"",
                                                   "  mnuShowStiker \"Show stiker\"",
                                                   "  MnuStikerSettings \"Settings\"",
                                                   "mnuClock \"&Clock\"",
                                                   "  mnuShowClock \"Show clock\"",
                                                   "  mnuClockSettings \"Clock settings\"",
                                                   "mnuWebfeed \"&Web feed\"",
                                                   "  mnuShowWebFeed \"Show web feed\"",
                                                   "  mnuWebfeedSetttings \"Settings\"",
                                                   "mnuBreakingNews \"Breaking nws\"",
                                                   "  mnuBreakingNewsShow \"Show\"",
                                                   "  mnuBreakingNewsSettings \"Settings\"",
                                                   "nmuOnlineChannel \"&Online channels\"",
                                                   "  mnuTVChannel \"TV channels\"",
                                                   "  nmuRadioChannel \"Radio channel\"",
                                                   "mnuOutput \"&Display\"",
                                                   "  mnuOutputWindow \"Show output\"",
                                                   "  mnuMonitor2 \"Output  to secondary display (TV)\"",
                                                   "  mnuMasking \"Musking\"",
                                                   "mnuTools \"&Tools\"",
                                                   "  mnuFlashAnimationTools \"Flash animation tools\"",
                                                   "    mnuSWF_0 \"SWF Easy\"",
                                                   "    mnuSWF_1 \"Flash Intro Banner Maker\"",
                                                   "    mnuSWF_2 \"SWFText\"",
                                                   "  mnuVideoConverter \"Video converter\"",
                                                   "    mnuVideoConvert_0 \"Any DVD Converter\"",
                                                   "    mnuVideoConvert_1 \"Format Factory\"",
                                                   "  mnuRemute \"Remote comtrol\"",
                                                   "    mnuTeamviewer \"Teamviewer\"",
                                                   "  mnuSettings \"Settings\"",
                                                   "mnuHelp \"&Help\"",
                                                   "  mnuHelp2 \"Help\"",
                                                   "  mnuQuicksupport \"Quick support\"",
                                                   "  mnuAbout2 \"Ahout\"",
                                               }));
}

TEST_F(MenuTreeTest, TheTraysMenuIsNotOnTheBar) {
  EXPECT_EQ(OutlineOf<QMenu>("mnuTray"),
            (Lines{"mnuShow \"Show me\"", "mnuTrayAbout \"About\"", "mnuSpace ----", "mnuTrayExit \"Exit\""}));
}

TEST_F(MenuTreeTest, TheButtonsHaveTheirTextsAndTheBarItsNinePanels) {
  EXPECT_EQ(Get<frmMid>().ThemedButton5.Caption.Get(), "Start broadcast");
  EXPECT_EQ(Get<frmMid>().ThemedButton6.Caption.Get(), "Stop broadcast");
  EXPECT_EQ(Get<frmMid>().Panel.Count(), 9);
}

// An entry that is ticked only after its first use would tell nobody before that it is a switch.
TEST_F(MenuTreeTest, WhatIsSwitchedHasATickAndNothingElseHas) {
  Lines checkable;
  for (const QAction* action : Window().findChildren<QAction*>()) {
    if (action->isCheckable()) checkable.push_back(Stored(action->objectName()));
  }
  EXPECT_EQ(checkable, (Lines{"mnuShowCrawlersAd", "mnuShowVideoAd", "mnuShowFlashAd", "mnuLeftsideAd", "mnuShowLogo",
                              "mnuShowStiker", "mnuShowClock", "mnuShowWebFeed", "mnuBreakingNewsShow",
                              "mnuOutputWindow", "mnuMonitor2", "mnuMasking"}));
}

TEST_F(MenuTreeTest, AChosenEntryOfTheWindowIsTickedAndUntickedByTheStation) {
  auto& action = *Window().findChild<QAction*>("mnuOutputWindow");
  action.trigger();
  EXPECT_TRUE(action.isChecked());
  EXPECT_TRUE(Get<frmMid>().OutputShown);
  action.trigger();
  EXPECT_FALSE(action.isChecked());
}

}  // namespace

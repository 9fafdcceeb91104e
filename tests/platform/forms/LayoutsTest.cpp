#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>

#include "ads/frmAdSett.h"
#include "ads/frmFlashAdSett.h"
#include "ads/frmLeftSideAdSett.h"
#include "channels/frmOnlineRadio.h"
#include "channels/frmOnlineTV.h"
#include "overlay/frmClockSett.h"
#include "overlay/frmLogoSett.h"
#include "overlay/frmStikerSett.h"
#include "platform/qt/forms/FormLoader.h"
#include "platform/qt/forms/Texts.h"
#include "playlist/frmPlaylist.h"
#include "shell/frmSettings.h"
#include "tests/platform/forms/FormTest.h"
#include "webfeed/frmPageSettings.h"

namespace {

using Words = std::vector<std::string>;

class LayoutsTest : public FormTest {
 protected:
  // What a form's window says: its title, and the words of its frames, labels and buttons, a frame's before what stands
  // in it.
  template <class F>
  Words WordsOf() {
    const QWidget& window = WindowOf(Get<F>()).Widget();
    Words words{Stored(window.windowTitle())};
    const auto add = [&words](const QString& text) {
      if (!text.isEmpty()) words.push_back(Stored(text));
    };
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      if (const auto* frame = qobject_cast<const QGroupBox*>(widget)) add(frame->title());
      if (const auto* label = qobject_cast<const QLabel*>(widget)) add(label->text());
      if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) add(button->text());
    }
    return words;
  }
};

TEST_F(LayoutsTest, EveryLayoutAmongTheResourcesIsTested) {
  QStringList tested;
  for (const FormRow& row : AllForms()) tested.append(QString(row.name) + ".ui");
  tested.sort();
  EXPECT_EQ(QDir(":/forms").entryList(QDir::Files, QDir::Name), tested);
}

TEST_F(LayoutsTest, EveryControlHasItsWidgetOfTheRightClassAndNoWidgetIsAStranger) {
  for (Form* form : EachForm()) {
    for (const std::string& fault : WindowOf(*form).Joined().Faults()) {
      ADD_FAILURE() << form->Name() << ": " << fault;
    }
  }
}

TEST_F(LayoutsTest, CaptionsAreTheStationsTextsLetterForLetter) {
  frmPlaylist& form = Get<frmPlaylist>();
  const auto button = [](CommandButton& control) { return control.Caption.Get(); };
  EXPECT_EQ(button(form.btnUp), "Go up");
  EXPECT_EQ(button(form.btnDown), "Go down");
  EXPECT_EQ(button(form.btnMostUp), "Go top");
  EXPECT_EQ(button(form.btnMostDown), "Go bottom");
  EXPECT_EQ(button(form.cmdRemove), "&Remove");
  EXPECT_EQ(button(form.vkCommand3), "&Remove");
  EXPECT_EQ(button(form.vkCommand2), "Add schedule");
  EXPECT_EQ(button(form.btnBrows), "&Browse");
  EXPECT_EQ(button(form.ThemedButton1), "Set selected playlist to play");
  EXPECT_EQ(Shown<QCheckBox>(form.chkRendomPlay).text(), "Random play  ");
  EXPECT_EQ(Shown<QCheckBox>(form.ChkQuickPlay).text(), "Enable Quick player");
  EXPECT_EQ(form.cmbPlaylist.Text.Get(), "Select playlist");
}

TEST_F(LayoutsTest, TheDeskOfTheCrawlerAdsHasItsTextsLetterForLetter) {
  frmAdSett& form = Get<frmAdSett>();
  EXPECT_EQ(form.Caption.Get(), "Crawlers Ad settings");
  EXPECT_EQ(form.btnHeader.Caption.Get(), "Load &Header");
  EXPECT_EQ(form.btnLoadScorl.Caption.Get(), "Load &Scorl");
  EXPECT_EQ(form.btnLoadLeft.Caption.Get(), "Load left side Stiker");
  EXPECT_EQ(form.btnLoadRight.Caption.Get(), "Load right side Stiker");
  EXPECT_EQ(form.LoadAd.Caption.Get(), "&Save");
  EXPECT_EQ(form.cmdRemove.Caption.Get(), "&Remove");
  EXPECT_EQ(form.btnView.Caption.Get(), "Preview Ad");
  EXPECT_EQ(form.btnPlay.Caption.Get(), "Stop");
  EXPECT_EQ(Shown<QCheckBox>(form.chkAdActive).text(), "Active");
  EXPECT_EQ(Shown<QCheckBox>(form.chkView).text(), "Auto preview");
}

// The three libraries say the same but for these words.
Words LibraryWords(const std::string& title, const std::string& group, const Words& sets, const std::string& thing) {
  Words words{title,          group,     "Cetagory",     "Add new cetagory", "Delete cetagory",
              "Clock Themes", "&Browse", "Delete theame"};
  words.insert(words.end(), sets.begin(), sets.end());
  words.insert(words.end(), {"Preview", "Property", thing + " width", thing + " height", "Transparent", "Show logo"});
  return words;
}

// The misspellings are the station's own, and so are the words of the clock on the logo's form and of the logo on the
// others.
TEST_F(LayoutsTest, TheLibrariesAndTheRotationsHaveTheirTextsLetterForLetterWhatIsMisspeltToo) {
  EXPECT_EQ(WordsOf<frmLogoSett>(), LibraryWords("Logo settings", "Logo", {"Set as logo"}, "Logo"));
  EXPECT_EQ(WordsOf<frmClockSett>(), LibraryWords("Clock settings", "Clock", {"Create list", "Set as clock"}, "Clock"));
  EXPECT_EQ(WordsOf<frmStikerSett>(), LibraryWords("Stiker setttings", "Logo", {"Set as stiker"}, "Logo"));
  EXPECT_EQ(WordsOf<frmFlashAdSett>(),
            (Words{"Flash Ad settings", "Flash Ad", "Cetagory", "Add new cetagory", "Delete cetagory", "Command1",
                   "Flash Ad", "&Browse", "Delete theame", "Preview", "Properties", "Logo height", "Logo width",
                   "Transparent", "Show logo"}));
  EXPECT_EQ(WordsOf<frmLeftSideAdSett>(), (Words{"Left side Ad settings", "Flash Ad", "Cetagory", "Add new cetagory",
                                                 "Delete cetagory", "Left side Ad", "&Browse", "Delete theame",
                                                 "Preview", "Properties", "Logo width", "Transparent", "Show logo"}));
}

// "Page namager" is the station's own, and so are the buttons of the text's size without a word.
TEST_F(LayoutsTest, TheDeskOfTheWebFeedHasItsTextsLetterForLetterWhatIsMisspeltToo) {
  EXPECT_EQ(WordsOf<frmPageSettings>(), (Words{"Web feed settings",
                                               "Page namager",
                                               "Start up page: ",
                                               "&Add page",
                                               "Delete",
                                               "Set as start up",
                                               "Settings",
                                               "Stay on top",
                                               "Enable click",
                                               "Auto refresh after",
                                               "&Transparency",
                                               "Command2",
                                               "Text size:",
                                               "Set position",
                                               "&Up",
                                               "&Left",
                                               "&Right",
                                               "&Down",
                                               "&Save position",
                                               "Address bar",
                                               "&Load",
                                               "&Preview",
                                               "Page preview",
                                               "&Ok",
                                               "&Exit"}));
}

// "Ad" and the blanks at the ends are the station's own.
TEST_F(LayoutsTest, TheDirectoriesOfChannelsHaveTheirTextsLetterForLetterWhatIsMisspeltToo) {
  const auto words = [](const std::string& thing) {
    return Words{"Online " + thing + " settings",
                 "Online " + thing + " channel ",
                 "Channel's type (0)",
                 "Add new channel type",
                 "Delete this channel type",
                 "Channels (0)",
                 "Preview",
                 "Delete this channel ",
                 "Ad Online " + thing + " channel ",
                 "Channel type",
                 "Channel name",
                 "Streaming URL",
                 "Preview",
                 "&Add channel",
                 "Preview",
                 "On the air",
                 "Stream:",
                 "Start broadcast",
                 "Stop broadcast"};
  };
  EXPECT_EQ(WordsOf<frmOnlineTV>(), words("TV"));
  EXPECT_EQ(WordsOf<frmOnlineRadio>(), words("radio"));
}

TEST_F(LayoutsTest, TheSystemSettingsHaveTheirTextsLetterForLetterAndThePasswordStandsInTheClear) {
  EXPECT_EQ(WordsOf<frmSettings>(),
            (Words{"System settings", "Station", "Show cursor", "Show taskbar", "Show control window at start",
                   "Supported file extension ", "Save", "Volume", "Date and time", "Security",
                   "Ask for password before EXIT", "Password", "Save"}));
  EXPECT_EQ(Shown<QLineEdit>(Get<frmSettings>().txtPass).echoMode(), QLineEdit::Normal);
}

// Where the station's own captions share one, its presses go from one button to the other and Space presses it.
TEST_F(LayoutsTest, NoTwoControlsShareAKey) {
  const QStringList kept{"btnGo and btnLocation_0"};
  for (Form* form : EachForm()) {
    QMap<QString, QString> taken;
    for (const QAbstractButton* button : WindowOf(*form).Widget().findChildren<QAbstractButton*>()) {
      const QString key = button->shortcut().toString();
      if (key.isEmpty()) continue;
      const QString both = button->objectName() + " and " + taken.value(key);
      EXPECT_TRUE(!taken.contains(key) || kept.contains(both)) << qPrintable(both + ": " + key);
      taken[key] = button->objectName();
    }
  }
}

TEST_F(LayoutsTest, EveryFieldThatCanBeReachedByKeyHasANameForThoseWhoCannotSee) {
  for (Form* form : EachForm()) {
    for (QWidget* widget : WindowOf(*form).Widget().findChildren<QWidget*>()) {
      if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")) continue;
      if (widget->objectName().isEmpty() || widget->inherits("QTabBar") || widget->inherits("QTabWidget")) continue;
      QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(spoken, nullptr);
      EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << form->Name() << " " << Stored(widget->objectName());
    }
  }
}

TEST_F(LayoutsTest, AFormWithoutALayoutIsAnEmptyWindow) { EXPECT_EQ(LoadLayout(":/forms/frmNone.ui"), nullptr); }

}  // namespace

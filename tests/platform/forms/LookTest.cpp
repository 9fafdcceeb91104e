#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QSet>
#include <QTimer>
#include <QToolTip>

#include "overlay/frmLogoSett.h"
#include "platform/qt/desktop/QtDialogs.h"
#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Colours.h"
#include "platform/qt/forms/look/EmptyTexts.h"
#include "platform/qt/forms/look/Look.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/SampleForm.h"
#include "tests/platform/forms/TextFinder.h"

namespace {

constexpr double kReadable = 4.5;

class LookTest : public FormTest {
 protected:
  static void Look(QWidget& widget) {
    widget.show();
    Settle();
  }

  // Every text on the widget can be read; `at_least` of them are looked at.
  static void ExpectReadable(QWidget& widget, const std::string& name, int atLeast = 1) {
    const QImage picture = PictureOf(widget);
    int measured = 0;
    for (const FoundText& found : TextsOn(widget)) {
      if (found.text.trimmed().isEmpty() || !picture.rect().intersects(found.place)) continue;
      ++measured;
      EXPECT_GE(ContrastIn(picture, found.place), kReadable) << name << ": " << Stored(found.text);
    }
    EXPECT_GE(measured, atLeast) << name;
  }

  static bool Draws(QWidget& widget, const QString& text) {
    QString all;
    for (const FoundText& found : TextsOn(widget)) all += found.text.trimmed() + " ";
    return all.contains(text);
  }
};

TEST_F(LookTest, TheMeasureTellsAReadableTextFromAnUnreadableOne) {
  QLabel label("Corvanta");
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, QColor(0x50, 0x50, 0x50));
  palette.setColor(QPalette::Window, Qt::black);
  label.setPalette(palette);
  label.resize(200, 40);
  ASSERT_EQ(TextsOn(label).size(), 1U);
  EXPECT_NEAR(ContrastIn(PictureOf(label), TextsOn(label).front().place), Contrast(0xff505050, 0xff000000), 0.1);
  EXPECT_LT(Contrast(0xff505050, 0xff000000), kReadable);
  EXPECT_NEAR(Contrast(0xff000000, 0xffffffff), 21, 0.001);
}

TEST_F(LookTest, EveryTextOfEveryFormCanBeReadAlsoWhereItIsDisabled) {
  for (Form* form : EachForm()) {
    QWidget& window = WindowOf(*form).Widget();
    Look(window);
    ExpectReadable(window, form->Name());
    window.setEnabled(false);
    Settle();
    ExpectReadable(window, form->Name() + ", disabled");
  }
}

TEST_F(LookTest, EveryTextOfEveryMenuCanBeReadAlsoWhereItIsDisabled) {
  int menus = 0;
  for (Form* form : EachForm()) {
    for (QMenu* menu : WindowOf(*form).Widget().findChildren<QMenu*>()) {
      if (menu->isEmpty()) continue;
      ++menus;
      menu->resize(menu->sizeHint());
      ExpectReadable(*menu, Stored(menu->objectName()));
      for (QAction* action : menu->actions()) action->setEnabled(false);
      ExpectReadable(*menu, Stored(menu->objectName()) + ", disabled");
    }
  }
  EXPECT_GT(menus, 0);
}

TEST_F(LookTest, AnEntryOfAMenuThatIsSwitchedOnShowsItInTheAccentAndOneThatIsOffDoesNot) {
  QMenu menu;
  QAction& entry = *menu.addAction("Show logo");
  entry.setCheckable(true);
  menu.resize(menu.sizeHint());
  const auto accented = [&menu] {
    const QImage picture = PictureOf(menu);
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == ColourOf(Tone::kAccent);
    }
    return count;
  };
  EXPECT_EQ(accented(), 0);
  entry.setChecked(true);
  EXPECT_GT(accented(), 20);
}

TEST_F(LookTest, RowsCanBeReadSelectedOrNotAndInAWindowThatIsNotActive) {
  auto& form = Get<SampleForm>();
  sim.files.Put("/clips/a.avi", "");
  sim.files.Put("/clips/b.mp3", "");
  form.files.Path = "/clips";
  form.files.ListIndex = 1;
  for (int row = 1; row <= 3; ++row) {
    form.rows.Add({.text = "07:00:00 AM", .subItems = {"0:3:25", "07:03:25 AM", "News", "/clips/News.avi"}});
  }
  form.rows.Select(2);
  for (QAbstractItemView* list : {&Shown<QAbstractItemView>(form.rows), &Shown<QAbstractItemView>(form.files)}) {
    Look(WindowOf(form).Widget());
    list->setFocus();
    ExpectReadable(*list, "active", 2);
    list->clearFocus();
    ExpectReadable(*list, "without the keyboard", 2);
    list->setEnabled(false);
    ExpectReadable(*list, "disabled", 2);
  }
}

TEST_F(LookTest, RowsOfADrawnListCanBeReadSelectedOrNotAndInAWindowThatIsNotActive) {
  for (const char* name : {"news", "sport", "weather"}) {
    sim.files.CreateFolder(std::string("/station/Media/Logo/") + name);
  }
  auto& form = Get<frmLogoSett>();
  form.FolderList.ListIndex = 1;
  auto& list = Shown<QAbstractItemView>(form.FolderList);
  Look(WindowOf(form).Widget());
  list.setFocus();
  ExpectReadable(list, "active", 3);
  list.clearFocus();
  ExpectReadable(list, "without the keyboard", 3);
  list.setEnabled(false);
  ExpectReadable(list, "disabled", 3);
}

TEST_F(LookTest, TheTextOfEveryBoxCanBeRead) {
  QtDialogs dialogs;
  const auto thenMeasure = [](const char* name) {
    QTimer::singleShot(0, qApp, [name] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      ExpectReadable(*box, name, 3);
      box->reject();
    });
  };
  thenMeasure("question");
  dialogs.MsgBox("Are You Sure you wnat to EXIT from Corvanta 6.0?", "Exit", Buttons::kYesNo);
  thenMeasure("input");
  dialogs.InputBox("Pleasr enter Playlist name", "Playlist");
  thenMeasure("folder");
  dialogs.BrowseFolder("Select A Video or Audio Directory", "/usr/share");
}

TEST_F(LookTest, AToolTipCanBeRead) {
  QToolTip::showText({10, 10}, "/clips/News.avi");
  Settle();
  int tips = 0;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->inherits("QTipLabel")) continue;
    ++tips;
    ExpectReadable(*window, "tool tip");
  }
  EXPECT_EQ(tips, 1);
  QToolTip::hideText();
}

TEST_F(LookTest, ALampTellsByItsGroundWhatIsOnAndWhatIsOnTheAir) {
  QLabel lamp("Crawlers Ad True");
  lamp.resize(200, 40);
  const auto ground = [&lamp] { return QColor(PictureOf(lamp).pixel(100, 4)); };
  for (const auto& [state, tone] :
       {std::pair{Lamp::kOff, Tone::kRaised}, {Lamp::kOn, Tone::kAccent}, {Lamp::kOnAir, Tone::kOnAir}}) {
    Light(lamp, state);
    EXPECT_EQ(ground(), ColourOf(tone));
    ExpectReadable(lamp, "lamp");
  }
}

TEST_F(LookTest, TheSliderOfWhatIsOnTheAirHasItsColourAndNothingElseOfASliderHas) {
  auto& form = Get<SampleForm>();
  auto& slider = Shown<QWidget>(form.slider);
  form.slider.Max = 100;
  form.slider.Value = 90;
  Look(WindowOf(form).Widget());
  const auto reddish = [&slider] {
    const QImage picture = PictureOf(slider);
    int red = 0;
    for (int y = 0; y < picture.height(); ++y) {
      const QColor colour = picture.pixelColor(picture.width() / 2, y);
      if (colour.red() > 2 * colour.blue() && colour.red() > 100) ++red;
    }
    return red;
  };
  EXPECT_GT(reddish(), 0);
  slider.setProperty("look", "");
  EXPECT_EQ(reddish(), 0);
}

TEST_F(LookTest, AClockAndABigButtonAreWrittenLargerThanTheDesktopsText) {
  const double plain = QApplication::font().pointSizeF();
  for (Form* form : EachForm()) {
    QWidget& window = WindowOf(*form).Widget();
    Look(window);
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      if (!QStringList{"clock", "big", "primary", "title"}.contains(widget->property("look").toString())) continue;
      EXPECT_GT(widget->font().pointSizeF(), 1.2 * plain) << form->Name() << " " << Stored(widget->objectName());
    }
  }
}

TEST_F(LookTest, SpacesAreOfOneScale) {
  const QSet<int> scale{0, 4, 8, 12, 16, 24};
  for (Form* form : EachForm()) {
    for (const QLayout* layout : WindowOf(*form).Widget().findChildren<QLayout*>()) {
      if (layout->objectName().isEmpty()) continue;  // of the inside of a widget
      const QMargins around = layout->contentsMargins();
      QSet<int> spaces{around.left(), around.top(), around.right(), around.bottom()};
      if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
        spaces += {grid->horizontalSpacing(), grid->verticalSpacing()};
      } else {
        spaces += layout->spacing();
      }
      EXPECT_TRUE(scale.contains(spaces)) << form->Name() << " " << Stored(layout->objectName());
    }
  }
}

TEST_F(LookTest, EveryListSaysWhatToDoWhileItIsEmptyAndNotAfter) {
  for (Form* form : EachForm()) {
    for (const QAbstractItemView* list : WindowOf(*form).Widget().findChildren<QAbstractItemView*>()) {
      const QString name = list->objectName();
      if (name.isEmpty() || name.startsWith("qt_")) continue;
      EXPECT_FALSE(EmptyText(QString::fromStdString(form->Name()), name).isEmpty())
          << form->Name() << " " << Stored(name) << ": add a line to look/EmptyTexts.cpp";
    }
  }
  auto& form = Get<SampleForm>();
  auto& list = Shown<QAbstractItemView>(form.rows);
  Look(WindowOf(form).Widget());
  const QString said = EmptyText("frmPlaylist", "ListPlay").section(' ', 0, 2);
  EXPECT_TRUE(Draws(list, said));
  form.rows.Add({.text = "row"});
  EXPECT_FALSE(Draws(list, said));
}

}  // namespace

// Every form, opened from the menu where it has an entry, as it comes up on a real screen of the size and with the size
// of text that the environment gives: nothing is cut off, nothing lies over anything else, and every control has a
// name.

#include <QAccessible>
#include <QAction>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <set>

#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Look.h"
#include "shell/frmMid.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/TextFinder.h"

namespace {

using Lines = std::vector<std::string>;

// What the desktop's frame takes of a screen, and its own panel.
constexpr int kFrameWidth = 8, kFrameAndPanelHeight = 60;

std::string Named(const QWidget& widget) {
  return Stored(widget.objectName()) + " (" + widget.metaObject()->className() + ")";
}

std::string Told(const QRect& place) {
  return std::to_string(place.width()) + "x" + std::to_string(place.height()) + "+" + std::to_string(place.x()) + "+" +
         std::to_string(place.y());
}

// A control of a layout, or a part of one that the toolkit made.
bool IsOfALayout(const QWidget& widget) {
  return !widget.objectName().isEmpty() && !widget.objectName().startsWith("qt_") && !widget.isWindow();
}

QList<QWidget*> SeenIn(QWidget& window) {
  QList<QWidget*> seen;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (IsOfALayout(*widget) && widget->isVisibleTo(&window)) seen.append(widget);
  }
  return seen;
}

class ScreensTest : public FormTest {
 protected:
  ScreensTest() { WearLook(*qApp); }

  static QSize RoomFor(const QWidget& window) {
    return window.screen()->size() - QSize(kFrameWidth, kFrameAndPanelHeight);
  }

  // What an operator would find wrong with a window that has come up.
  static Lines Faults(QWidget& window) {
    Lines faults;
    if (const QSize room = RoomFor(window); window.width() > room.width() || window.height() > room.height()) {
      faults.push_back("larger than the screen: " + Told(window.geometry()));
    }
    const QList<QWidget*> seen = SeenIn(window);
    for (QWidget* widget : seen) {
      const QWidget& parent = *widget->parentWidget();
      if (!parent.rect().contains(widget->geometry())) {
        faults.push_back("cut off by its place: " + Named(*widget) + " " + Told(widget->geometry()));
      }
      // What scrolls may be lower than it would like to be.
      const QSize least = widget->inherits("QAbstractScrollArea") ? widget->minimumSize() : widget->minimumSizeHint();
      if (widget->width() < least.width() || widget->height() < least.height()) {
        faults.push_back("too small for its text: " + Named(*widget) + " " + Told(widget->geometry()) + ", needs " +
                         std::to_string(least.width()) + "x" + std::to_string(least.height()));
      }
      for (QWidget* other : seen) {
        if (other > widget && other->parentWidget() == widget->parentWidget() &&
            other->geometry().intersects(widget->geometry())) {
          faults.push_back("one over the other: " + Named(*widget) + ", " + Named(*other));
        }
      }
      if (widget->focusPolicy() != Qt::NoFocus && NameOf(*widget).empty()) {
        faults.push_back("without a name: " + Named(*widget));
      }
    }
    for (const FoundText& text : TextsOn(window)) {
      if (text.text.contains(QChar(0x2026))) faults.push_back("shortened: " + Stored(text.text));
    }
    return faults;
  }

  static std::string NameOf(QWidget& widget) {
    if (widget.inherits("QTabBar") || widget.inherits("QTabWidget")) return "pages";
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
    return spoken == nullptr ? "" : Stored(spoken->text(QAccessible::Name));
  }

  // Every entry that can be chosen.
  static QList<QAction*> Entries(const QWidget& menu) {
    QList<QAction*> entries;
    for (QAction* action : menu.actions()) {
      if (action->menu() != nullptr) {
        entries += Entries(*action->menu());
      } else if (!action->isSeparator()) {
        entries.append(action);
      }
    }
    return entries;
  }

  // Has the form come up, no larger than the desktop leaves room for it, and tells what is wrong with it.
  void Judge(Form& form) {
    Settle();
    QWidget& window = WindowOf(form).Widget();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window)) << form.Name();
    window.resize(window.size().boundedTo(RoomFor(window)));
    Settle();
    for (const std::string& fault : Faults(window)) ADD_FAILURE() << form.Name() << ": " << fault;
  }
};

TEST_F(ScreensTest, TheMeasureFindsWhatIsWrongWithAForm) {
  QWidget window;
  window.resize(200, 100);
  QPushButton cut("Cut off by the edge", &window), small("Too small for its text", &window), nameless(&window);
  cut.setObjectName("cut");
  cut.setGeometry(150, 0, 200, 30);
  small.setObjectName("small");
  small.setGeometry(0, 0, 20, 30);
  nameless.setObjectName("nameless");
  nameless.setGeometry(0, 20, 100, 60);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const Lines faults = Faults(window);
  for (const char* one : {"cut off by its place: cut", "too small for its text: small", "one over the other",
                          "without a name: nameless"}) {
    EXPECT_TRUE(std::ranges::any_of(faults, [one](const std::string& fault) { return fault.starts_with(one); })) << one;
  }
}

TEST_F(ScreensTest, EveryFormComesUpWholeAndReadable) {
  frmMid& control = Get<frmMid>();
  control.Show();
  Judge(control);
  std::set<std::string> judged{control.Name()};
  for (QAction* entry : Entries(*WindowOf(control).Widget().findChild<QMenuBar*>())) {
    if (entry->objectName() == "mnuExit" || entry->isCheckable()) continue;
    entry->trigger();
    for (const FormRow& row : AllForms()) {
      if (!row.loaded(station.forms) || judged.contains(row.name)) continue;
      Form& form = row.get(station.forms);
      if (!form.Visible) continue;
      judged.insert(row.name);
      Judge(form);
      form.Close();
    }
  }
  EXPECT_GE(judged.size() + 2, AllForms().size())
      << "the splash and the output settings are in no menu, all others are";
  for (const FormRow& row : AllForms()) {
    if (judged.contains(row.name)) continue;
    Form& form = row.get(station.forms);
    form.Show();
    Judge(form);
  }
}

}  // namespace

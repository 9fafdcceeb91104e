#include <QLineEdit>
#include <QScreen>

#include "playlist/frmPlaylist.h"
#include "shell/frmMid.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/SampleForm.h"

namespace {

class OperatorWindowTest : public FormTest {
 protected:
  static QWidget& Widget(Form& form) { return WindowOf(form).Widget(); }
};

TEST_F(OperatorWindowTest, TheLayoutGivesTheFormItsSizeInTwipsAndItsCaption) {
  SampleForm& form = Get<SampleForm>();
  EXPECT_EQ(form.Caption.Get(), "Playlist manager");
  EXPECT_EQ(form.Width, Widget(form).width() * 15.0);
  EXPECT_EQ(form.Height, Widget(form).height() * 15.0);
}

TEST_F(OperatorWindowTest, TheWindowFollowsTheForm) {
  SampleForm& form = Get<SampleForm>();
  form.Left = 1500;
  form.Top = 750;
  form.Width = 19500;
  form.Height = 12000;
  form.Caption = "Playlist- 7:00:00 AM";
  EXPECT_EQ(Widget(form).pos(), QPoint(100, 50));
  EXPECT_EQ(Widget(form).size(), QSize(1300, 800));
  EXPECT_EQ(Widget(form).windowTitle(), "Playlist- 7:00:00 AM");
}

TEST_F(OperatorWindowTest, WhereTheOperatorMovesTheWindowIsToldToTheForm) {
  SampleForm& form = Get<SampleForm>();
  form.Visible = true;
  Settle();
  Widget(form).move(40, 30);
  Widget(form).resize(1310, 790);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.Left == 600 && form.Top == 450; }));
  EXPECT_EQ(form.Width, 19650);
  EXPECT_EQ(form.Height, 11850);
  EXPECT_EQ(Widget(form).pos(), QPoint(40, 30));
}

TEST_F(OperatorWindowTest, AWorkerFormThatIsShownAndHiddenInOneBreathNeverAppears) {
  SampleForm& form = Get<SampleForm>();
  bool shown = false;
  class Watch : public QObject {
   public:
    explicit Watch(bool& shown) : shown_(shown) {}
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Show) shown_ = true;
      return false;
    }

   private:
    bool& shown_;
  } watch(shown);
  Widget(form).installEventFilter(&watch);
  form.Show();
  form.Hide();
  Settle();
  EXPECT_FALSE(shown);
}

TEST_F(OperatorWindowTest, ARememberedPlaceOffAllScreensComesBackIntoView) {
  SampleForm& form = Get<SampleForm>();
  form.Left = 150000;
  form.Top = -150000;
  form.Visible = true;
  Settle();
  EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(Widget(form).pos()));
}

TEST_F(OperatorWindowTest, TheCloseBoxOfTheControlWindowOnlyHidesIt) {
  frmMid& form = Get<frmMid>();
  form.Show();
  Settle();
  Widget(form).close();
  Settle();
  EXPECT_TRUE(station.forms.Loaded<frmMid>());
  EXPECT_FALSE(form.Visible);
  EXPECT_FALSE(Widget(form).isVisible());
  form.Show();
  Settle();
  EXPECT_TRUE(Widget(form).isVisible());
}

TEST_F(OperatorWindowTest, TheCloseBoxOfAnotherFormUnloadsIt) {
  SampleForm& form = Get<SampleForm>();
  form.Show();
  Settle();
  QPointer<QWidget> widget = &Widget(form);
  widget->close();
  EXPECT_FALSE(station.forms.Loaded<SampleForm>());
  Settle();
  EXPECT_TRUE(widget.isNull());
}

TEST_F(OperatorWindowTest, TheControlWindowOffersNoMinimiseBox) {
  EXPECT_FALSE(Widget(Get<frmMid>()).windowFlags() & Qt::WindowMinimizeButtonHint);
  EXPECT_TRUE(Widget(Get<frmMid>()).windowFlags() & Qt::WindowCloseButtonHint);
}

TEST_F(OperatorWindowTest, AControlIsGivenTheKeyboardInItsOwnWindow) {
  SampleForm& form = Get<SampleForm>();
  form.Show();
  Settle();
  form.text.SetFocus();
  EXPECT_EQ(Widget(form).focusWidget(), &Shown<QLineEdit>(form.text));
}

}  // namespace

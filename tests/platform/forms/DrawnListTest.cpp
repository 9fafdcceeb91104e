#include <QScrollBar>

#include "platform/qt/forms/DrawnView.h"
#include "platform/qt/forms/look/Icons.h"
#include "tests/controls/frmLists.h"
#include "tests/platform/forms/FormTest.h"

namespace {

constexpr Colour kGround{200, 220, 240}, kInk{10, 20, 30}, kChosen{200, 30, 30}, kOnChosen{250, 250, 0};

QColor Of(const Colour& colour) { return QColor(colour.red, colour.green, colour.blue); }

class DrawnListTest : public FormTest {
 protected:
  DrawnListTest() {
    list.BackColor = kGround;
    list.ForeColor = kInk;
    list.SelColor = kChosen;
    list.SelForeColor = kOnChosen;
    list.FullRowSelect = true;
    list.Click.Connect([this] { ++clicks; });
    form.Show();
    Settle();
  }

  void Add(int count) {
    for (int row = 0; row < count; ++row) list.AddItem("row " + std::to_string(row));
    Settle();
  }
  QRect Place(int row) { return view.visualRect(view.model()->index(row, 0)); }
  QPoint At(int row) { return Place(row).center(); }
  QImage Drawn() {
    Settle();
    return view.viewport()->grab().toImage();
  }
  // The colour at a row's right end, where no text is.
  QColor GroundOf(int row) { return Drawn().pixelColor(Place(row).right() - 2, At(row).y()); }
  int Count(const QRect& place, const QColor& colour) {
    const QImage drawn = Drawn().copy(place);
    int count = 0;
    for (int y = 0; y < drawn.height(); ++y) {
      for (int x = 0; x < drawn.width(); ++x) count += drawn.pixelColor(x, y) == colour;
    }
    return count;
  }
  void Click(int row, Qt::KeyboardModifiers held = {}) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, held, At(row));
  }
  void Press(Qt::Key key) { QTest::keyClick(&view, key); }

  frmLists& form = Get<frmLists>();
  McListBox& list = form.List;
  DrawnView& view = Shown<DrawnView>(list);
  int clicks = 0;
};

TEST_F(DrawnListTest, ARowIsSelectedByThePressAndClickedByTheRelease) {
  Add(3);
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, At(1));
  EXPECT_EQ(list.ListIndex, 1);
  EXPECT_EQ(clicks, 0);
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, At(1));
  EXPECT_EQ(clicks, 1);
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, At(0));
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, At(2));
  EXPECT_EQ(list.ListIndex, 0);
  EXPECT_EQ(clicks, 1);
}

TEST_F(DrawnListTest, ADoubleClickIsOneClickAndTheRightButtonNone) {
  Add(2);
  Click(1);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, At(1));
  QTest::mouseClick(view.viewport(), Qt::RightButton, {}, At(0));
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(list.ListIndex, 1);
}

TEST_F(DrawnListTest, APressBelowTheRowsDoesNothing) {
  Add(1);
  Click(0);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, Place(0).bottomLeft() + QPoint(5, 40));
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(list.ListIndex, 0);
}

TEST_F(DrawnListTest, CtrlAndShiftExtendTheSelectionWhereManyMayBeSelected) {
  list.MultiSelect = true;
  Add(5);
  Click(0);
  Click(2, Qt::ShiftModifier);
  Click(4, Qt::ControlModifier);
  EXPECT_EQ(list.SelCount(), 4);
  EXPECT_EQ(GroundOf(2), Of(kChosen));
  EXPECT_EQ(GroundOf(3), Of(kGround));
}

TEST_F(DrawnListTest, KeysMoveTheSelectionAPageIsWhatIsInViewAndEnterAndTheBlankClick) {
  Add(60);
  Press(Qt::Key_Down);
  EXPECT_EQ(list.ListIndex, 0);
  const int page = view.viewport()->height() / Place(0).height();
  ASSERT_GT(page, 2);
  Press(Qt::Key_PageDown);
  EXPECT_EQ(list.ListIndex, page);
  EXPECT_TRUE(view.viewport()->rect().contains(Place(page)));
  Press(Qt::Key_End);
  EXPECT_EQ(list.ListIndex, 59);
  EXPECT_TRUE(view.viewport()->rect().contains(Place(59)));
  Press(Qt::Key_PageUp);
  Press(Qt::Key_Up);
  EXPECT_EQ(list.ListIndex, 58 - page);
  Press(Qt::Key_Home);
  EXPECT_EQ(list.ListIndex, 0);
  EXPECT_TRUE(view.viewport()->rect().contains(Place(0)));
  EXPECT_EQ(clicks, 0);
  Press(Qt::Key_Return);
  Press(Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
}

TEST_F(DrawnListTest, TheListStaysWhereItWasScrolledWhenARowJoinsAndGoesUpWhenItIsFilledAnew) {
  Add(60);
  QScrollBar& bar = *view.verticalScrollBar();
  bar.setValue(bar.maximum());
  const int before = bar.value();
  EXPECT_GT(before, 0);
  list.AddItem("one more");
  Settle();
  EXPECT_EQ(bar.value(), before);
  for (int file = 0; file < 60; ++file) sim.files.Put("/clips/" + std::to_string(file), "");
  list.Path = "/clips";
  list.Mode = McListBox::kFiles;
  Settle();
  EXPECT_EQ(bar.value(), 0);
  bar.setValue(bar.maximum());
  list.Refresh();
  Settle();
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(DrawnListTest, RowsHaveTheirHeightButNeverLessThanTheirTextNeeds) {
  Add(1);
  list.RowHeight = 41;
  Settle();
  EXPECT_EQ(Place(0).height(), 41);
  list.RowHeight = 1;
  Settle();
  EXPECT_GE(Place(0).height(), view.fontMetrics().height());
}

TEST_F(DrawnListTest, TheColoursAreThoseOfTheLook) {
  Add(2);
  EXPECT_EQ(GroundOf(0), Of(kGround));
  EXPECT_GT(Count(Place(0), Of(kInk)), 0);
  list.ListIndex = 0;
  EXPECT_EQ(GroundOf(0), Of(kChosen));
  EXPECT_GT(Count(Place(0), Of(kOnChosen)), 0);
  list.FullRowSelect = false;
  EXPECT_EQ(GroundOf(0), Of(kGround));
  EXPECT_GT(Count(Place(0), Of(kChosen)), 0);
  list.SelectionStyle = 0;
  EXPECT_GT(Count(Place(0), Of(kInk)), 0);
}

TEST_F(DrawnListTest, AColourOfTheSystemIsTheOneThatTheLookGives) {
  Add(1);
  list.BackColor = LookColour::System::kWindow;
  EXPECT_EQ(GroundOf(0), view.palette().color(QPalette::Base));
}

TEST_F(DrawnListTest, GroundAndSelectionMayRunFromOneColourToAnother) {
  Add(2);
  list.ListIndex = 1;
  list.BackGradient = true;
  list.BackGradientCol = kRed;
  list.SelGradient = true;
  list.SelGradientCol = kBlack;
  const QImage drawn = Drawn();
  EXPECT_LT(drawn.pixelColor(2, drawn.height() - 2).blue(), 40);
  EXPECT_GT(drawn.pixelColor(2, 2).blue(), 200);
  const QRect row = Place(1);
  EXPECT_GT(drawn.pixelColor(row.right() - 2, row.top() + 1).red(),
            drawn.pixelColor(row.right() - 2, row.bottom()).red());
}

TEST_F(DrawnListTest, GridLinesStandUnderEachRow) {
  Add(2);
  list.GridColor = kRed;
  EXPECT_EQ(Count(Place(0), Of(kRed)), 0);
  list.GridLines = true;
  EXPECT_EQ(Count(Place(0), Of(kRed)), Place(0).width());
}

TEST_F(DrawnListTest, BoldRowsAreBoldAndTextsStandWhereTheAlignmentSays) {
  list.AddItem("row");
  list.AddItem("row", -1, -1, true);
  const QRect left(0, 0, view.viewport()->width() / 3, view.viewport()->height());
  EXPECT_GT(Count(Place(1), Of(kInk)), Count(Place(0), Of(kInk)));
  EXPECT_GT(Count(Place(0) & left, Of(kInk)), 0);
  for (const int alignment : {1, 2}) {
    list.TextAlignment = alignment;
    EXPECT_EQ(Count(Place(0) & left, Of(kInk)), 0);
  }
}

TEST_F(DrawnListTest, ImagesComeFromTheImageListAndFilesHaveTheIconOfTheirKind) {
  list.AddItem("row", -1, 1);
  const QRect place(0, Place(0).top(), Place(0).height() + 4, Place(0).height());
  const auto picture = [&] { return Drawn().copy(place); };
  const QImage bare = picture();
  list.ImageList = "images";
  EXPECT_NE(picture(), bare);
  sim.files.Put("/clips/a.mp3", "");
  list.ImageList = "";
  list.Path = "/clips";
  list.Mode = McListBox::kFiles;
  const QImage without = picture();
  list.ShowIcon = true;
  const QImage small = picture();
  EXPECT_NE(small, without);
  list.StrechIcon = true;
  EXPECT_NE(picture(), small);
}

TEST_F(DrawnListTest, TheIconOfASelectedRowStandsOnTheSelectionOnlyWithIconFocus) {
  sim.files.Put("/clips/a.mp3", "");
  list.ShowIcon = true;
  list.Path = "/clips";
  list.Mode = McListBox::kFiles;
  list.ListIndex = 0;
  const QPoint corner(1, At(0).y());
  EXPECT_EQ(Drawn().pixelColor(corner), Of(kChosen));
  list.IconFocus = false;
  EXPECT_EQ(Drawn().pixelColor(corner), Of(kGround));
}

TEST_F(DrawnListTest, TheFocusRectangleIsDrawnWhileTheListHasTheKeyboard) {
  Add(2);
  list.ListIndex = 1;
  view.setFocus();
  const QImage without = Drawn();
  list.FocusRectangle = true;
  EXPECT_NE(Drawn(), without);
  EXPECT_TRUE(view.hasFocus());
}

TEST_F(DrawnListTest, TheScrollBarHidesWhereNothingIsToScrollOnlyWhereItMay) {
  Add(1);
  EXPECT_TRUE(view.verticalScrollBar()->isVisible());
  list.AutoHideScrollBars = true;
  Settle();
  EXPECT_FALSE(view.verticalScrollBar()->isVisible());
  list.FlatScrollBar = true;
  Add(60);
  EXPECT_TRUE(view.verticalScrollBar()->isVisible());
}

TEST_F(DrawnListTest, TheBorderGoesWhereNoneIsWished) {
  EXPECT_GT(view.frameWidth(), 0);
  list.BorderStyle = 0;
  EXPECT_EQ(view.frameWidth(), 0);
}

TEST_F(DrawnListTest, ALongTextIsShortenedAndItsToolTipHasItWhole) {
  const std::string text(500, 'w');
  list.AddItem(text);
  EXPECT_EQ(view.model()->index(0, 0).data(Qt::ToolTipRole).toString().toStdString(), text);
  EXPECT_EQ(Drawn().pixelColor(Place(0).right() - 1, At(0).y()), Of(kGround));
}

TEST_F(DrawnListTest, AFormThatGoesAtAClickTakesItsListAlong) {
  Add(2);
  list.Click.Connect([this] { station.forms.Unload<frmLists>(); });
  QPointer<QWidget> widget = &view;
  Click(1);
  Settle();
  EXPECT_FALSE(station.forms.Loaded<frmLists>());
  EXPECT_EQ(widget, nullptr);
}

}  // namespace

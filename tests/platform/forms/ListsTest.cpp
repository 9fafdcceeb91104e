#include <QElapsedTimer>
#include <QHeaderView>

#include "platform/qt/forms/NameView.h"
#include "platform/qt/forms/RowView.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/SampleForm.h"

namespace {

class ListsTest : public FormTest {
 protected:
  ListsTest() {
    form.Visible = true;
    Settle();
    form.rows.Click.Connect([this] { heard.push_back(form.rows.SelectedItem()); });
    form.files.Click.Connect([this] { heard.push_back(form.files.ListIndex); });
  }

  void FillRows(int count) {
    for (int row = 1; row <= count; ++row) form.rows.Add({.text = "row " + std::to_string(row), .smallIcon = 1});
  }
  void FillFiles() {
    for (const char* name : {"a.avi", "b.avi", "c.avi"}) sim.files.Put(std::string("/clips/") + name, "");
    form.files.Path = "/clips";
  }

  RowView& Rows() { return Shown<RowView>(form.rows); }
  NameView& Names() { return Shown<NameView>(form.files); }

  static QPoint At(const QAbstractItemView& view, int row) {
    return view.visualRect(view.model()->index(row, 0)).center();
  }
  static void Click(QAbstractItemView& view, int row, Qt::KeyboardModifiers keys = Qt::NoModifier,
                    Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(view.viewport(), button, keys, At(view, row));
  }
  std::vector<int> Selected() {
    std::vector<int> rows;
    for (int row = 1; row <= form.rows.Count(); ++row) {
      if (form.rows.Row(row).selected) rows.push_back(row);
    }
    return rows;
  }

  SampleForm& form = Get<SampleForm>();
  std::vector<int> heard;
};

TEST_F(ListsTest, ColumnsAndRowsAreShown) {
  form.rows.Add({.text = "07:00:00 AM", .subItems = {"0:3:25", "07:03:25 AM", "News", "/clips/News.avi"}});
  const QAbstractItemModel& model = *Rows().model();
  EXPECT_EQ(model.headerData(3, Qt::Horizontal, Qt::DisplayRole), "File Name");
  EXPECT_EQ(model.index(0, 0).data(), "07:00:00 AM");
  EXPECT_EQ(model.index(0, 4).data(), "/clips/News.avi");
}

TEST_F(ListsTest, AClickOnARowIsHeardAlsoOnTheRowThatIsSelectedAlready) {
  FillRows(3);
  Click(Rows(), 1);
  QTest::qWait(QApplication::doubleClickInterval() + 1);
  Click(Rows(), 1);
  EXPECT_EQ(heard, (std::vector<int>{2, 2}));
  EXPECT_EQ(Selected(), std::vector<int>{2});
}

TEST_F(ListsTest, ADoubleClickIsOneClick) {
  FillRows(3);
  Click(Rows(), 1);
  QTest::mouseDClick(Rows().viewport(), Qt::LeftButton, {}, At(Rows(), 1));
  EXPECT_EQ(heard, std::vector<int>{2});
}

TEST_F(ListsTest, SelectingFromCodeIsNoClickAndIsShown) {
  FillRows(3);
  form.rows.Select(3);
  EXPECT_TRUE(heard.empty());
  EXPECT_TRUE(Rows().selectionModel()->isRowSelected(2));
  EXPECT_FALSE(Rows().selectionModel()->isRowSelected(0));
}

TEST_F(ListsTest, AClickWithCtrlKeepsTheOtherRowsAndIsHeardToo) {
  FillRows(4);
  Click(Rows(), 0);
  Click(Rows(), 2, Qt::ControlModifier);
  EXPECT_EQ(Selected(), (std::vector<int>{1, 3}));
  EXPECT_EQ(heard, (std::vector<int>{1, 3}));
}

TEST_F(ListsTest, TheRightButtonAndTheArrowsSelectWithoutAClickAndEnterClicks) {
  FillRows(4);
  Click(Rows(), 1, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ(Selected(), std::vector<int>{2});
  QTest::keyClick(&Rows(), Qt::Key_Down);
  QTest::keyClick(&Rows(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), (std::vector<int>{3, 4}));
  EXPECT_TRUE(heard.empty());
  QTest::keyClick(&Rows(), Qt::Key_Return);
  EXPECT_EQ(heard, std::vector<int>{4});
  EXPECT_EQ(Selected(), (std::vector<int>{3, 4}));
}

TEST_F(ListsTest, AClickOnTheEmptyGroundIsAClickOnWhatIsSelected) {
  FillRows(2);
  form.rows.Select(2);
  QTest::mouseClick(Rows().viewport(), Qt::LeftButton, {}, QPoint(10, Rows().viewport()->height() - 4));
  EXPECT_EQ(heard, std::vector<int>{2});
  EXPECT_EQ(Selected(), std::vector<int>{2});
}

TEST_F(ListsTest, RowsThatAreExchangedUnderThePointerArePlayedByNoChance) {
  FillRows(3);
  QTest::mousePress(Rows().viewport(), Qt::LeftButton, {}, At(Rows(), 1));
  form.rows.Assign({{.text = "other"}, {.text = "rows"}});
  QTest::mouseRelease(Rows().viewport(), Qt::LeftButton, {}, At(Rows(), 1));
  EXPECT_TRUE(heard.empty());
}

TEST_F(ListsTest, RowsJoinAndLeaveWithTheSelectionKept) {
  FillRows(5);
  form.rows.Select(4);
  form.rows.Remove(1);
  EXPECT_TRUE(Rows().selectionModel()->isRowSelected(2));
  form.rows.Insert(1, {.text = "first"});
  form.rows.Insert(1, {.text = "new", .selected = true});
  EXPECT_EQ(Rows().model()->rowCount(), 6);
  EXPECT_EQ(Selected(), (std::vector<int>{1, 5}));
  EXPECT_TRUE(Rows().selectionModel()->isRowSelected(0));
  EXPECT_TRUE(Rows().selectionModel()->isRowSelected(4));
}

TEST_F(ListsTest, ARowOfManyThousandIsScrolledIntoView) {
  std::vector<ListRow> rows(10000, ListRow{.text = "row"});
  form.rows.Assign(rows);
  form.rows.EnsureVisible(9000);
  EXPECT_TRUE(Rows().viewport()->rect().intersects(Rows().visualRect(Rows().model()->index(8999, 0))));
}

TEST_F(ListsTest, AClickOnAFilePicksItAlsoWhenItIsPickedAlready) {
  FillFiles();
  Click(Names(), 1);
  QTest::qWait(QApplication::doubleClickInterval() + 1);
  Click(Names(), 1);
  EXPECT_EQ(heard, (std::vector<int>{1, 1}));
}

TEST_F(ListsTest, MovingToAFileByKeyPicksIt) {
  FillFiles();
  Click(Names(), 0);
  QTest::keyClick(&Names(), Qt::Key_Down);
  QTest::keyClick(&Names(), Qt::Key_End);
  QTest::keyClick(&Names(), Qt::Key_End);
  EXPECT_EQ(heard, (std::vector<int>{0, 1, 2}));
  QTest::keyClick(&Names(), Qt::Key_Space);
  EXPECT_EQ(heard.back(), 2);
  EXPECT_EQ(heard.size(), 4U);
}

TEST_F(ListsTest, APressThatIsLetGoElsewherePicksNothingAndTheViewGoesBack) {
  FillFiles();
  Click(Names(), 0);
  QTest::mousePress(Names().viewport(), Qt::LeftButton, {}, At(Names(), 2));
  QTest::mouseRelease(Names().viewport(), Qt::LeftButton, {}, At(Names(), 1));
  EXPECT_EQ(heard, std::vector<int>{0});
  EXPECT_EQ(Names().currentIndex().row(), 0);
}

TEST_F(ListsTest, AListBoxShowsItsTextsWithoutIconsAndADoubleClickIsAClickAndADoubleClick) {
  auto& list = Shown<NameView>(form.names);
  int doubles = 0;
  form.names.Click.Connect([this] { heard.push_back(form.names.ListIndex); });
  form.names.DblClick.Connect([&] { ++doubles; });
  for (const char* name : {"a", "b"}) form.names.AddItem(name);
  ASSERT_EQ(list.model()->rowCount(), 2);
  EXPECT_TRUE(list.model()->index(1, 0).data(Qt::DecorationRole).isNull());
  Click(list, 1);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, At(list, 1));
  EXPECT_EQ(heard, std::vector<int>{1});
  EXPECT_EQ(doubles, 1);
  QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, At(list, 1));
  EXPECT_EQ(doubles, 1);
  form.names.Clear();
  EXPECT_EQ(list.model()->rowCount(), 0);
  EXPECT_FALSE(list.currentIndex().isValid());
}

TEST_F(ListsTest, AFolderThatIsReadAgainShowsItsNewFilesWithNothingSelected) {
  FillFiles();
  Click(Names(), 1);
  sim.files.Put("/clips/d.avi", "");
  form.files.Refresh();
  EXPECT_EQ(Names().model()->rowCount(), 4);
  EXPECT_FALSE(Names().currentIndex().isValid());
  form.files.ListIndex = 3;
  EXPECT_EQ(Names().currentIndex().row(), 3);
}

TEST_F(ListsTest, AnotherFolderIsShownWithTheRowOfTheSameNumberAndAClickOnItCounts) {
  FillFiles();
  Click(Names(), 1);
  sim.files.Put("/other/x.avi", "");
  sim.files.Put("/other/y.avi", "");
  form.files.Path = "/other";
  EXPECT_EQ(Names().currentIndex().row(), 1);
  EXPECT_EQ(heard, std::vector<int>{1});
  Click(Names(), 1);
  EXPECT_EQ(heard, (std::vector<int>{1, 1}));
  sim.files.RemoveTree("/other");
  sim.files.Put("/short/z.avi", "");
  form.files.Path = "/short";
  EXPECT_FALSE(Names().currentIndex().isValid());
}

}  // namespace

#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include "platform/qt/forms/RowView.h"
#include "platform/qt/forms/look/PathField.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/SampleForm.h"
#include "tests/platform/forms/TextFinder.h"

namespace {

constexpr char kLong[] = "/station/Media/Clips/of the morning programme/News.avi";

class PathsTest : public FormTest {
 protected:
  static QString Drawn(QWidget& widget) {
    QString all;
    for (const FoundText& found : TextsOn(widget)) all += found.text;
    return all;
  }
  static bool LostItsBeginning(const QString& drawn) {
    return drawn.startsWith(QChar(0x2026)) && drawn.endsWith("News.avi");
  }
};

TEST_F(PathsTest, APathThatDoesNotFitAFieldLosesItsBeginningAndNotItsFileName) {
  PathField field;
  field.resize(160, 30);
  field.setText(kLong);
  EXPECT_TRUE(LostItsBeginning(Drawn(field))) << qPrintable(Drawn(field));
  field.resize(900, 30);
  EXPECT_EQ(Drawn(field), kLong);
}

TEST_F(PathsTest, APathThatIsBeingTypedIsShownAsAnyText) {
  PathField field;
  field.resize(160, 30);
  field.setText(kLong);
  field.show();
  field.activateWindow();
  field.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return field.hasFocus(); }));
  EXPECT_FALSE(Drawn(field).startsWith(QChar(0x2026)));
}

TEST_F(PathsTest, AToolTipHasThePathWhole) {
  PathField field;
  field.setText(kLong);
  field.show();
  QHelpEvent hover(QEvent::ToolTip, {5, 5}, {15, 15});
  QApplication::sendEvent(&field, &hover);
  EXPECT_EQ(QToolTip::text(), kLong);
  QToolTip::hideText();
}

TEST_F(PathsTest, EveryFieldOfALayoutIsOne) {
  EXPECT_NE(dynamic_cast<PathField*>(&Shown<QLineEdit>(Get<SampleForm>().text)), nullptr);
}

TEST_F(PathsTest, APathThatDoesNotFitAColumnLosesItsBeginningAndAnyOtherTextItsEnd) {
  auto& form = Get<SampleForm>();
  auto& list = Shown<RowView>(form.rows);
  form.rows.Add({.text = "a name longer than its column is", .subItems = {"", "", "", kLong}});
  WindowOf(form).Widget().show();
  list.header()->setStretchLastSection(false);
  for (int column = 0; column < 5; ++column) list.setColumnWidth(column, 110);
  Settle();
  QStringList drawn;
  for (const FoundText& found : TextsOn(*list.viewport())) drawn.append(found.text);
  EXPECT_EQ(drawn.filter(QChar(0x2026)).size(), 2) << qPrintable(drawn.join(" | "));
  EXPECT_TRUE(drawn.first().startsWith("a name") && drawn.first().endsWith(QChar(0x2026)));
  EXPECT_TRUE(LostItsBeginning(drawn.last()));
  EXPECT_EQ(list.model()->index(0, 4).data(Qt::ToolTipRole), kLong);
}

}  // namespace

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "platform/qt/desktop/GuideWindow.h"

namespace {

QTextBrowser* Standing() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* pages = qobject_cast<QTextBrowser*>(window); pages != nullptr && pages->isVisible()) return pages;
  }
  return nullptr;
}

// The widths of the pictures that stand in the text, 0 for one that is missing.
std::vector<int> PictureWidths(const QTextDocument& text) {
  std::vector<int> widths;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
      if (!picture.isValid()) continue;
      const QVariant loaded = text.resource(QTextDocument::ImageResource, QUrl(picture.name()));
      widths.push_back(loaded.value<QImage>().width());
    }
  }
  return widths;
}

TEST(GuideTest, TheGuideStandsWithItsPicturesInTheWidthThereIs) {
  GuideWindow guide;
  guide.Show();
  ASSERT_TRUE(QTest::qWaitFor([] { return Standing() != nullptr; }));
  QTextBrowser& pages = *Standing();
  EXPECT_TRUE(pages.toPlainText().contains("Control window"));
  const std::vector<int> widths = PictureWidths(*pages.document());
  ASSERT_GE(widths.size(), 3U);
  for (const int width : widths) {
    EXPECT_GT(width, 100);
    EXPECT_LT(width, pages.viewport()->width());
  }
}

TEST(GuideTest, AskedForAgainItIsTheSameWindowAndAfterItsCloseANewOne) {
  GuideWindow guide;
  guide.Show();
  ASSERT_TRUE(QTest::qWaitFor([] { return Standing() != nullptr; }));
  const QTextBrowser* first = Standing();
  guide.Show();
  QTest::qWait(50);
  EXPECT_EQ(Standing(), first);
  Standing()->close();
  EXPECT_TRUE(QTest::qWaitFor([] { return Standing() == nullptr; }));
  guide.Show();
  EXPECT_TRUE(QTest::qWaitFor([] { return Standing() != nullptr; }));
}

}  // namespace

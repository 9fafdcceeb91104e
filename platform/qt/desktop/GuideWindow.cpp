#include "platform/qt/desktop/GuideWindow.h"

#include <QImage>

namespace {

constexpr char kGuide[] = "qrc:/guide/operator-guide.md";
constexpr QSize kSize(860, 700);

// The guide's pictures are as large as the windows they show: here they take the width there is.
class Pages : public QTextBrowser {
 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return loaded;
    const auto picture = QImage::fromData(loaded.toByteArray());
    const int width = kSize.width() - 4 * static_cast<int>(document()->documentMargin()) - 40;
    return picture.width() > width ? picture.scaledToWidth(width, Qt::SmoothTransformation) : picture;
  }
};

}  // namespace

GuideWindow::~GuideWindow() { delete window_; }

void GuideWindow::Show() {
  if (!window_) {
    window_ = new Pages;
    window_->setAttribute(Qt::WA_DeleteOnClose);
    window_->setWindowTitle("Help");
    window_->resize(kSize);
    window_->setSource(QUrl(kGuide), QTextDocument::MarkdownResource);
  }
  window_->show();
  window_->raise();
  window_->activateWindow();
}

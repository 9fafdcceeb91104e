#include "platform/qt/desktop/GuideWindow.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QTextTable>
#include <QThreadPool>

#include "platform/qt/desktop/WindowClass.h"

namespace {

constexpr char kGuide[] = ":/guide/operator-guide.md";
constexpr char kPictures[] = ":/guide/pictures";
constexpr QSize kSize(900, 720);
constexpr int kPictureWidth = 820;  // fits beside the scroll bar
constexpr int kMargin = 16;         // around the text
constexpr int kCellPadding = 4;     // of the tables

// By the names that the guide calls them.
QMap<QString, QImage> DecodePictures() {
  QMap<QString, QImage> pictures;
  for (QDirIterator files(kPictures); files.hasNext();) {
    QImage picture(files.next());
    if (picture.width() > kPictureWidth) picture = picture.scaledToWidth(kPictureWidth, Qt::SmoothTransformation);
    pictures.insert("pictures/" + files.fileName(), picture);
  }
  return pictures;
}

void PadTables(QTextFrame& frame) {
  for (QTextFrame* child : frame.childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(child)) {
      QTextTableFormat format = table->format();
      format.setCellPadding(kCellPadding);
      table->setFormat(format);
    }
    PadTables(*child);
  }
}

}  // namespace

GuideWindow::~GuideWindow() { delete window_; }

void GuideWindow::Show() {
  if (window_) {
    window_->show();
    window_->raise();
    window_->activateWindow();
  } else if (!loading_) {
    loading_ = true;
    QThreadPool::globalInstance()->start([self = QPointer(this)] {
      const QMap<QString, QImage> pictures = DecodePictures();
      QMetaObject::invokeMethod(QCoreApplication::instance(), [self, pictures] {
        if (self) self->Open(pictures);
      });
    });
  }
}

void GuideWindow::Open(const QMap<QString, QImage>& pictures) {
  loading_ = false;
  QFile guide(kGuide);
  if (!guide.open(QFile::ReadOnly)) return;
  window_ = new QTextBrowser;
  window_->setAttribute(Qt::WA_DeleteOnClose);
  window_->setWindowTitle("Help");
  window_->resize(kSize);
  auto* text = new QTextDocument(window_);
  text->setMarkdown(QString::fromUtf8(guide.readAll()));
  // After the text, which takes all that stood in the document along.
  for (auto picture = pictures.begin(); picture != pictures.end(); ++picture) {
    text->addResource(QTextDocument::ImageResource, QUrl(picture.key()), picture.value());
  }
  text->setDocumentMargin(kMargin);
  PadTables(*text->rootFrame());
  window_->setDocument(text);
  window_->setOpenLinks(false);
  window_->winId();  // makes the window that gets the name
  SetWindowClass(*window_->windowHandle(), "guide");
  Show();
}

#include "platform/qt/desktop/CopyBox.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <memory>

#include "platform/posix/FileCopy.h"
#include "platform/qt/desktop/DialogPlace.h"

namespace {

constexpr std::chrono::milliseconds kBoxAfter{500}, kBetweenLooks{100};
constexpr int kSteps = 1000;

// While it stands, the operator's acts are lost as they would be behind a box, but for those on a box that a tick has
// opened.
class NoActs : public QObject {
 public:
  NoActs() { qApp->installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (QApplication::activeModalWidget() != nullptr) return false;
    switch (event->type()) {
      case QEvent::Close:
        event->ignore();
        return true;
      case QEvent::ContextMenu:
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::Shortcut:
      case QEvent::ShortcutOverride:
      case QEvent::Wheel:
        return true;
      default:
        return false;
    }
  }
};

class CopyBox : public QDialog {
 public:
  CopyBox(FileCopy& copy, const QString& name) : copy_(copy) {
    setWindowTitle("Corvanta 6.0");
    auto* text = new QLabel(this);
    text->setTextFormat(Qt::PlainText);
    text->setText("Copying " + text->fontMetrics().elidedText(name, Qt::ElideMiddle, kWidth));
    bar_ = new QProgressBar(this);
    bar_->setRange(0, kSteps);
    bar_->setMinimumWidth(kWidth);
    buttons_ = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    auto* box = new QVBoxLayout(this);
    for (QWidget* part : {static_cast<QWidget*>(text), static_cast<QWidget*>(bar_), static_cast<QWidget*>(buttons_)}) {
      box->addWidget(part);
    }
    connect(buttons_, &QDialogButtonBox::rejected, this, &CopyBox::reject);
    connect(&look_, &QTimer::timeout, this, [this] { Look(); });
    look_.start(kBetweenLooks);
    Look();
  }

  // The box goes when the copy has ended: a moment later, since it removes what it has begun.
  void reject() override {
    copy_.Cancel();
    buttons_->setEnabled(false);
  }

 private:
  static constexpr int kWidth = 360;

  void Look() {
    const double total = static_cast<double>(copy_.Total());
    if (total > 0) bar_->setValue(static_cast<int>(static_cast<double>(copy_.Done()) / total * kSteps));
  }

  FileCopy& copy_;
  QProgressBar* bar_;
  QDialogButtonBox* buttons_;
  QTimer look_;
};

}  // namespace

CopyResult CopyBehindBox(const std::string& from, const std::string& to) {
  FileCopy copy(from, to);
  CopyResult result = CopyResult::kFailed;
  const std::unique_ptr<QThread> thread(QThread::create([&] { result = copy.Run(); }));
  thread->setObjectName("copy");
  QEventLoop shortly;
  QObject::connect(thread.get(), &QThread::finished, &shortly, &QEventLoop::quit);
  QTimer::singleShot(kBoxAfter, &shortly, &QEventLoop::quit);
  thread->start();
  {
    const NoActs undisturbed;
    shortly.exec();
  }
  if (!thread->isFinished()) {
    CopyBox box(copy, QFileInfo(QString::fromStdString(from)).fileName());
    QObject::connect(thread.get(), &QThread::finished, &box, &QDialog::accept);
    PlaceBeforeOperator(box);
    if (!thread->isFinished()) box.exec();
  }
  thread->wait();
  return result;
}
